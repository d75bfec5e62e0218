#pragma once
// What a dog owes, has paid and has left. Worked out in this one place for every reader; where
// readers differ, the difference is asked for by name. Standard library alone.

#include "platform/values/money.h"

#include <optional>
#include <vector>

namespace lorvo {

/// What of a dog its account depends on.
struct AccountDog {
    int ID = 0;
    int trida = 0;
    bool firstClosing = false;
    bool firstDog = false;     ///< the first dog of its owner
    bool specialBreed = false; ///< a German shepherd
};

/// Which column of the fee table a class pays from: the class code as it is, or for the special
/// breed's classes columns of their own.
enum class FeeClassRule { AsStored, SpecialBreedColumns };

/// How often a competition costs that a dog is entered in more than once.
enum class CompetitionRule { Once, AsOftenAsEntered };

/// What the balance takes off: the fees of all shows, or of the last one alone. By the last show,
/// what was paid counts only for a dog that stands in a show.
enum class BalanceRule { AllShows, LastShow };

struct AccountRules {
    FeeClassRule fees = FeeClassRule::AsStored;
    CompetitionRule competitions = CompetitionRule::Once;
    BalanceRule balance = BalanceRule::AllShows;
};

/// The readers, each by its rules.
inline constexpr AccountRules kDogCardRules{FeeClassRule::SpecialBreedColumns,
                                            CompetitionRule::Once, BalanceRule::LastShow};
inline constexpr AccountRules kOwnerCardRules{};
inline constexpr AccountRules kExhibitorRules{};
inline constexpr AccountRules kDogListRules{
    FeeClassRule::AsStored, CompetitionRule::AsOftenAsEntered, BalanceRule::AllShows};

/// The class digit of the fee column; a class without a rule of its own is its own column.
int FeeClassColumn(const AccountDog& dog, FeeClassRule rule);

/// The account of one dog. Sums are exact and raise RangeError on overflow.
struct Account {
    struct Entry {
        int ID = 0; ///< of the show or competition
        Currency price;
    };
    std::vector<Entry> shows;        ///< in the order in which they were entered
    std::vector<Entry> competitions; ///< those that still exist
    Currency paid;                   ///< in the main currency
    BalanceRule rule = BalanceRule::AllShows;

    /// Fee of the show entered last; nullopt for a dog in no show.
    [[nodiscard]] std::optional<Currency> LastFee() const;
    Currency CompetitionFees() const;
    /// Show fees by the rule, and all competitions.
    Currency Owed() const;
    /// What was paid less what is owed, by the rule: negative means arrears.
    Currency Balance() const;

    bool IsInCompetition(int soutezID) const;
};

/// The account of a dog, read from a source that knows entries, payments and prices:
/// `ShowsOf(psiID)` and `CompetitionsOf(psiID)`, a row each, in row order; `PaidFor(psiID)`;
/// `Fee(vystavaID, firstClosing, classColumn, firstDog)`, which raises when there is none; and
/// `PriceOf(soutezID)`, nullopt for a competition that is gone.
template<class Source>
Account AccountOf(const AccountDog& dog, AccountRules rules, const Source& source) {
    Account account;
    account.rule = rules.balance;
    account.paid = source.PaidFor(dog.ID);
    for (const int vystavaID : source.ShowsOf(dog.ID))
        account.shows.push_back(
            {vystavaID, source.Fee(vystavaID, dog.firstClosing, FeeClassColumn(dog, rules.fees),
                                   dog.firstDog)});
    for (const int soutezID : source.CompetitionsOf(dog.ID)) {
        if (rules.competitions == CompetitionRule::Once && account.IsInCompetition(soutezID))
            continue;
        if (const std::optional<Currency> price = source.PriceOf(soutezID))
            account.competitions.push_back({soutezID, *price});
    }
    return account;
}

/// The accounts of several dogs in one.
struct AccountTotals {
    int dogs = 0;
    Currency owed;
    Currency paid;

    void Add(const Account& account);
    void Add(const AccountTotals& part);
    Currency Balance() const { return paid - owed; } ///< negative means arrears
};

} // namespace lorvo
