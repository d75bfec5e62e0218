#include "store/engine_failure.h"

#include "platform/values/errors.h"
#include "store/database_file.h"

#include <QString>
#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

namespace lorvo {

namespace {

QString Reason(int code, const char* message) {
    switch (code & 0xff) { // extended codes carry the plain one in their low byte
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return u"soubor je poškozený"_qs;
    case SQLITE_FULL:
        return u"na disku není místo"_qs;
    case SQLITE_READONLY:
        return u"soubor je jen pro čtení"_qs;
    case SQLITE_IOERR:
        return u"disk nelze číst nebo na něj zapisovat"_qs;
    case SQLITE_CANTOPEN:
        return u"soubor nebo jeho žurnál nelze otevřít"_qs;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return u"soubor používá jiný program"_qs;
    default:
        return QString::fromUtf8(message);
    }
}

[[noreturn]] void Throw(int code, const char* message, const QString& path) {
    const std::string text = AboutFile(path, Reason(code, message));
    const int plain = code & 0xff;
    if (plain == SQLITE_CORRUPT || plain == SQLITE_NOTADB)
        throw CorruptStoreError(text);
    throw StoreError(text);
}

} // namespace

void ThrowFailure(sqlite3* handle) {
    Throw(sqlite3_extended_errcode(handle), sqlite3_errmsg(handle),
          QString::fromUtf8(sqlite3_db_filename(handle, "main")));
}

void ThrowFailure(const SQLite::Exception& failure, const QString& path) {
    Throw(failure.getExtendedErrorCode(), failure.what(), path);
}

} // namespace lorvo
