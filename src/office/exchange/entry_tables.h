#pragma once
// What the database holds that entries from a table are judged against, read once.

#include "platform/values/date_value.h"
#include "store/majitele.h"

#include <map>
#include <optional>
#include <set>

namespace lorvo {

/// Name and surname, wherever each of them was written.
QString WholeName(const Majitele& owner);

/// Names are folded: accents, letter case and doubled blanks don't tell them apart.
struct EntryTables {
    /// `show` is what rows without one enter (0: none), `day` the day on which rows
    /// without a day came. Raises StoreError when the store refuses.
    EntryTables(int show, DateValue day);

    int vystavaID;
    DateValue today;
    DateValue showDay; ///< the date value 0 as long as none is set
    std::optional<DateValue> firstClosing;
    std::optional<DateValue> secondClosing;
    std::multimap<QString, int> breedsByName; ///< Czech and original names
    std::set<int> judgedBreeds;               ///< those that have a place in the tree
    std::multimap<QString, Majitele> ownersByName;
    std::map<QString, int> shows;
    std::map<QString, int> competitions;
};

} // namespace lorvo
