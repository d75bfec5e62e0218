#include "office/fees/entry_fee.h"

#include <array>
#include <numeric>

namespace lorvo {

namespace {

// Columns of the special breed's classes 1 to 4. The adolescents have the column that no ordinary
// class uses.
constexpr std::array<int, 4> kSpecialBreedColumns = {2, 3, 9, 7};

} // namespace

int FeeClassColumn(const FeeDog& dog, FeeClassRule rule) {
    const bool mapped = rule == FeeClassRule::SpecialBreedColumns && dog.specialBreed &&
                        dog.trida >= 1 &&
                        dog.trida <= static_cast<int>(kSpecialBreedColumns.size());
    return mapped ? kSpecialBreedColumns[static_cast<std::size_t>(dog.trida - 1)] : dog.trida;
}

EntryFee DogFee(const FeeDog& dog, int vystavaID, FeeClassRule rule, const FeeLookup& lookup) {
    return lookup(vystavaID, dog.firstClosing, FeeClassColumn(dog, rule), dog.firstDog);
}

Currency SumOf(std::span<const Currency> amounts) {
    return std::accumulate(amounts.begin(), amounts.end(), Currency());
}

Currency Balance(Currency paid, std::span<const Currency> showFees, Currency competitionFees) {
    return paid - SumOf(showFees) - competitionFees;
}

Currency LastShowBalance(Currency paid, std::span<const Currency> showFees,
                         Currency competitionFees) {
    const Currency shows = showFees.empty() ? Currency() : paid - showFees.back();
    return shows - competitionFees;
}

} // namespace lorvo
