#include "store/leftover_journal.h"

#include "platform/file_failure.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"
#include "store/database_file.h"
#include "store/journal_pages.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <set>
#include <sqlite3.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Fields of the file's header, by their places.
constexpr int kVersions = 18; ///< of writing and reading; 2 asks for a write-ahead log
constexpr qsizetype kFirstFreeTrunk = 32;

QString LogOf(const QString& path) {
    return path + u"-wal"_s;
}

QString RollbackOf(const QString& path) {
    return path + u"-journal"_s;
}

/// The first bytes of a file, none where there are fewer. Read by the engine: on POSIX systems a
/// program that opens and closes a file beside it gives up all locks that the engine has on it.
QByteArray StartOf(const QString& path, int length) {
    try {
        const SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY);
        sqlite3_file* file = nullptr;
        sqlite3_file_control(database.getHandle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
        QByteArray start(length, '\0');
        const bool isRead = file->pMethods->xRead(file, start.data(), length, 0) == SQLITE_OK;
        return isRead ? start : QByteArray();
    } catch (const SQLite::Exception&) { // it can't be opened
        return {};
    }
}

/// A file says in its header that it has a log, from before the log is begun until it is gone.
bool SaysItHasLog(const QString& path) {
    return StartOf(path, kVersions + 1).endsWith('\2');
}

bool HasLogOfItsOwn(const QString& path) {
    return QFileInfo(LogOf(path)).size() > 0 && SaysItHasLog(path);
}

QByteArray ReadWhole(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DiskError(AboutFile(path, u"soubor nelze číst: "_s + CauseOfFailure(file)));
    return file.readAll();
}

quint32 Number32(const QByteArray& bytes, qsizetype place) {
    return place + 4 <= bytes.size() ? qFromBigEndian<quint32>(bytes.constData() + place) : 0;
}

/// Pages that no table uses and whose content is of no account: the leaves of the free list.
std::set<quint32> FreePages(const QByteArray& content, qsizetype pageSize) {
    std::set<quint32> pages;
    std::set<quint32> seen;
    quint32 trunk = Number32(content, kFirstFreeTrunk);
    while (trunk != 0 && seen.insert(trunk).second) {
        const qsizetype place = (qsizetype(trunk) - 1) * pageSize;
        const auto count = std::min(Number32(content, place + 4), quint32(pageSize / 4));
        for (quint32 i = 0; i < count; ++i)
            pages.insert(Number32(content, place + 8 + 4 * qsizetype(i)));
        trunk = Number32(content, place);
    }
    return pages;
}

void RequireNoneMissing(const QByteArray& content, const JournalPages& journal, qint64 fileSize,
                        const QString& path) {
    const std::set<quint32> free = FreePages(content, journal.pageSize);
    for (quint32 page = 1; page <= journal.pageCount; ++page) {
        const bool inFile = qint64(page) * journal.pageSize <= fileSize;
        if (!inFile && !journal.pages.contains(page) && !free.contains(page))
            throw CorruptStoreError(AboutFile(path, u"soubor není úplný, jeho konec chybí"_s));
    }
}

} // namespace

bool HasLeftoverJournal(const QString& path) {
    return HasLogOfItsOwn(path) || QFileInfo(RollbackOf(path)).size() > 0;
}

void SetForeignLogAside(const QString& path) {
    if (!SaysItHasLog(path))
        SetLogAside(path);
}

void SetLogAside(const QString& path) {
    if (QFileInfo(LogOf(path)).size() == 0)
        return;
    RenameOver(LogOf(path), path + u".cizí žurnál"_s);
    QFile::remove(path + u"-shm"_s);
}

QByteArray CompletedContent(const QString& path) {
    QByteArray content = ReadWhole(path);
    for (const auto& [journalPath, read] :
         {std::pair(RollbackOf(path), &PagesOfRollback), std::pair(LogOf(path), &PagesOfLog)}) {
        const bool isForeign = journalPath == LogOf(path) && !SaysItHasLog(path);
        if (isForeign || QFileInfo(journalPath).size() == 0)
            continue;
        const JournalPages journal = read(ReadWhole(journalPath));
        if (journal.pageSize == 0)
            continue; // the engine has no use of it either
        const qint64 fileSize = content.size();
        content.resize(journal.pageSize * qsizetype(journal.pageCount), '\0');
        for (const auto& [page, bytes] : journal.pages)
            if (page <= journal.pageCount)
                content.replace((qsizetype(page) - 1) * journal.pageSize, journal.pageSize, bytes);
        RequireNoneMissing(content, journal, fileSize, path);
    }
    if (content.size() > kVersions + 1)
        content[kVersions] = content[kVersions + 1] = '\1';
    return content;
}

} // namespace lorvo
