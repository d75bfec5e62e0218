#include "office/copies/copy_ladder.h"

#include <algorithm>
#include <map>
#include <set>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kNewestKept = 10;
constexpr int kDaysKept = 14;
constexpr int kMonthsKept = 12;

int MonthNumber(DateValue moment) {
    return moment.Year() * 12 + moment.Month();
}

/// Keeps the fullest copy of each group; the newest of equal ones, since newer ones come first.
class GroupKeeper {
  public:
    void Offer(int group, std::size_t position, int rows) {
        const auto [kept, isFirst] = fullest_.try_emplace(group, position, rows);
        if (!isFirst && rows > kept->second.second)
            kept->second = {position, rows};
    }
    void AddTo(std::set<std::size_t>& kept) const {
        for (const auto& [group, copy] : fullest_)
            kept.insert(copy.first);
    }

  private:
    std::map<int, std::pair<std::size_t, int>> fullest_;
};

} // namespace

QString CopyName(DateValue moment) {
    const auto two = [](int number) {
        return QString::number(number).rightJustified(2, u'0');
    };
    return u"data "_s + QString::number(moment.Year()) + u'-' + two(moment.Month()) + u'-' +
           two(moment.Day()) + u' ' + two(moment.Hour()) + u'.' + two(moment.Minute()) + u'.' +
           two(moment.Second()) + u".mdb"_s;
}

std::optional<DateValue> MomentOfCopy(const QString& name) {
    if (name.size() != CopyName(DateValue()).size() || !name.startsWith(u"data "_s))
        return std::nullopt;
    QString iso = name.mid(5, 19);
    iso.replace(u'.', u':');
    const auto moment = DateValue::FromIso(iso.toStdString());
    return moment && CopyName(*moment) == name ? moment : std::nullopt;
}

std::vector<std::size_t> CopiesToDrop(const std::vector<AgedCopy>& copies, DateValue now) {
    std::set<std::size_t> kept;
    GroupKeeper days;
    GroupKeeper months;
    int fullest = -1;
    std::size_t before = 0;
    for (std::size_t i = 0; i < copies.size(); ++i) {
        const auto& [moment, rows] = copies[i];
        const bool isAhead = now < moment;
        if (isAhead || before++ < kNewestKept || rows > fullest)
            kept.insert(i);
        fullest = std::max(fullest, rows);
        if (now.Days() - moment.Days() < kDaysKept)
            days.Offer(moment.Days(), i, rows);
        if (MonthNumber(now) - MonthNumber(moment) < kMonthsKept)
            months.Offer(MonthNumber(moment), i, rows);
    }
    days.AddTo(kept);
    months.AddTo(kept);
    std::vector<std::size_t> dropped;
    for (std::size_t i = 0; i < copies.size(); ++i)
        if (!kept.contains(i))
            dropped.push_back(i);
    return dropped;
}

} // namespace lorvo
