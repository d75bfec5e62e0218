#pragma once
// What can be said about a database file before the engine touches it.

#include <QString>
#include <string>

namespace lorvo {

/// Raises StoreError when the file is missing, empty, no database at all, shorter than it says
/// itself (CorruptStoreError) or not writable, each with a message that names it and the reason.
/// Only reads.
void RequireDatabaseFile(const QString& path);

/// Whether a run that was killed left a journal beside the file, from which the engine completes
/// it.
bool HasLeftoverJournal(const QString& path);

/// A message about the file, naming it.
std::string AboutFile(const QString& path, const QString& reason);

} // namespace lorvo
