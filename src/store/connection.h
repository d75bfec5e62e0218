#pragma once
// The connection to the show's database file.

#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace lorvo {

class Connection {
  public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Opens an existing file. A missing, empty, foreign, truncated or damaged one raises
    /// StoreError that names the file and the reason; neither it nor a journal beside it is
    /// touched. A disk or a folder that takes no edits is found out here (DiskError).
    void Open(const QString& path);
    /// Checkpoints and closes; the folder then holds the file alone, without journals. A file that
    /// was found damaged is not written to: its journal stays.
    void Close();
    bool IsOpen() const;
    QString Path() const;

    struct Impl;
    Impl& Internals() const { return *impl_; } ///< for src/store alone

  private:
    std::unique_ptr<Impl> impl_;
};

/// A run of reads that stands in one read transaction, so that each statement is spared its own.
class ReadRun {
  public:
    explicit ReadRun(Connection& connection);
    ~ReadRun();
    ReadRun(const ReadRun&) = delete;
    ReadRun& operator=(const ReadRun&) = delete;

  private:
    Connection& connection_;
};

/// A long run of single-row edits that share a few commits. What was written before a failure
/// stays written: the destructor commits, whatever ended the run.
class EditRun {
  public:
    explicit EditRun(Connection& connection);
    /// Commits what is pending; a failure here can't be raised any more, so call Finish first.
    ~EditRun();
    EditRun(const EditRun&) = delete;
    EditRun& operator=(const EditRun&) = delete;
    /// Commits; raises StoreError when the edits can't be put on disk.
    void Finish();

  private:
    Connection& connection_;
    bool finished_ = false;
};

/// Runs `statement`; a failure is skipped silently, as the routines are told that skip failing
/// statements. Damage to the file is never skipped, and a failure of the disk is kept to be told.
/// Returns whether it went through.
bool SkipFailure(const std::function<void()>& statement);
/// The first failure of the disk that was skipped since the last call; empty when there was none.
[[nodiscard]] QString TakeSkippedDiskFailure();

/// A text as a literal of a statement: in single quotes, with inner quotes doubled.
std::string Quoted(const QString& text);
/// A whole number as a literal of a statement.
std::string Number(qint64 value);

} // namespace lorvo
