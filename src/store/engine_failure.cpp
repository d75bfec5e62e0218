#include "store/engine_failure.h"

#include "platform/file_failure.h"
#include "platform/values/errors.h"
#include "store/database_file.h"

#include <QString>
#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

enum class Kind { Statement, Disk, Damage };

struct Cause {
    Kind kind;
    QStringView text;
    QStringView advice;
};

constexpr QStringView kMakeRoom = u"Uvolněte na něm místo.";
constexpr QStringView kAllowWriting = u"Povolte do něj i do jeho složky zápis.";
constexpr QStringView kLookAtDisk = u"Zkontrolujte disk a jeho připojení.";
constexpr QStringView kEndOtherProgram =
    u"Ukončete program, který s ním pracuje, například zálohování nebo prohlížeč.";
constexpr QStringView kUseCopy = u"Nepracujte s ním dál a použijte kopii ze složky Zálohy.";

Cause CauseOf(int code) {
    switch (code & 0xff) { // extended codes carry the plain one in their low byte
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return {Kind::Damage, u"soubor je poškozený", kUseCopy};
    case SQLITE_FULL:
        return {Kind::Disk, u"na disku není místo", kMakeRoom};
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return {Kind::Disk, u"soubor je jen pro čtení", kAllowWriting};
    case SQLITE_IOERR:
        return {Kind::Disk, u"disk nelze číst nebo na něj zapisovat", kLookAtDisk};
    case SQLITE_CANTOPEN:
        return {Kind::Disk, u"soubor nebo jeho žurnál nelze otevřít", kAllowWriting};
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {Kind::Disk, u"soubor používá jiný program", kEndOtherProgram};
    case SQLITE_NOMEM:
        return {Kind::Disk, u"nedostatek paměti", u"Ukončete jiné programy."};
    case SQLITE_CONSTRAINT:
        return {Kind::Statement, u"hodnota porušuje pravidla tabulky", u""};
    case SQLITE_TOOBIG:
        return {Kind::Statement, u"hodnota je příliš dlouhá", u""};
    default:
        return {Kind::Statement, u"příkaz nelze provést", u""};
    }
}

/// What the system said, where it was the system that failed; else what the engine says of a
/// statement.
QString Details(const Cause& cause, int systemCode, const char* message) {
    if (cause.kind == Kind::Disk && systemCode != 0)
        return u": "_s + CauseOfFailure(systemCode);
    if (cause.kind == Kind::Statement)
        return u" (%1)"_s.arg(QString::fromUtf8(message));
    return {};
}

[[noreturn]] void Throw(int code, int systemCode, const char* message, const QString& path) {
    const Cause cause = CauseOf(code);
    std::string text = AboutFile(path, cause.text.toString() + Details(cause, systemCode, message));
    if (!cause.advice.isEmpty())
        text += ' ' + cause.advice.toString().toStdString();
    switch (cause.kind) {
    case Kind::Damage:
        throw CorruptStoreError(text);
    case Kind::Disk:
        throw DiskError(text);
    case Kind::Statement:
        break;
    }
    throw StoreError(text);
}

/// What the last failed call on an open file left there; null for one that isn't open.
int LastCodeOf(sqlite3_file* file) {
    int code = 0;
    if (file && file->pMethods)
        file->pMethods->xFileControl(file, SQLITE_FCNTL_LAST_ERRNO, &code);
    return code;
}

/// The number behind an input or output failure; other failures leave the one of an earlier call.
int SystemCode(sqlite3* handle, int code) {
    const int plain = code & 0xff;
    if (plain != SQLITE_IOERR && plain != SQLITE_CANTOPEN)
        return 0;
    // The connection forgets the number where a commit failed; the files keep it.
    for (const int place : {SQLITE_FCNTL_JOURNAL_POINTER, SQLITE_FCNTL_FILE_POINTER}) {
        sqlite3_file* file = nullptr;
        sqlite3_file_control(handle, "main", place, &file);
        if (const int found = LastCodeOf(file); found != 0)
            return found;
    }
    return sqlite3_system_errno(handle);
}

} // namespace

void ThrowFailure(sqlite3* handle) {
    const int code = sqlite3_extended_errcode(handle);
    if (CauseOf(code).kind == Kind::Damage)
        LeaveFileAlone(handle);
    Throw(code, SystemCode(handle, code), sqlite3_errmsg(handle),
          QString::fromUtf8(sqlite3_db_filename(handle, "main")));
}

void ThrowFailure(const SQLite::Exception& failure, const QString& path) {
    Throw(failure.getExtendedErrorCode(), 0, failure.what(), path);
}

void LeaveFileAlone(sqlite3* handle) {
    sqlite3_db_config(handle, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    sqlite3_wal_autocheckpoint(handle, 0);
}

bool IsFileLeftAlone(sqlite3* handle) {
    int isLeftAlone = 0;
    sqlite3_db_config(handle, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, -1, &isLeftAlone);
    return isLeftAlone != 0;
}

} // namespace lorvo
