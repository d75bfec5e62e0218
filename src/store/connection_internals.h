#pragma once
// The inside of the connection, for the store's own files.

#include "store/connection.h"
#include "store/running_statement.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace lorvo {

struct Connection::Impl {
    QString path;
    std::unique_ptr<SQLite::Database> database;
    Schema schema;
    StatementCache cache; ///< goes before the database does

    /// Runs that are under way; inner ones share the outer one's transaction.
    int readRuns = 0;
    int editRuns = 0;
    int editsSinceCommit = 0;
    bool isWhole = false; ///< the edits under way wait for one commit, however many they are
    std::string lostFile; ///< what became of a file that isn't in its place any more

    /// All raise StoreError; also when the connection is shut.
    sqlite3* Handle() const;
    CachedStatement Prepare(const StatementTokens& statement);
    CachedStatement PrepareNative(const std::string& sql);
    /// Called before each edit. Raises DiskError when the file isn't in its place any more; what
    /// was written before is saved first.
    void BeforeEdit();
    /// Called behind each edit: puts it on disk, unless a run of edits shares commits.
    void EditDone();
    /// Counts one more of `runs`, readRuns or editRuns.
    void BeginRun(int& runs);
    void RequireFileInPlace();
    /// Commits what is open and begins what the runs under way need.
    void RenewTransaction();
};

} // namespace lorvo
