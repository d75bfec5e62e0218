// The four readers of what dogs owe, held against a walk dog by dog over made-up shows.

#include "app/common_routines.h"
#include "app/module_values.h"
#include "office/cards/dog_card.h"
#include "office/cards/owner_card.h"
#include "office/dogs/dog_list_figures.h"
#include "office/fees/owner_accounts.h"
#include "office/texts/money_texts.h"
#include "show/show_generator.h"
#include "store/data_module.h"
#include "store/majitele.h"
#include "store/psi_ve_vystavach.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <gtest/gtest.h>

#include <set>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

/// What a dog owes by the rows that belong to it, reckoned without the code under test.
struct Walked {
    std::optional<Currency> lastFee;
    Currency showFees;
    Currency competitions;     ///< a row each
    Currency competitionsOnce; ///< each competition once
    Currency paid;
};

Walked Walk(const Psi& dog, int classColumn) {
    Walked walked;
    for (const int show : ShowsOfDog(dog.ID)) {
        walked.lastFee = ShowFee(show, FeeColumn(dog.PrvniUzaverka, classColumn, dog.PrvniPes));
        walked.showFees += *walked.lastFee;
    }
    std::set<int> seen;
    for (const int competition : CompetitionsOfDog(dog.ID)) {
        const Currency price = CompetitionByID(competition)->Cena.value_or(Currency());
        walked.competitions += price;
        if (seen.insert(competition).second)
            walked.competitionsOnce += price;
    }
    for (const Uhrady& payment : PaymentsOfDog(dog.ID))
        walked.paid += payment.Kc;
    return walked;
}

/// The class column that the dog card pays a dog from.
int CardColumn(const Psi& dog) {
    const int special[] = {0, 2, 3, 9, 7};
    return dog.PlemenoID == kSpecialBreedID && dog.Trida <= 4 ? special[dog.Trida] : dog.Trida;
}

class ReadersOfMadeUpShows : public ::testing::TestWithParam<std::uint64_t> {
  protected:
    ReadersOfMadeUpShows() {
        Module() = ModuleValues();
        Module().MainCurrency = u"Kč"_s;
        show::GenerateShow({"small", 160, 60, 3, 12, 2, 150}, GetParam(), show::Numbers::None);
        // What the made-up show lacks: a competition entered twice, and one without a price.
        Souteze free;
        free.Nazev = u"Zdarma"_s;
        const int paid = Competitions().front().ID;
        AddDogToCompetitions(DogsByName().front().ID, {paid, paid, InsertCompetition(free)});
    }
    ~ReadersOfMadeUpShows() override { Module() = ModuleValues(); }

    RecordingPlatform platform;
    TempDatabase database{TempDatabase::Content::Delivered};
};

TEST_P(ReadersOfMadeUpShows, TheDogCardComesToTheWalkByTheLastShow) {
    for (const Psi& dog : DogsByName()) {
        const Walked walked = Walk(dog, CardColumn(dog));
        const Currency owed = walked.lastFee.value_or(Currency()) + walked.competitionsOnce;
        DogCard card;
        FillDogCard(card, dog.ID);
        EXPECT_EQ(card.CenaCelkem, AmountText(owed)) << dog.ID;
        EXPECT_EQ(card.Uhrazeno, AmountText(walked.paid)) << dog.ID;
        EXPECT_EQ(card.Rozdil.text, AmountText((walked.lastFee ? walked.paid : Currency()) - owed))
            << dog.ID;
    }
}

TEST_P(ReadersOfMadeUpShows, TheDogListComesToTheWalk) {
    const DogListTables tables;
    AccountTotals totals;
    Currency owed;
    Currency paid;
    for (const DogListRow& row : DogsWithOwnersByName()) {
        const Psi dog = ExistingDog(row.IDPsa);
        const Walked walked = Walk(dog, dog.Trida);
        const Account account = tables.Of(row).account;
        EXPECT_EQ(account.Owed(), walked.showFees + walked.competitions) << dog.ID;
        EXPECT_EQ(account.paid, walked.paid) << dog.ID;
        EXPECT_EQ(account.Balance(), account.paid - account.Owed()) << dog.ID;
        totals.Add(account);
        owed += walked.showFees + walked.competitions;
        paid += walked.paid;
    }
    EXPECT_EQ(totals.dogs, CountDogs());
    EXPECT_EQ(totals.owed, owed);
    EXPECT_EQ(totals.Balance(), paid - owed);
}

TEST_P(ReadersOfMadeUpShows, OwnerCardsAndExhibitorsComeToTheWalk) {
    const OwnerAccounts accounts;
    AccountTotals totals;
    for (const Majitele& owner : OwnersByName()) {
        Currency owed;
        Currency paid;
        for (const Psi& dog : DogsOfOwner(owner.ID)) {
            const Walked walked = Walk(dog, dog.Trida);
            owed += walked.showFees + walked.competitionsOnce;
            paid += walked.paid;
        }
        const AccountTotals account = accounts.Of(owner.ID);
        EXPECT_EQ(account.dogs, CountDogsOfOwner(owner.ID));
        EXPECT_EQ(account.owed, owed) << owner.ID;
        EXPECT_EQ(account.paid, paid) << owner.ID;
        EXPECT_EQ(PaidForDogsOf(owner.ID), paid);
        OwnerCard card;
        FillOwnerDogs(card, owner.ID);
        EXPECT_EQ(card.price, PriceText(owed)) << owner.ID;
        EXPECT_EQ(card.paid, PriceText(paid)) << owner.ID;
        EXPECT_EQ(card.balance.text, PriceText(paid - owed)) << owner.ID;
        totals.Add(account);
    }
    EXPECT_EQ(totals.dogs, CountDogs());
}

INSTANTIATE_TEST_SUITE_P(Seeds, ReadersOfMadeUpShows, ::testing::Range<std::uint64_t>(1, 6));

} // namespace
} // namespace lorvo::test
