#pragma once
// The journal that a killed run leaves beside the file, read without touching either.

#include <QByteArray>
#include <QString>

namespace lorvo {

/// Whether a run that was killed left a journal beside the file, from which the engine completes
/// it. A log that isn't the file's own doesn't count.
bool HasLeftoverJournal(const QString& path);

/// Gives another name to the log that a killed run left beside a file which was then replaced by
/// hand, as by a copy of it: the engine would work pages into the file that belong to another.
/// Raises PlatformError when it can't; nothing where the log is the file's own.
void SetForeignLogAside(const QString& path);
/// The same for any log.
void SetLogAside(const QString& path);

/// The file's content as the engine will have it once it has worked the leftover journal in.
/// CorruptStoreError when a page that is in use stands neither in the file nor in the journal,
/// StoreError when either can't be read.
QByteArray CompletedContent(const QString& path);

} // namespace lorvo
