#pragma once
// Long lists put in order here instead of by the engine, whose sorter carries whole rows about and
// takes twice the time. For src/store alone.

#include "store/czech_order.h"
#include "store/query.h"

#include <QString>
#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>
#include <string>
#include <tuple>
#include <vector>

namespace lorvo {

/// The rows by their places, `places[i]` being that of `rows[i]`. Rows of one place stay in the
/// order in which they were read.
template<class Row, class Place>
std::vector<Row> InOrder(std::vector<Row> rows, const std::vector<Place>& places) {
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::ranges::stable_sort(
        order, [&](std::size_t left, std::size_t right) { return places[left] < places[right]; });
    std::vector<Row> ordered;
    ordered.reserve(rows.size());
    for (const std::size_t from : order)
        ordered.push_back(std::move(rows[from]));
    return ordered;
}

/// The place of a row by a name in Czech order; a Null stands before an empty one.
struct NamePlace {
    bool hasName = false;
    std::uint64_t start = 0; ///< the key's first bytes as a number, which tells most names apart
    std::string key;

    NamePlace(const Query& row, int column, const QString& name)
        : hasName(!row.IsNull(column)), key(CzechKey(name)) {
        for (std::size_t byte = 0; byte < sizeof start; ++byte)
            start = start << 8 | (byte < key.size() ? static_cast<unsigned char>(key[byte]) : 0U);
    }
    auto operator<=>(const NamePlace&) const = default;
};

/// The place of a dog by breed, sex, class and name. Names are compared only among dogs that are
/// alike in the rest, which takes a fraction of the time that keys of all names take.
struct BreedPlace {
    std::tuple<int, int, int, bool> place;
    QString name;

    struct Columns {
        int plemenoID, pohlaviPes, trida, jmeno;
    };
    BreedPlace(const Query& row, Columns columns, const QString& dogName)
        : place(Number(row, columns.plemenoID), row.Bool(columns.pohlaviPes) ? -1 : 0,
                Number(row, columns.trida), !row.IsNull(columns.jmeno)),
          name(dogName) {}
    bool operator<(const BreedPlace& other) const {
        return place != other.place ? place < other.place : CompareCzech(name, other.name) < 0;
    }

  private:
    /// A Null stands before every number.
    static int Number(const Query& row, int column) {
        return row.IsNull(column) ? std::numeric_limits<int>::min() : row.Int(column);
    }
};

} // namespace lorvo
