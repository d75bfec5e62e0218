// Runs of reads and of edits, and the transactions behind them.

#include "platform/values/errors.h"
#include "store/connection_internals.h"
#include "store/engine_failure.h"
#include "store/file_in_place.h"
#include "store/lock_wait.h"

#include <sqlite3.h>

namespace lorvo {

namespace {

/// A run over 25,000 rows commits three times; a kill in between costs at most these edits, which
/// no window has shown as done yet.
constexpr int kEditsPerCommit = 10000;

void Run(sqlite3* handle, const char* sql) {
    const int code = sqlite3_exec(handle, sql, nullptr, nullptr, nullptr);
    EndLockWait();
    if (code != SQLITE_OK)
        ThrowFailure(handle);
}

/// A commit that fails is given up, so that the connection isn't stuck in its transaction.
void Commit(sqlite3* handle) {
    try {
        Run(handle, "COMMIT");
    } catch (const StoreError&) {
        if (!sqlite3_get_autocommit(handle))
            sqlite3_exec(handle, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

} // namespace

void Connection::Impl::RequireFileInPlace() {
    Handle();
    if (lostFile.empty() && !IsFileInPlace(*database))
        lostFile = SaveLostFile(*database, path);
    if (!lostFile.empty())
        throw DiskError(lostFile);
}

// A run looks once for each of its commits.
void Connection::Impl::BeforeEdit() {
    if (editRuns == 0)
        RequireFileInPlace();
}

void Connection::Impl::RenewTransaction() {
    sqlite3* const handle = Handle();
    editsSinceCommit = 0;
    if (!sqlite3_get_autocommit(handle)) // the engine ends one itself on some failures
        Commit(handle);
    if (editRuns > 0) {
        RequireFileInPlace();
        Run(handle, "BEGIN IMMEDIATE");
    }
    if (editRuns == 0 && readRuns > 0)
        Run(handle, "BEGIN");
}

void Connection::Impl::EditDone() {
    const bool isOpenForReading = editRuns == 0 && readRuns > 0;
    const bool isFull = editRuns > 0 && !isWhole && ++editsSinceCommit == kEditsPerCommit;
    if (isOpenForReading || isFull)
        RenewTransaction();
}

void Connection::Impl::BeginRun(int& runs) {
    const bool isOutermost = ++runs == 1 && (&runs == &editRuns || editRuns == 0);
    if (!isOutermost)
        return;
    try {
        RenewTransaction();
    } catch (...) {
        --runs;
        throw;
    }
}

ReadRun::ReadRun(Connection& connection) : connection_(connection) {
    Connection::Impl& inside = connection.Internals();
    inside.BeginRun(inside.readRuns);
}

ReadRun::~ReadRun() {
    Connection::Impl& inside = connection_.Internals();
    // Closing the connection has ended its runs.
    if (inside.readRuns == 0 || --inside.readRuns > 0 || inside.editRuns > 0)
        return;
    try {
        inside.RenewTransaction();
    } catch (const StoreError&) { // nothing was written; the end of a reading loses nothing
    }
}

EditRun::EditRun(Connection& connection) : connection_(connection) {
    Connection::Impl& inside = connection.Internals();
    inside.BeginRun(inside.editRuns);
}

EditRun::~EditRun() {
    try {
        Finish();
    } catch (const StoreError&) { // who must hear of it has called Finish
    }
}

void EditRun::Finish() {
    if (finished_)
        return;
    finished_ = true;
    Connection::Impl& inside = connection_.Internals();
    if (inside.editRuns > 0 && --inside.editRuns == 0)
        inside.RenewTransaction();
}

} // namespace lorvo
