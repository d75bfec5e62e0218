#pragma once
// What each dog of the dog list stands in, has won, owes and has paid, for all dogs at once.

#include "platform/values/money.h"
#include "store/psi_lists.h"
#include "store/souteze.h"
#include "store/vystavy.h"

#include <QStringList>
#include <optional>
#include <unordered_map>
#include <vector>

namespace lorvo {

struct DogListFigures {
    QString shows;                   ///< names, a blank between
    std::optional<Currency> lastFee; ///< of the show entered last; nullopt without a show
    QString competitions;            ///< names, ", " between
    Currency competitionFees;
    QString awards;                                  ///< names, ", " between
    Currency fees;                                   ///< of shows and competitions
    Currency paid;                                   ///< in the main currency
    Currency Balance() const { return paid - fees; } ///< negative means arrears
};

/// The dog's award names as a cell shows them.
QString AwardsText(const QStringList& names);

/// Reads what the figures of all dogs need: a few statements, however many dogs there are. Raises
/// StoreError when the store refuses.
class DogListTables {
  public:
    DogListTables();

    /// Entries stand in the order in which they were made. The class goes into the fee column as it
    /// stands, in the special breed too; a competition counts as often as it is entered, one that
    /// is gone not at all. Raises StoreError when a price is Null or a fee's column or show is
    /// missing, and RangeError on overflow.
    DogListFigures Of(const DogListRow& dog) const;

  private:
    void AddShows(const DogListRow& dog, DogListFigures& figures) const;
    void AddCompetitions(int psiID, DogListFigures& figures) const;

    FeeTables fees_;
    std::unordered_map<int, Souteze> competitions_;
    std::unordered_map<int, std::vector<int>> showsByDog_;
    std::unordered_map<int, std::vector<int>> competitionsByDog_;
    std::unordered_map<int, QStringList> awardsByDog_;
    std::unordered_map<int, Currency> paidByDog_;
};

} // namespace lorvo
