#include "office/fees/owner_accounts.h"

#include <algorithm>

namespace lorvo {

OwnerAccounts::OwnerAccounts() : dogs_(DogFeeRows()) {
    std::ranges::stable_sort(dogs_, {}, &DogFeeRow::MajitelID);
}

AccountTotals OwnerAccounts::Of(int majitelID) const {
    AccountTotals totals;
    for (auto dog = std::ranges::lower_bound(dogs_, majitelID, {}, &DogFeeRow::MajitelID);
         dog != dogs_.end() && dog->MajitelID == majitelID; ++dog)
        totals.Add(ledger_.Of(*dog, kExhibitorRules));
    return totals;
}

} // namespace lorvo
