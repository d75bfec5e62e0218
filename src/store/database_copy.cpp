#include "store/database_copy.h"

#include "platform/values/errors.h"
#include "platform/whole_file.h"
#include "store/database_file.h"
#include "store/engine_failure.h"
#include "store/leftover_journal.h"

#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>
#include <functional>
#include <sqlite3.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// What another program may hold a file for before a copy gives up.
constexpr int kBusyMilliseconds = 5000;
/// Pages between which others get the file: a tenth of a megabyte.
constexpr int kPagesPerStep = 25;

SQLite::Database Opened(const QString& path, int flags) {
    if (!(flags & SQLite::OPEN_CREATE) && !QFile::exists(path))
        throw StoreError(AboutFile(path, u"soubor neexistuje"_s));
    return {path.toStdString(), flags, kBusyMilliseconds};
}

/// Runs `work` on a connection of its own that only reads.
template<typename Work> auto OnDatabase(const QString& path, Work work) {
    try {
        const SQLite::Database database = Opened(path, SQLite::OPEN_READONLY);
        return work(database);
    } catch (const SQLite::Exception& failure) {
        ThrowFailure(failure, path);
    }
}

std::int64_t Number(const SQLite::Database& database, const char* sql) {
    SQLite::Statement statement(database, sql);
    return statement.executeStep() ? statement.getColumn(0).getInt64() : 0;
}

DatabaseFigures Figures(const SQLite::Database& database) {
    DatabaseFigures figures;
    figures.dogs = static_cast<int>(Number(database, "SELECT COUNT(*) FROM Psi"));
    figures.owners = static_cast<int>(Number(database, "SELECT COUNT(*) FROM Majitele"));
    figures.payments = static_cast<int>(Number(database, "SELECT COUNT(*) FROM Uhrady"));
    figures.paid = Currency::FromRaw(Number(database, "SELECT SUM(Kc) FROM Uhrady"));
    return figures;
}

/// Copies page after page; the original is read as it stood when the copy began.
void CopyPages(SQLite::Database& target, SQLite::Database& source) {
    sqlite3_backup* const backup =
        sqlite3_backup_init(target.getHandle(), "main", source.getHandle(), "main");
    if (!backup)
        throw SQLite::Exception(target.getHandle());
    int code = SQLITE_OK;
    while (code == SQLITE_OK)
        code = sqlite3_backup_step(backup, kPagesPerStep);
    sqlite3_backup_finish(backup);
    if (code != SQLITE_DONE)
        throw SQLite::Exception(target.getHandle(), code);
}

void CopyTo(const QString& targetPath, SQLite::Database& source) {
    SQLite::Database target = Opened(targetPath, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    CopyPages(target, source);
    // The copy stands alone: without a log beside it when it is opened where nothing can be
    // written.
    target.exec("PRAGMA journal_mode=DELETE");
}

/// Returns the figures of the original at the moment that the copy shows.
DatabaseFigures CopyAll(const QString& sourcePath, const QString& targetPath) {
    SQLite::Database source = Opened(sourcePath, SQLite::OPEN_READONLY);
    source.exec("BEGIN");
    const DatabaseFigures figures = Figures(source);
    CopyTo(targetPath, source);
    return figures;
}

void SyncFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !SyncToDisk(file))
        throw StoreError(AboutFile(path, u"kopii nelze zapsat na disk"_s));
}

void RemoveWithJournals(const QString& path) {
    for (const QString& ending : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s})
        QFile::remove(path + ending);
}

void RequireNoFile(const QString& target) {
    if (QFile::exists(target))
        throw StoreError(AboutFile(target, u"soubor toho jména už je"_s));
}

/// Runs `copy`, which writes `target`, and syncs that; failures of the engine are told of `about`.
void MakeWhole(const QString& about, const QString& target, const std::function<void()>& copy) {
    try {
        copy();
        SyncFile(target);
    } catch (const SQLite::Exception& failure) {
        RemoveWithJournals(target);
        ThrowFailure(failure, about);
    } catch (...) {
        RemoveWithJournals(target);
        throw;
    }
}

} // namespace

DatabaseFigures FiguresOfDatabase(const QString& path) {
    return OnDatabase(path, Figures);
}

void RequireWholeDatabase(const QString& path) {
    OnDatabase(path, [&path](const SQLite::Database& database) {
        SQLite::Statement check(database, "PRAGMA integrity_check(1)");
        const std::string found = check.executeStep() ? check.getColumn(0).getString() : "";
        if (found != "ok")
            throw CorruptStoreError(
                AboutFile(path, u"soubor je poškozený ("_s + QString::fromStdString(found) + u')'));
    });
}

void CopyDatabase(const QString& source, const QString& target) {
    RequireNoFile(target);
    SetForeignLogAside(source);
    MakeWhole(source, target, [&] {
        const DatabaseFigures figures = CopyAll(source, target);
        RequireWholeDatabase(target);
        if (FiguresOfDatabase(target) != figures)
            throw StoreError(AboutFile(target, u"kopie se neshoduje s originálem"_s));
    });
}

void CopyOpenDatabase(SQLite::Database& source, const QString& target) {
    RequireNoFile(target);
    MakeWhole(target, target, [&] {
        CopyTo(target, source);
        RequireWholeDatabase(target);
    });
}

std::map<int, QString> RowsOfDatabase(const QString& path, std::string_view table) {
    return OnDatabase(path, [table](const SQLite::Database& database) {
        std::map<int, QString> rows;
        SQLite::Statement query(database, "SELECT * FROM " + std::string(table));
        while (query.executeStep()) {
            QStringList fields;
            for (int i = 1; i < query.getColumnCount(); ++i)
                fields << QString::fromUtf8(query.getColumn(i).getText());
            rows.emplace(query.getColumn(0).getInt(), fields.join(u'\n'));
        }
        return rows;
    });
}

} // namespace lorvo
