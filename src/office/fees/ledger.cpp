#include "office/fees/ledger.h"

#include "app/constant_tables.h"
#include "store/psi_ve_vystavach.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"

#include <algorithm>

namespace lorvo {

namespace {

/// What the database holds, asked for row by row.
struct StoredRows {
    const std::vector<Souteze>& competitions;

    std::vector<int> ShowsOf(int psiID) const { return ShowsOfDog(psiID); }
    std::vector<int> CompetitionsOf(int psiID) const { return CompetitionsOfDog(psiID); }
    Currency PaidFor(int psiID) const { return PaidForDog(psiID); }
    Currency Fee(int vystavaID, bool firstClosing, int classColumn, bool firstDog) const {
        return ShowFee(vystavaID, FeeColumn(firstClosing, classColumn, firstDog));
    }
    std::optional<Currency> PriceOf(int soutezID) const {
        const auto found = std::ranges::find(competitions, soutezID, &Souteze::ID);
        return found == competitions.end() ? std::nullopt : std::optional(lorvo::PriceOf(*found));
    }
};

} // namespace

AccountDog AccountDogOf(const Psi& dog) {
    return {dog.ID, dog.Trida, dog.PrvniUzaverka, dog.PrvniPes, dog.PlemenoID == kSpecialBreedID};
}

AccountDog AccountDogOf(const DogListRow& dog) {
    return {dog.IDPsa, dog.Trida, dog.PrvniUzaverka, dog.PrvniPes,
            dog.PlemenoID == kSpecialBreedID};
}

AccountDog AccountDogOf(const DogFeeRow& dog) {
    return {dog.ID, dog.Trida, dog.PrvniUzaverka, dog.PrvniPes, dog.PlemenoID == kSpecialBreedID};
}

ShowLedger::ShowLedger()
    : shows_(ShowLinks()), entries_(CompetitionLinks()), paidByDog_(PaidByDog()) {
    for (Souteze& competition : Competitions())
        competitions_.emplace(competition.ID, std::move(competition));
}

Currency ShowLedger::PaidFor(int psiID) const {
    const auto paid = paidByDog_.find(psiID);
    return paid == paidByDog_.end() ? Currency() : paid->second;
}

Currency ShowLedger::Fee(int vystavaID, bool firstClosing, int classColumn, bool firstDog) const {
    return fees_.Fee(vystavaID, firstClosing, classColumn, firstDog);
}

std::optional<Currency> ShowLedger::PriceOf(int soutezID) const {
    const auto found = competitions_.find(soutezID);
    return found == competitions_.end() ? std::nullopt
                                        : std::optional(lorvo::PriceOf(found->second));
}

Currency PriceOf(const Souteze& competition) {
    return competition.Cena.value_or(Currency());
}

Account AccountOf(const Psi& dog, AccountRules rules, const std::vector<Souteze>& competitions) {
    return AccountOf(AccountDogOf(dog), rules, StoredRows{competitions});
}

std::optional<Currency> FeeOf(const Psi& dog, int vystavaID, FeeClassRule rule) {
    return FindShowFee(vystavaID, FeeColumn(dog.PrvniUzaverka,
                                            FeeClassColumn(AccountDogOf(dog), rule), dog.PrvniPes));
}

Currency PaidForDogsOf(int majitelID) {
    Currency paid;
    for (const Psi& dog : DogsOfOwner(majitelID, DogOrder::ByID))
        paid += PaidForDog(dog.ID);
    return paid;
}

} // namespace lorvo
