#pragma once
// What each dog of the dog list stands in, has won, owes and has paid, for all dogs at once.

#include "office/fees/ledger.h"

#include <QStringList>

namespace lorvo {

struct DogListFigures {
    QString shows;        ///< names, a blank between
    QString competitions; ///< names, ", " between
    QString awards;       ///< names, ", " between
    Account account;
};

/// The dog's award names as a cell shows them.
QString AwardsText(const QStringList& names);

/// Reads what the figures of all dogs need: a few statements, however many dogs there are. Raises
/// StoreError when the store refuses.
class DogListTables {
  public:
    DogListTables();

    /// Entries stand in the order in which they were made. Raises as ShowLedger::Of does.
    DogListFigures Of(const DogListRow& dog) const;

  private:
    QString ShowNames(const Account& account) const;
    QString CompetitionNames(const Account& account) const;

    ShowLedger ledger_;
    std::unordered_map<int, QStringList> awardsByDog_;
};

} // namespace lorvo
