#pragma once
// The accounts of all owners at once.

#include "office/fees/ledger.h"

namespace lorvo {

/// Reads what the accounts of all owners need: a few statements, however many owners there are.
/// Raises StoreError when the store refuses.
class OwnerAccounts {
  public:
    OwnerAccounts();

    /// Over the owner's dogs, by the exhibitors' rules. Raises as ShowLedger::Of does.
    AccountTotals Of(int majitelID) const;

  private:
    ShowLedger ledger_;
    std::vector<DogFeeRow> dogs_; ///< by owner, and those of one owner by their IDs
};

} // namespace lorvo
