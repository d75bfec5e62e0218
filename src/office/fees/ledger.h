#pragma once
// Where accounts are read from: the whole show at once for the lists, or one dog for the cards.
// Both give the same account for the same rows.

#include "office/fees/account.h"
#include "store/link_table.h"
#include "store/psi_lists.h"
#include "store/souteze.h"
#include "store/vystavy.h"

#include <unordered_map>

namespace lorvo {

AccountDog AccountDogOf(const Psi& dog);
AccountDog AccountDogOf(const DogListRow& dog);
AccountDog AccountDogOf(const DogFeeRow& dog);

/// Entries, payments and prices of the whole show: a few statements, however many dogs there are.
/// Building raises StoreError when the store refuses.
class ShowLedger {
  public:
    ShowLedger();

    /// StoreError when a fee is Null or its column or show is missing, RangeError on overflow.
    template<class Dog> Account Of(const Dog& dog, AccountRules rules) const {
        return AccountOf(AccountDogOf(dog), rules, *this);
    }

    // As AccountOf asks.
    std::span<const int> ShowsOf(int psiID) const { return shows_.Of(psiID); }
    std::span<const int> CompetitionsOf(int psiID) const { return entries_.Of(psiID); }
    Currency PaidFor(int psiID) const;
    Currency Fee(int vystavaID, bool firstClosing, int classColumn, bool firstDog) const;
    [[nodiscard]] std::optional<Currency> PriceOf(int soutezID) const;

    /// StoreError when the show is missing.
    const QString& ShowName(int vystavaID) const { return fees_.ShowName(vystavaID); }
    /// The competition must exist.
    const QString& CompetitionName(int soutezID) const { return competitions_.at(soutezID).Nazev; }

  private:
    FeeTables fees_;
    std::unordered_map<int, Souteze> competitions_;
    LinkTable shows_;
    LinkTable entries_; ///< in competitions
    std::unordered_map<int, Currency> paidByDog_;
};

/// What a competition costs a dog: 0 for one without a price.
Currency PriceOf(const Souteze& competition);

/// The account of one dog, by a few statements for this dog alone; `competitions` are all there
/// are. Raises as ShowLedger::Of does.
Account AccountOf(const Psi& dog, AccountRules rules, const std::vector<Souteze>& competitions);

/// What a dog would pay in a show; nullopt when the show's table doesn't have it filled.
/// StoreError when the fee's column or the show is missing.
[[nodiscard]] std::optional<Currency> FeeOf(const Psi& dog, int vystavaID, FeeClassRule rule);

/// What was paid for the dogs that an owner has.
Currency PaidForDogsOf(int majitelID);

} // namespace lorvo
