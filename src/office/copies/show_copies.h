#pragma once
// The copies of a show's database in the folder Zálohy beside it: made, listed, compared, put back.
// Fit for a thread of their own.

#include "platform/values/date_value.h"
#include "store/database_copy.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace lorvo {

/// The folder's copies and the database that they are of.
QString DatabasePath(const QString& programFolder);
QString CopiesFolder(const QString& programFolder);

/// Copies the database, checked and synced, under the name of the moment; a copy equal to the
/// newest one is not kept twice. Then lets go of old copies by age. Returns the path of the copy
/// that holds the present state. Raises StoreError or PlatformError; CorruptStoreError when the
/// database itself is damaged.
QString MakeCopy(const QString& programFolder, DateValue now);

struct ShowCopy {
    QString path;
    DateValue moment;
    DatabaseFigures figures;
    QString fault; ///< what the check found; empty for a good copy
};

/// The newest first. With `checked` each is checked whole, else only its figures are read.
std::vector<ShowCopy> ListCopies(const QString& programFolder, bool checked);
/// The newest one whose check finds nothing. One ahead of `now` counts as older than all others: it
/// is from before the clock was set back.
[[nodiscard]] std::optional<ShowCopy> NewestGoodCopy(const QString& programFolder, DateValue now);

/// What came, went and changed from one database file to another, in sentences.
QStringList CompareDatabases(const QString& earlier, const QString& later);

/// Makes the copy the show's database. The present file is copied first (one that is
/// damaged or no show is put aside as it is, and it may be missing); the copy is checked before and
/// after; data.mdb is replaced in one step when the new file is whole and synced. Nobody else may
/// have the database open. Raises as MakeCopy does; data.mdb is then as it was.
void PutCopyBack(const QString& programFolder, const QString& copy, DateValue now);

} // namespace lorvo
