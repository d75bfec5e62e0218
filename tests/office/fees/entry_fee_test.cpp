#include "office/fees/entry_fee.h"

#include "platform/values/errors.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace lorvo {
namespace {

/// A fee table in which every cell of every show has a price of its own.
Currency PriceOf(int vystavaID, bool firstClosing, int classColumn, bool firstDog) {
    return Currency::FromUnits(vystavaID * 1000 + (firstClosing ? 0 : 100) + classColumn * 10 +
                               (firstDog ? 1 : 2));
}

EntryFee Lookup(int vystavaID, bool firstClosing, int classColumn, bool firstDog) {
    return {"Výstava " + std::to_string(vystavaID),
            PriceOf(vystavaID, firstClosing, classColumn, firstDog)};
}

Currency Fee(const FeeDog& dog, FeeClassRule rule) {
    return DogFee(dog, 1, rule, Lookup).fee;
}

std::vector<FeeDog> EveryDog() {
    std::vector<FeeDog> dogs;
    for (int trida = 1; trida <= 9; ++trida)
        for (const bool firstClosing : {true, false})
            for (const bool firstDog : {true, false})
                for (const bool special : {true, false})
                    dogs.push_back({trida, firstClosing, firstDog, special});
    return dogs;
}

TEST(EntryFee, AsStoredEveryDogPaysFromTheColumnOfItsClass) {
    for (const FeeDog& dog : EveryDog())
        EXPECT_EQ(Fee(dog, FeeClassRule::AsStored),
                  PriceOf(1, dog.firstClosing, dog.trida, dog.firstDog));
}

TEST(EntryFee, TheSpecialBreedHasColumnsOfItsOwnOnTheDogPanel) {
    const int columns[] = {0, 2, 3, 9, 7, 5, 6, 7, 8, 9};
    for (const FeeDog& dog : EveryDog()) {
        const int column = dog.specialBreed ? columns[dog.trida] : dog.trida;
        EXPECT_EQ(FeeClassColumn(dog, FeeClassRule::SpecialBreedColumns), column);
        EXPECT_EQ(Fee(dog, FeeClassRule::SpecialBreedColumns),
                  PriceOf(1, dog.firstClosing, column, dog.firstDog));
    }
}

TEST(EntryFee, AClassOutsideTheTableIsAskedForAsItIs) {
    for (const int trida : {-1, 0, 10}) {
        const FeeDog dog{trida, true, true, true};
        EXPECT_EQ(FeeClassColumn(dog, FeeClassRule::SpecialBreedColumns), trida);
        EXPECT_EQ(FeeClassColumn(dog, FeeClassRule::AsStored), trida);
    }
}

TEST(EntryFee, AdolescentsPayAnotherColumnOnThePanelThanElsewhere) {
    const FeeDog dog{3, true, false, true};
    EXPECT_EQ(Fee(dog, FeeClassRule::SpecialBreedColumns), Currency::FromUnits(1092));
    EXPECT_EQ(Fee(dog, FeeClassRule::AsStored), Currency::FromUnits(1032));
}

TEST(EntryFee, TheClosingIsTheDogsFlagEvenWhereItIsCheaper) {
    const auto cheaperLater = [](int, bool firstClosing, int, bool) {
        return EntryFee{"", Currency::FromUnits(firstClosing ? 500 : 300)};
    };
    EXPECT_EQ(DogFee({5, false, true, false}, 1, FeeClassRule::AsStored, cheaperLater).fee,
              Currency::FromUnits(300));
}

TEST(EntryFee, NameAndFeeAreThoseOfTheShow) {
    const EntryFee entry = DogFee({5, true, true, false}, 7, FeeClassRule::AsStored, Lookup);
    EXPECT_EQ(entry.showName, "Výstava 7");
    EXPECT_EQ(entry.fee, Currency::FromUnits(7051));
}

TEST(EntryFee, AFailedLookupGoesUp) {
    const auto missing = [](int, bool, int, bool) -> EntryFee {
        throw StoreError("chybí");
    };
    EXPECT_THROW(DogFee({5, true, true, false}, 1, FeeClassRule::AsStored, missing), StoreError);
}

TEST(EntryFee, OfSeveralShowsThePanelTakesTheLastAndTheListsTakeAll) {
    const std::vector<Currency> fees = {Currency::FromUnits(300), Currency::FromUnits(200)};
    EXPECT_EQ(LastShowBalance({}, fees, {}), Currency::FromUnits(-200));
    EXPECT_EQ(Balance({}, fees, {}), Currency::FromUnits(-500));
}

TEST(EntryFee, WithoutAShowThePanelLeavesOutWhatWasPaid) {
    const Currency paid = Currency::FromUnits(250);
    const Currency competitions = Currency::FromUnits(60);
    EXPECT_EQ(Balance(paid, {}, competitions), Currency::FromUnits(190));
    EXPECT_EQ(LastShowBalance(paid, {}, competitions), Currency::FromUnits(-60));
}

TEST(EntryFee, WithOneShowBothBalancesAgree) {
    const Currency paid = Currency::FromUnits(250);
    const Currency competitions = Currency::FromUnits(60);
    const std::vector<Currency> fees = {Currency::FromUnits(300)};
    EXPECT_EQ(Balance(paid, fees, competitions), Currency::FromUnits(-110));
    EXPECT_EQ(LastShowBalance(paid, fees, competitions), Currency::FromUnits(-110));
}

TEST(EntryFee, SumsAreExactAndRefuseToOverflow) {
    const std::vector<Currency> cents(10000, Currency::FromRaw(1));
    EXPECT_EQ(SumOf(cents), Currency::FromUnits(1));
    EXPECT_EQ(SumOf({}), Currency());
    const std::vector<Currency> large(2,
                                      Currency::FromRaw(std::numeric_limits<std::int64_t>::max()));
    EXPECT_THROW(SumOf(large), RangeError);
}

} // namespace
} // namespace lorvo
