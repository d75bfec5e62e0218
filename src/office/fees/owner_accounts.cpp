#include "office/fees/owner_accounts.h"

#include <algorithm>

namespace lorvo {

OwnerAccounts::OwnerAccounts() : dogs_(DogFeeRows()) {
    std::ranges::stable_sort(dogs_, {}, &DogFeeRow::MajitelID);
}

AccountTotals OwnerAccounts::Of(int majitelID) const {
    AccountTotals totals;
    for (const DogFeeRow& dog :
         std::ranges::equal_range(dogs_, majitelID, {}, &DogFeeRow::MajitelID))
        totals.Add(ledger_.Of(dog, kExhibitorRules));
    return totals;
}

} // namespace lorvo
