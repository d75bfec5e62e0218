#pragma once
// What each exhibitor owes and has paid, for all exhibitors at once.

#include "platform/values/money.h"
#include "store/psi_lists.h"
#include "store/vystavy.h"

#include <unordered_map>
#include <vector>

namespace lorvo {

struct ExhibitorFigures {
    int dogs = 0;
    Currency fees;                                   ///< of shows and competitions
    Currency paid;                                   ///< in the main currency
    Currency Balance() const { return paid - fees; } ///< negative means arrears
};

/// Reads what the figures of all exhibitors need: a few statements, however many exhibitors there
/// are. Raises StoreError when the store refuses.
class ExhibitorTables {
  public:
    ExhibitorTables();

    /// Figures over the owner's dogs. The class goes into the fee column as it stands, in the
    /// special breed too; a competition counts once per dog, however often it is entered. Raises
    /// StoreError when a fee is Null or its column or show is missing, and RangeError on overflow.
    ExhibitorFigures Of(int majitelID) const;

  private:
    void AddDog(const DogFeeRow& dog, ExhibitorFigures& figures) const;
    Currency CompetitionFees(int psiID) const;

    FeeTables fees_;
    std::vector<DogFeeRow> dogs_; ///< by owner, and those of one owner by their IDs
    std::unordered_map<int, std::vector<int>> showsByDog_;
    std::unordered_map<int, std::vector<int>> competitionsByDog_;
    std::unordered_map<int, Currency> paidByDog_;
    std::unordered_map<int, Currency> prices_; ///< by the competition's ID; Null is 0
};

} // namespace lorvo
