#include "store/link_table.h"

#include <algorithm>

namespace lorvo {

LinkTable::LinkTable(Rows rows) {
    if (!std::ranges::is_sorted(rows, {}, &Rows::value_type::first))
        std::ranges::stable_sort(rows, {}, &Rows::value_type::first);
    targets_.reserve(rows.size());
    places_.reserve(std::ssize(rows));
    for (const auto& [owner, target] : rows) {
        Place& place = places_[owner];
        if (place.count++ == 0)
            place.first = static_cast<int>(targets_.size());
        targets_.push_back(target);
    }
}

std::vector<int> LinkTable::Owners() const {
    std::vector<int> owners(places_.keyBegin(), places_.keyEnd());
    std::ranges::sort(owners);
    return owners;
}

std::span<const int> LinkTable::Of(int owner) const {
    const Place place = places_.value(owner);
    return std::span(targets_).subspan(static_cast<std::size_t>(place.first),
                                       static_cast<std::size_t>(place.count));
}

} // namespace lorvo
