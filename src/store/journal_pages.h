#pragma once
// The two kinds of journal that the engine leaves behind when it is killed, taken apart.

#include <QByteArray>
#include <map>

namespace lorvo {

/// The pages that count, by their numbers from 1, and how many the file then has. A page size of 0
/// says that the journal holds nothing that counts.
struct JournalPages {
    qsizetype pageSize = 0;
    quint32 pageCount = 0;
    std::map<quint32, QByteArray> pages;
};

/// The pages of a write-ahead log up to its last commit.
JournalPages PagesOfLog(const QByteArray& log);

/// The earlier pages that a rollback journal kept of an edit that wasn't finished.
JournalPages PagesOfRollback(const QByteArray& journal);

} // namespace lorvo
