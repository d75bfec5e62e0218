#include "store/journal_pages.h"

#include <QtEndian>

namespace lorvo {

namespace {

quint32 Number32(const QByteArray& bytes, qsizetype place) {
    return qFromBigEndian<quint32>(bytes.constData() + place);
}

bool IsPageSize(quint32 size) {
    return size >= 512 && size <= 65536 && (size & (size - 1)) == 0;
}

// Write-ahead log ---------------------------------------------------------------------------------

constexpr qsizetype kLogHeader = 32;
constexpr qsizetype kFrameHeader = 24;
constexpr quint32 kLogMagic = 0x377f0682; ///< its lowest bit says how the sums are reckoned

/// The log's running sum over all that came before.
class LogSum {
  public:
    explicit LogSum(bool bigEndian) : bigEndian_(bigEndian) {}

    void Add(const char* bytes, qsizetype length) {
        for (qsizetype i = 0; i + 8 <= length; i += 8) {
            first_ += Word(bytes + i) + second_;
            second_ += Word(bytes + i + 4) + first_;
        }
    }
    bool Is(const QByteArray& log, qsizetype place) const {
        return Number32(log, place) == first_ && Number32(log, place + 4) == second_;
    }

  private:
    quint32 Word(const char* bytes) const {
        return bigEndian_ ? qFromBigEndian<quint32>(bytes) : qFromLittleEndian<quint32>(bytes);
    }

    bool bigEndian_;
    quint32 first_ = 0;
    quint32 second_ = 0;
};

// Rollback journal --------------------------------------------------------------------------------

const QByteArray kRollbackMagic = QByteArray::fromHex("d9d505f920a163d7");
constexpr qsizetype kRollbackHeader = 28;
constexpr quint32 kCountBySize = 0xffffffff;

struct RollbackHeader {
    quint32 count;
    quint32 nonce;
    quint32 pageCount;
    quint32 sectorSize;
    quint32 pageSize;
};

bool ReadHeader(const QByteArray& journal, qsizetype place, RollbackHeader& header) {
    if (place + kRollbackHeader > journal.size() ||
        journal.mid(place, kRollbackMagic.size()) != kRollbackMagic)
        return false;
    header = {Number32(journal, place + 8), Number32(journal, place + 12),
              Number32(journal, place + 16), Number32(journal, place + 20),
              Number32(journal, place + 24)};
    return true;
}

/// The engine sums only a few bytes of each page.
quint32 RollbackSum(const QByteArray& page, quint32 nonce) {
    quint32 sum = nonce;
    for (qsizetype i = page.size() - 200; i > 0; i -= 200)
        sum += static_cast<quint8>(page[i]);
    return sum;
}

/// Takes the records behind one header; the place behind them, or -1 at the first that is torn.
qsizetype TakeRecords(const QByteArray& journal, qsizetype place, const RollbackHeader& header,
                      JournalPages& found) {
    const qsizetype length = found.pageSize + 8;
    const auto bySize = static_cast<quint32>((journal.size() - place) / length);
    const quint32 count = header.count == kCountBySize ? bySize : header.count;
    for (quint32 i = 0; i < count; ++i, place += length) {
        if (place + length > journal.size())
            return -1;
        const QByteArray page = journal.mid(place + 4, found.pageSize);
        if (RollbackSum(page, header.nonce) != Number32(journal, place + 4 + found.pageSize))
            return -1;
        found.pages.emplace(Number32(journal, place), page); // the first kept is the oldest
    }
    return place;
}

} // namespace

JournalPages PagesOfLog(const QByteArray& log) {
    JournalPages found;
    if (log.size() < kLogHeader || (Number32(log, 0) & ~1U) != kLogMagic)
        return found;
    const quint32 pageSize = Number32(log, 8);
    LogSum sum(Number32(log, 0) & 1U);
    sum.Add(log.constData(), kLogHeader - 8);
    if (!IsPageSize(pageSize) || !sum.Is(log, kLogHeader - 8))
        return found;
    const qsizetype frameSize = kFrameHeader + qsizetype(pageSize);
    const QByteArray salts = log.mid(16, 8);
    std::map<quint32, QByteArray> pending;
    for (qsizetype at = kLogHeader; at + frameSize <= log.size(); at += frameSize) {
        sum.Add(log.constData() + at, 8);
        sum.Add(log.constData() + at + kFrameHeader, qsizetype(pageSize));
        if (log.mid(at + 8, 8) != salts || !sum.Is(log, at + 16))
            break;
        pending[Number32(log, at)] = log.mid(at + kFrameHeader, qsizetype(pageSize));
        if (const quint32 pageCount = Number32(log, at + 4); pageCount != 0) {
            found.pageSize = qsizetype(pageSize);
            found.pageCount = pageCount;
            for (auto& [page, bytes] : pending)
                found.pages[page] = std::move(bytes);
            pending.clear();
        }
    }
    return found;
}

JournalPages PagesOfRollback(const QByteArray& journal) {
    JournalPages found;
    RollbackHeader header;
    for (qsizetype place = 0; ReadHeader(journal, place, header);) {
        if (place == 0) {
            if (!IsPageSize(header.pageSize) || !IsPageSize(header.sectorSize))
                return found;
            found.pageSize = qsizetype(header.pageSize);
            found.pageCount = header.pageCount;
        }
        const qsizetype sector = qsizetype(header.sectorSize);
        const qsizetype end = TakeRecords(journal, place + sector, header, found);
        if (end < 0 || sector == 0)
            break;
        place = (end + sector - 1) / sector * sector;
    }
    return found;
}

} // namespace lorvo
