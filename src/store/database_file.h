#pragma once
// What can be said about a database file before the engine touches it.

#include <QString>
#include <string>

namespace lorvo {

/// Raises StoreError when the file is missing, empty, a folder, at the end of too long a path, no
/// database at all, shorter than it says itself (CorruptStoreError) or not writable, each with a
/// message that names it, the reason and what to do. Only reads.
void RequireDatabaseFile(const QString& path);

/// A message about the file, naming it.
std::string AboutFile(const QString& path, const QString& reason);

} // namespace lorvo
