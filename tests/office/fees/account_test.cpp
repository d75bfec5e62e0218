#include "office/fees/account.h"

#include "platform/values/errors.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>

namespace lorvo {
namespace {

Currency Units(int units) {
    return Currency::FromUnits(units);
}

/// A fee table in which every cell of every show has a price of its own.
Currency PriceOfCell(int vystavaID, bool firstClosing, int classColumn, bool firstDog) {
    return Units(vystavaID * 1000 + (firstClosing ? 0 : 100) + classColumn * 10 +
                 (firstDog ? 1 : 2));
}

/// Entries, payments and prices of one dog, held in memory.
struct Source {
    std::vector<int> shows;
    std::vector<int> competitions;
    Currency paid;
    std::map<int, Currency> prices = {{1, Units(50)}, {2, Units(80)}};

    const std::vector<int>& ShowsOf(int) const { return shows; }
    const std::vector<int>& CompetitionsOf(int) const { return competitions; }
    Currency PaidFor(int) const { return paid; }
    Currency Fee(int vystavaID, bool firstClosing, int classColumn, bool firstDog) const {
        if (vystavaID == 77)
            throw StoreError("chybí");
        return PriceOfCell(vystavaID, firstClosing, classColumn, firstDog);
    }
    std::optional<Currency> PriceOf(int soutezID) const {
        const auto found = prices.find(soutezID);
        return found == prices.end() ? std::nullopt : std::optional(found->second);
    }
};

constexpr AccountDog kDog{1, 5, true, true, false};

Currency FeeByRule(const AccountDog& dog, FeeClassRule rule) {
    AccountRules rules;
    rules.fees = rule;
    return *AccountOf(dog, rules, Source{{1}, {}, {}}).LastFee();
}

std::vector<AccountDog> EveryDog() {
    std::vector<AccountDog> dogs;
    for (int trida = 1; trida <= 9; ++trida)
        for (const bool firstClosing : {true, false})
            for (const bool firstDog : {true, false})
                for (const bool special : {true, false})
                    dogs.push_back({1, trida, firstClosing, firstDog, special});
    return dogs;
}

TEST(Account, AsStoredEveryDogPaysFromTheColumnOfItsClass) {
    for (const AccountDog& dog : EveryDog())
        EXPECT_EQ(FeeByRule(dog, FeeClassRule::AsStored),
                  PriceOfCell(1, dog.firstClosing, dog.trida, dog.firstDog));
}

TEST(Account, TheSpecialBreedHasColumnsOfItsOwnOnTheDogCard) {
    const int columns[] = {0, 2, 3, 9, 7, 5, 6, 7, 8, 9};
    for (const AccountDog& dog : EveryDog()) {
        const int column = dog.specialBreed ? columns[dog.trida] : dog.trida;
        EXPECT_EQ(FeeByRule(dog, FeeClassRule::SpecialBreedColumns),
                  PriceOfCell(1, dog.firstClosing, column, dog.firstDog));
    }
}

TEST(Account, AClassOutsideTheTableIsAskedForAsItIs) {
    for (const int trida : {-1, 0, 10}) {
        const AccountDog dog{1, trida, true, true, true};
        EXPECT_EQ(FeeClassColumn(dog, FeeClassRule::SpecialBreedColumns), trida);
        EXPECT_EQ(FeeClassColumn(dog, FeeClassRule::AsStored), trida);
    }
}

TEST(Account, AdolescentsPayAnotherColumnOnTheDogCardThanElsewhere) {
    const AccountDog dog{1, 3, true, false, true};
    const Source source{{1}, {}, {}};
    EXPECT_EQ(AccountOf(dog, kDogCardRules, source).Owed(), Units(1092));
    for (const AccountRules rules : {kOwnerCardRules, kExhibitorRules, kDogListRules})
        EXPECT_EQ(AccountOf(dog, rules, source).Owed(), Units(1032));
}

TEST(Account, OfSeveralShowsTheDogCardTakesTheLastAndTheOthersAll) {
    const Source source{{2, 1}, {}, {}};
    const Account card = AccountOf(kDog, kDogCardRules, source);
    EXPECT_EQ(card.LastFee(), Units(1051));
    EXPECT_EQ(card.Owed(), Units(1051));
    EXPECT_EQ(card.Balance(), Units(-1051));
    for (const AccountRules rules : {kOwnerCardRules, kExhibitorRules, kDogListRules})
        EXPECT_EQ(AccountOf(kDog, rules, source).Balance(), Units(-3102));
}

TEST(Account, WithoutAShowTheDogCardLeavesOutWhatWasPaid) {
    const Source source{{}, {1}, Units(250)};
    EXPECT_FALSE(AccountOf(kDog, kDogCardRules, source).LastFee());
    EXPECT_EQ(AccountOf(kDog, kDogCardRules, source).Balance(), Units(-50));
    for (const AccountRules rules : {kOwnerCardRules, kExhibitorRules, kDogListRules})
        EXPECT_EQ(AccountOf(kDog, rules, source).Balance(), Units(200));
}

TEST(Account, WithOneShowAllReadersAgree) {
    const Source source{{1}, {1, 2}, Units(2000)};
    for (const AccountRules rules :
         {kDogCardRules, kOwnerCardRules, kExhibitorRules, kDogListRules}) {
        const Account account = AccountOf(kDog, rules, source);
        EXPECT_EQ(account.Owed(), Units(1051 + 50 + 80));
        EXPECT_EQ(account.CompetitionFees(), Units(130));
        EXPECT_EQ(account.Balance(), Units(2000 - 1181));
    }
}

TEST(Account, ACompetitionEnteredTwiceCostsTwiceInTheDogListAlone) {
    const Source source{{}, {1, 2, 1}, {}};
    EXPECT_EQ(AccountOf(kDog, kDogListRules, source).Owed(), Units(180));
    for (const AccountRules rules : {kDogCardRules, kOwnerCardRules, kExhibitorRules})
        EXPECT_EQ(AccountOf(kDog, rules, source).Owed(), Units(130));
}

TEST(Account, ACompetitionThatIsGoneCostsNothingAndIsNone) {
    const Account account = AccountOf(kDog, kDogListRules, Source{{}, {9, 1}, {}});
    EXPECT_EQ(account.Owed(), Units(50));
    EXPECT_TRUE(account.IsInCompetition(1));
    EXPECT_FALSE(account.IsInCompetition(9));
}

TEST(Account, AFeeThatIsMissingGoesUp) {
    EXPECT_THROW(AccountOf(kDog, kDogListRules, Source{{77}, {}, {}}), StoreError);
}

TEST(Account, SumsAreExactAndRefuseToOverflow) {
    Source source{{}, {1, 2}, {}};
    source.prices = {{1, Currency::FromRaw(1)}, {2, Currency::FromRaw(2)}};
    EXPECT_EQ(AccountOf(kDog, kDogListRules, source).Owed(), Currency::FromRaw(3));
    source.prices[2] = Currency::FromRaw(std::numeric_limits<std::int64_t>::max());
    EXPECT_THROW(AccountOf(kDog, kDogListRules, source).Owed(), RangeError);
}

TEST(AccountTotals, AreTheSumsOfTheirRows) {
    AccountTotals owner;
    owner.Add(AccountOf(kDog, kExhibitorRules, Source{{1}, {}, Units(2000)}));
    owner.Add(AccountOf(kDog, kExhibitorRules, Source{{}, {1}, {}}));
    EXPECT_EQ(owner.dogs, 2);
    EXPECT_EQ(owner.owed, Units(1101));
    EXPECT_EQ(owner.paid, Units(2000));
    AccountTotals all;
    all.Add(owner);
    all.Add(owner);
    EXPECT_EQ(all.dogs, 4);
    EXPECT_EQ(all.Balance(), Units(2 * 899));
}

} // namespace
} // namespace lorvo
