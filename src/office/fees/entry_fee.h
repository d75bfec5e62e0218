#pragma once
// What a dog owes: looked up afresh from the fee table of each show, never stored with the dog.
// Standard library alone.

#include "platform/values/money.h"

#include <functional>
#include <span>
#include <string>

namespace lorvo {

/// What of a dog its fee depends on.
struct FeeDog {
    int trida = 0;
    bool firstClosing = false;
    bool firstDog = false;     ///< the first dog of its owner
    bool specialBreed = false; ///< a German shepherd
};

/// Which column of the fee table a class pays from. The dog panel alone gives the special breed's
/// classes columns of their own; every other reader takes the class code as it is.
enum class FeeClassRule { AsStored, SpecialBreedColumns };

/// The class digit of the fee column; a class without a rule of its own is its own column.
int FeeClassColumn(const FeeDog& dog, FeeClassRule rule);

struct EntryFee {
    std::string showName;
    Currency fee;
};

/// Reads name and one fee of a show; raises what the store raises when either is missing.
using FeeLookup =
    std::function<EntryFee(int vystavaID, bool firstClosing, int classColumn, bool firstDog)>;

/// Fee of one entry of a dog in a show, with the show's name.
EntryFee DogFee(const FeeDog& dog, int vystavaID, FeeClassRule rule, const FeeLookup& lookup);

/// Exact; RangeError on overflow, as all sums here.
Currency SumOf(std::span<const Currency> amounts);

/// Payments less everything that the dog owes: negative means arrears, positive an overpayment.
Currency Balance(Currency paid, std::span<const Currency> showFees, Currency competitionFees);

/// The balance as the dog panel has it: of several shows only the last one's fee is taken off, and
/// what was paid counts only for a dog that stands in a show.
Currency LastShowBalance(Currency paid, std::span<const Currency> showFees,
                         Currency competitionFees);

} // namespace lorvo
