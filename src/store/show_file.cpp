#include "store/show_file.h"

#include "platform/values/errors.h"
#include "store/database_file.h"
#include "store/leftover_journal.h"
#include "store/schema.h"

#include <QUrl>
#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <array>
#include <memory>
#include <sqlite3.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kShowTables = {"Barvy",          "Kruhy",   "Plemena",   "Psi",
                                    "Vazby_Trida",    "Ostatni", "Majitele",  "Souteze",
                                    "Vazby_Souteze",  "Meny",    "Uhrady",    "Vystavy",
                                    "PsiVeVystavach", "Oceneni", "PsiOceneni"};

using DatabasePointer = std::unique_ptr<SQLite::Database>;

/// Reads the file as it lies there, with no lock and no journal, so that a file that isn't
/// accepted stays untouched.
DatabasePointer OpenForChecking(const QString& path) {
    const QByteArray uri = QUrl::fromLocalFile(path).toEncoded() + "?immutable=1";
    return std::make_unique<SQLite::Database>(uri.toStdString(),
                                              SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

/// `content`, which outlives it, as a database in memory.
DatabasePointer OpenInMemory(QByteArray& content) {
    auto database = std::make_unique<SQLite::Database>(":memory:", SQLITE_OPEN_READWRITE);
    auto* bytes = reinterpret_cast<unsigned char*>(content.data());
    database->check(sqlite3_deserialize(database->getHandle(), "main", bytes, content.size(),
                                        content.size(), SQLITE_DESERIALIZE_READONLY));
    return database;
}

void RequireShowTables(const Schema& schema, const QString& path) {
    const bool hasAny = std::any_of(kShowTables.begin(), kShowTables.end(), [&](const char* name) {
        return schema.FindTable(name) != nullptr;
    });
    if (!hasAny)
        throw StoreError(AboutFile(path, u"v souboru není žádná tabulka programu Lorvo"_s));
}

/// Every page that a table or an index uses can be read and makes sense.
void RequireWholePages(SQLite::Database& database, const QString& path) {
    SQLite::Statement check(database, "PRAGMA quick_check(1)");
    if (!check.executeStep() || check.getColumn(0).getString() != "ok")
        throw CorruptStoreError(AboutFile(path, u"soubor je poškozený"_s));
}

} // namespace

void RequireShow(const QString& path) {
    RequireDatabaseFile(path);
    if (!HasLeftoverJournal(path)) {
        RequireShowTables(ReadSchema(*OpenForChecking(path)), path);
        return;
    }
    QByteArray content = CompletedContent(path);
    const DatabasePointer completed = OpenInMemory(content);
    RequireShowTables(ReadSchema(*completed), path);
    RequireWholePages(*completed, path);
}

} // namespace lorvo
