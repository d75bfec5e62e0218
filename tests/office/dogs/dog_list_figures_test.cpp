// The figures read for all dogs at once, held against a walk that asks for each dog alone.
#include "office/dogs/dog_list_figures.h"

#include "dogs/dog_lists_fixture.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"

#include <random>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

std::string AmountOf(Currency amount) {
    return amount.ToPlainText('.');
}

/// What a row of the list shows, reckoned with the statements for one dog.
std::string DescribeByWalk(const DogListRow& dog) {
    QStringList shows;
    std::string lastFee = "-";
    Currency owed;
    for (const int show : ShowsOfDog(dog.IDPsa)) {
        const Currency fee = ShowFee(show, FeeColumn(dog.PrvniUzaverka, dog.Trida, dog.PrvniPes));
        lastFee = AmountOf(fee);
        owed += fee;
        shows << ShowByID(show)->Nazev;
    }
    QStringList competitions;
    Currency prices;
    for (const int entered : CompetitionsOfDog(dog.IDPsa)) {
        if (const auto competition = CompetitionByID(entered)) {
            prices += competition->Cena.value();
            competitions << competition->Nazev;
        }
    }
    owed += prices;
    const Currency paid = PaidForDog(dog.IDPsa);
    return shows.join(u' ').toStdString() + '|' + lastFee + '|' +
           competitions.join(u", "_s).toStdString() + '|' + AmountOf(prices) + '|' +
           AwardNamesOfDog(dog.IDPsa).join(u", "_s).toStdString() + '|' + AmountOf(owed) + '|' +
           AmountOf(paid) + '|' + AmountOf(paid - owed);
}

std::string Describe(const DogListFigures& figures) {
    const Account& account = figures.account;
    return figures.shows.toStdString() + '|' +
           (account.LastFee() ? AmountOf(*account.LastFee()) : "-") + '|' +
           figures.competitions.toStdString() + '|' + AmountOf(account.CompetitionFees()) + '|' +
           figures.awards.toStdString() + '|' + AmountOf(account.Owed()) + '|' +
           AmountOf(account.paid) + '|' + AmountOf(account.Balance());
}

class DogListFiguresTest : public DogListsTest {
  protected:
    int Dice(int sides) { return std::uniform_int_distribution(0, sides - 1)(random_); }

    int AddShowWithFees(int number) {
        Assignments fields = {{"Nazev", Text("Výstava %1").arg(number)}};
        for (const std::string& column : FeeColumns())
            fields.emplace_back(column.c_str(), Currency::FromRaw(Dice(5'000'000)));
        return Add("Vystavy", fields);
    }
    void AddRandomDog() {
        const int dog = AddDog("Rex", {{"PlemenoID", Dice(3) ? breed : kSpecialBreedID},
                                       {"MajitelID", Dice(6) ? owner : 4711},
                                       {"PohlaviPes", Dice(2) > 0},
                                       {"Trida", 1 + Dice(9)},
                                       {"PrvniPes", Dice(2) > 0},
                                       {"PrvniUzaverka", Dice(2) > 0}});
        for (int entries = Dice(3); entries > 0; --entries)
            Enter(dog, shows_.at(static_cast<std::size_t>(Dice(3))));
        for (int entries = Dice(4); entries > 0; --entries)
            Compete(dog, 1 + Dice(4)); // the fourth is gone
        for (int entries = Dice(3); entries > 0; --entries)
            Award(dog, 1 + Dice(3)); // the third is gone
        for (int payments = Dice(3); payments > 0; --payments)
            Add("Uhrady", {{"ID_Psa", dog}, {"Kc", Currency::FromRaw(Dice(9'000'000))}});
    }

    std::mt19937 random_{20050514}; // NOLINT(cert-msc51-cpp): the same dogs in each run
    std::vector<int> shows_;
};

TEST_F(DogListFiguresTest, AreThoseOfAWalkDogByDog) {
    AddLink("Plemena", {{"ID", kSpecialBreedID}, {"Nazev", Text("Německý ovčák")}});
    for (int number = 1; number <= 3; ++number)
        shows_.push_back(AddShowWithFees(number));
    for (const char* name : {"Pár", "Smečka", "Chovatel"})
        AddCompetition(name, Dice(100));
    Add("Oceneni", {{"Nazev", Text("CAC")}});
    Add("Oceneni", {{"Nazev", Text("BOB")}});
    for (int dogs = 0; dogs < 150; ++dogs)
        AddRandomDog();
    const DogListTables tables;
    const std::vector<DogListRow> rows = DogsWithOwnersByName();
    ASSERT_GT(rows.size(), 80U);
    ASSERT_LT(rows.size(), 150U) << "no dog is without its owner";
    for (const DogListRow& dog : rows)
        EXPECT_EQ(Describe(tables.Of(dog)), DescribeByWalk(dog)) << "dog " << dog.IDPsa;
}

TEST_F(DogListFiguresTest, FailWhereTheWalkFails) {
    const int dog = AddDog("Rex");
    Enter(dog, Add("Vystavy", {{"Nazev", Text("Bez ceníku")}}));
    const DogListRow row = DogsWithOwnersByName().front();
    EXPECT_THROW(DescribeByWalk(row), StoreError);
    EXPECT_THROW(DogListTables().Of(row), StoreError);
    DeleteShowsOfDog(dog);
    Enter(dog, 4711);
    EXPECT_THROW(DogListTables().Of(row), StoreError);
}

TEST_F(DogListFiguresTest, ACompetitionWithoutAPriceCostsNothing) {
    const int dog = AddDog("Rex");
    Compete(dog, Add("Souteze", {{"Nazev", Text("Bez ceny")}}));
    Compete(dog, AddCompetition("Pár", 50));
    const DogListFigures figures = DogListTables().Of(DogsWithOwnersByName().front());
    EXPECT_EQ(figures.competitions, Text("Bez ceny, Pár"));
    EXPECT_EQ(figures.account.Owed(), Currency::FromUnits(50));
}

} // namespace
} // namespace lorvo::test
