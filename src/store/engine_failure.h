#pragma once
// The engine's failures, raised as the store's own.

struct sqlite3;

namespace SQLite {
class Exception;
}

class QString;

namespace lorvo {

/// Raises the connection's last failure: CorruptStoreError, naming the file, when the file is
/// damaged, StoreError with the reason otherwise.
[[noreturn]] void ThrowFailure(sqlite3* handle);

/// The same for a failure that the engine's wrapper raised over the file at `path`.
[[noreturn]] void ThrowFailure(const SQLite::Exception& failure, const QString& path);

} // namespace lorvo
