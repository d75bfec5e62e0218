#include "store/database_file.h"

#include "platform/file_failure.h"
#include "platform/values/errors.h"
#include "store/leftover_journal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QtEndian>
#include <sqlite3.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// The first bytes of every database file of the engine.
constexpr qsizetype kHeaderSize = 100;
const QByteArray kMagic("SQLite format 3\0", 16);

/// Fields of the header, by their places.
constexpr qsizetype kPageSize = 16;
constexpr qsizetype kChangeCounter = 24;
constexpr qsizetype kPageCount = 28;
constexpr qsizetype kCounterOfPageCount = 92;

quint32 Number32(const QByteArray& header, qsizetype place) {
    return qFromBigEndian<quint32>(header.constData() + place);
}

/// Length that the header promises, 0 when it promises none.
qint64 PromisedLength(const QByteArray& header) {
    if (Number32(header, kChangeCounter) != Number32(header, kCounterOfPageCount))
        return 0;
    const auto stored = qFromBigEndian<quint16>(header.constData() + kPageSize);
    const qint64 pageSize = stored == 1 ? 65536 : stored;
    return pageSize * Number32(header, kPageCount);
}

QByteArray ReadHeader(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DiskError(AboutFile(path, u"soubor nelze číst: "_s + CauseOfFailure(file)));
    return file.read(kHeaderSize);
}

void RequireWritable(const QString& path) {
    const QFileInfo info(path);
    if (!info.isWritable())
        throw DiskError(AboutFile(path, u"soubor je jen pro čtení"_s) +
                        " Povolte do něj zápis, nebo program přesuňte tam, kam smíte zapisovat.");
    if (!QFileInfo(info.absolutePath()).isWritable())
        throw DiskError(AboutFile(path, u"do složky souboru nelze zapisovat"_s) +
                        " Povolte do ní zápis, nebo program přesuňte tam, kam smíte zapisovat.");
}

/// What the journal of a few edits takes. Asked for by writing it, since free room that is only
/// reckoned may belong to others.
constexpr int kRoomForEdits = 256 * 1024;

void RequireRoom(const QString& path) {
    QTemporaryFile file(QFileInfo(path).absolutePath() + u"/lorvo-XXXXXX"_s);
    const bool hasRoom = file.open() &&
                         file.write(QByteArray(kRoomForEdits, '\x5a')) == kRoomForEdits &&
                         file.flush();
    if (!hasRoom)
        throw DiskError(
            AboutFile(path, u"do složky souboru nelze zapisovat: "_s + CauseOfFailure(file)) +
            " Uvolněte na disku místo a povolte do složky zápis.");
}

void RequireFile(const QFileInfo& info, const QString& path) {
    if (info.isDir())
        throw StoreError(AboutFile(path, u"na místě souboru je složka téhož jména"_s) +
                         " Přejmenujte ji a vraťte na její místo soubor.");
    if (!info.isFile())
        throw StoreError(AboutFile(path, u"soubor neexistuje"_s) +
                         " Vraťte ho na toto místo, například ze složky Zálohy.");
    if (info.size() == 0)
        throw StoreError(AboutFile(path, u"soubor je prázdný"_s) +
                         " Vraťte na jeho místo kopii, například ze složky Zálohy.");
}

/// What the engine takes for the path of a file and its journal: bytes on the disks of POSIX
/// systems, letters on Windows.
bool IsTooLong(const QString& path) {
    constexpr int kJournal = 8; // "-journal"
#ifdef Q_OS_WIN
    return path.size() + kJournal >= 260;
#else
    return path.toUtf8().size() + kJournal > sqlite3_vfs_find(nullptr)->mxPathname;
#endif
}

void RequireShortPath(const QFileInfo& info, const QString& path) {
    if (IsTooLong(info.absoluteFilePath()))
        throw StoreError(AboutFile(path, u"cesta k souboru je příliš dlouhá"_s) +
                         " Přesuňte program do složky s kratší cestou.");
}

} // namespace

std::string AboutFile(const QString& path, const QString& reason) {
    return u"Databáze %1: %2."_s.arg(QDir::toNativeSeparators(path), reason).toStdString();
}

void RequireDatabaseFile(const QString& path) {
    const QFileInfo info(path);
    RequireFile(info, path);
    RequireShortPath(info, path);
    const QByteArray header = ReadHeader(path);
    if (!header.startsWith(kMagic) && !kMagic.startsWith(header))
        throw StoreError(AboutFile(path, u"soubor není databáze programu Lorvo"_s));
    // What is missing behind the end may still stand in the journal.
    const bool isShort = info.size() < PromisedLength(header) && !HasLeftoverJournal(path);
    if (isShort || header.size() < kHeaderSize)
        throw CorruptStoreError(AboutFile(path, u"soubor není úplný, jeho konec chybí"_s));
    RequireWritable(path);
    RequireRoom(path);
}

} // namespace lorvo
