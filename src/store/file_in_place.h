#pragma once
// Whether the file that a connection works on still stands where it was opened. What is written to
// one that was removed, moved or replaced by another would be found by nobody.

#include <QString>
#include <string>

namespace SQLite {
class Database;
}

namespace lorvo {

/// Always true where the system keeps open files in their place.
bool IsFileInPlace(SQLite::Database& database);

/// Sees to it that nothing is lost of a file that isn't in its place any more: unless it was moved
/// with its journal, all that the connection knows is written to a new file beside `path`, whose
/// folder is made again when it has gone. Says where the data are. CorruptStoreError when they
/// can't be written.
std::string SaveLostFile(SQLite::Database& database, const QString& path);

} // namespace lorvo
