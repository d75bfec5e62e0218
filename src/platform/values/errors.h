#pragma once
// The failures that cross the program's floors. Each carries what failed and on what, worded so
// that the text can stand in a message box as it is.

#include <stdexcept>
#include <string>

namespace lorvo {

/// Base of every failure that the program raises itself. what() is UTF-8.
class Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The store refused or could not carry out a statement.
class StoreError : public Error {
  public:
    using Error::Error;
};

/// The database file itself can't be trusted any more: damaged, truncated, not a database.
/// Never skipped by routines that skip failing statements.
class CorruptStoreError : public StoreError {
  public:
    using StoreError::StoreError;
};

/// The disk or the file's other users stood in the way: no room, no rights, a failing disk, a lock
/// that was not given up. Skipped where failures are skipped, but never without a word.
class DiskError : public StoreError {
  public:
    using StoreError::StoreError;
};

/// A service of the desktop (file, locale, word processor, ...) failed.
class PlatformError : public Error {
  public:
    using Error::Error;
};

/// A value doesn't fit its type: a currency amount or a date out of range.
class RangeError : public Error {
  public:
    using Error::Error;
};

} // namespace lorvo
