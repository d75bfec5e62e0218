#pragma once
// The journal that a killed run leaves beside the file, read without touching either.

#include <QByteArray>
#include <QString>

namespace lorvo {

/// Whether a run that was killed left a journal beside the file, from which the engine completes
/// it.
bool HasLeftoverJournal(const QString& path);

/// The file's content as the engine will have it once it has worked the leftover journal in.
/// CorruptStoreError when a page that is in use stands neither in the file nor in the journal,
/// StoreError when either can't be read.
QByteArray CompletedContent(const QString& path);

} // namespace lorvo
