#include "store/connection.h"

#include "platform/values/errors.h"
#include "store/connection_internals.h"
#include "store/database_file.h"
#include "store/engine_failure.h"
#include "store/file_in_place.h"
#include "store/leftover_journal.h"
#include "store/lock_wait.h"
#include "store/show_file.h"
#include "store/sql_functions.h"

#include <sqlite3.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kBusyMillisecondsAtEnd = 200; ///< nobody waits gladly for a window to close

constexpr int kPagesPerCheckpoint = 1000; ///< the engine's own measure

/// The first failure of the disk that was skipped and that nobody has been told of.
QString skippedDiskFailure;

using DatabasePointer = std::unique_ptr<SQLite::Database>;

DatabasePointer OpenForWork(const QString& path) {
    auto database = std::make_unique<SQLite::Database>(path.toStdString(),
                                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX);
    WaitForLocks(database->getHandle());
    LeaveFileAlone(database->getHandle()); // until it is found whole
    sqlite3_db_config(database->getHandle(), SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    database->exec("PRAGMA cell_size_check = ON");
    database->exec("PRAGMA cache_size = -16000"); // kilobytes: a world show stays in memory whole
    return database;
}

/// Write-ahead logging makes a single edit durable by one sync of the disk.
void StartWriting(SQLite::Database& database) {
    database.exec("PRAGMA journal_mode = WAL");
    database.exec("PRAGMA synchronous = FULL");
    sqlite3_db_config(database.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    sqlite3_wal_autocheckpoint(database.getHandle(), kPagesPerCheckpoint);
    RegisterSqlFunctions(database.getHandle());
}

/// Moves the journal into the file and gives it up. Where another program reads the file, the
/// journal stays, and the next start takes it up.
void StopWriting(SQLite::Database& database) {
    sqlite3_busy_timeout(database.getHandle(), kBusyMillisecondsAtEnd);
    try {
        database.exec("PRAGMA wal_checkpoint(TRUNCATE)");
        database.exec("PRAGMA journal_mode = DELETE");
    } catch (const SQLite::Exception& failure) {
        const int code = failure.getErrorCode();
        if (code != SQLITE_BUSY && code != SQLITE_LOCKED)
            throw;
    }
}

/// Shuts the connection. Its log would be taken for that of the file that came in the place of its
/// own.
void LeaveLostFile(DatabasePointer& database, const QString& path, bool isSaved) {
    LeaveFileAlone(database->getHandle());
    if (!isSaved)
        SaveLostFile(*database, path);
    database.reset();
    SetLogAside(path);
}

} // namespace

Connection::Connection() : impl_(std::make_unique<Impl>()) {}

Connection::~Connection() {
    try {
        Close();
    } catch (const Error&) { // the edits are in the journal; the next start takes them up
    }
}

void Connection::Open(const QString& path) {
    Close();
    DatabasePointer database;
    try {
        RequireShow(path);
        SetForeignLogAside(path);
        database = OpenForWork(path);
        Schema schema = ReadSchema(*database);
        StartWriting(*database);
        EndLockWait();
        impl_->database = std::move(database);
        impl_->schema = std::move(schema);
        impl_->path = path;
    } catch (const SQLite::Exception& failure) {
        EndLockWait();
        if (database && sqlite3_errcode(database->getHandle()) == failure.getErrorCode())
            ThrowFailure(database->getHandle());
        ThrowFailure(failure, path);
    }
}

void Connection::Close() {
    if (!IsOpen())
        return;
    // Whatever happens on the way, the connection is shut at the end.
    auto database = std::move(impl_->database);
    impl_->cache.Clear();
    impl_->readRuns = impl_->editRuns = impl_->editsSinceCommit = 0;
    const bool isSaved = !std::exchange(impl_->lostFile, {}).empty();
    try {
        if (!sqlite3_get_autocommit(database->getHandle()))
            database->exec("COMMIT");
        if (!IsFileInPlace(*database))
            LeaveLostFile(database, impl_->path, isSaved);
        else if (!IsFileLeftAlone(database->getHandle()))
            StopWriting(*database);
    } catch (const SQLite::Exception& failure) {
        ThrowFailure(failure, impl_->path);
    }
}

bool Connection::IsOpen() const {
    return impl_->database != nullptr;
}

QString Connection::Path() const {
    return impl_->path;
}

sqlite3* Connection::Impl::Handle() const {
    if (!database)
        throw StoreError("Databáze není otevřena.");
    return database->getHandle();
}

CachedStatement Connection::Impl::Prepare(const StatementTokens& statement) {
    return cache.Translated(statement, schema, Handle());
}

CachedStatement Connection::Impl::PrepareNative(const std::string& sql) {
    return cache.Native(sql, Handle());
}

bool SkipFailure(const std::function<void()>& statement) {
    try {
        statement();
        return true;
    } catch (const CorruptStoreError&) {
        throw;
    } catch (const DiskError& error) {
        if (skippedDiskFailure.isEmpty())
            skippedDiskFailure = QString::fromUtf8(error.what());
        return false;
    } catch (const Error&) {
        return false;
    }
}

QString TakeSkippedDiskFailure() {
    return std::exchange(skippedDiskFailure, QString());
}

std::string Quoted(const QString& text) {
    QString doubled = text;
    doubled.replace(u'\'', u"''"_s);
    return '\'' + doubled.toStdString() + '\'';
}

std::string Number(qint64 value) {
    return std::to_string(value);
}

} // namespace lorvo
