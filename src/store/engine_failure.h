#pragma once
// The engine's failures, raised as the store's own.

struct sqlite3;

namespace SQLite {
class Exception;
}

class QString;

namespace lorvo {

/// Raises the connection's last failure with the file, the cause and what to do: CorruptStoreError
/// when the file is damaged, which from then on is not written to by this connection; DiskError
/// when the disk or another program stands in the way; StoreError otherwise.
[[noreturn]] void ThrowFailure(sqlite3* handle);

/// The same for a failure that the engine's wrapper raised over the file at `path`.
[[noreturn]] void ThrowFailure(const SQLite::Exception& failure, const QString& path);

/// Sees to it that closing the connection doesn't write to the file: its journal stays.
void LeaveFileAlone(sqlite3* handle);
/// Whether that has been asked for.
[[nodiscard]] bool IsFileLeftAlone(sqlite3* handle);

} // namespace lorvo
