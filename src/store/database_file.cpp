#include "store/database_file.h"

#include "platform/values/errors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace lorvo {

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
        throw StoreError(AboutFile(path, u"soubor nelze číst: "_qs + file.errorString()));
    return file.read(kHeaderSize);
}

void RequireWritable(const QString& path) {
    const QFileInfo info(path);
    if (!info.isWritable())
        throw StoreError(AboutFile(path, u"soubor je jen pro čtení"_qs));
    if (!QFileInfo(info.absolutePath()).isWritable())
        throw StoreError(AboutFile(path, u"do složky souboru nelze zapisovat"_qs));
}

} // namespace

std::string AboutFile(const QString& path, const QString& reason) {
    return u"Databáze %1: %2."_qs.arg(QDir::toNativeSeparators(path), reason).toStdString();
}

bool HasLeftoverJournal(const QString& path) {
    return QFileInfo(path + u"-wal"_qs).size() > 0 || QFileInfo(path + u"-journal"_qs).size() > 0;
}

void RequireDatabaseFile(const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile())
        throw StoreError(AboutFile(path, u"soubor neexistuje"_qs));
    if (info.size() == 0)
        throw StoreError(AboutFile(path, u"soubor je prázdný"_qs));
    const QByteArray header = ReadHeader(path);
    if (!header.startsWith(kMagic) && !kMagic.startsWith(header))
        throw StoreError(AboutFile(path, u"soubor není databáze programu Lorvo"_qs));
    // What is missing behind the end may still stand in the journal.
    const bool isShort = header.size() < kHeaderSize || info.size() < PromisedLength(header);
    if (isShort && !HasLeftoverJournal(path))
        throw CorruptStoreError(AboutFile(path, u"soubor není úplný, jeho konec chybí"_qs));
    RequireWritable(path);
}

} // namespace lorvo
