// The accounts of all owners at once, held against a walk dog by dog.

#include "office/fees/owner_accounts.h"

#include "dogs/exhibitors_fixture.h"

#include <random>

namespace lorvo::test {

namespace {

/// What the account came to, or which failure.
std::string Outcome(const std::function<AccountTotals()>& account) {
    try {
        const AccountTotals result = account();
        return std::to_string(result.dogs) + " dogs, fees " + result.owed.ToPlainText('.') +
               ", paid " + result.paid.ToPlainText('.') + ", balance " +
               result.Balance().ToPlainText('.');
    } catch (const StoreError&) {
        return "failure";
    }
}

class OwnerAccountsTest : public ExhibitorsTest {
  protected:
    static std::string Figures(int owner) {
        return Outcome([&] { return OwnerAccounts().Of(owner); });
    }
};

TEST_F(OwnerAccountsTest, AnOwnerWithoutDogsOwesNothing) {
    EXPECT_EQ(Figures(AddOwner("Eva")), "0 dogs, fees 0, paid 0, balance 0");
}

TEST_F(OwnerAccountsTest, SumsAllShowsAndEachCompetitionOnce) {
    const int owner = AddOwner("Eva");
    const int first = AddShow({{"PoplatkyIClass5D1", Currency::FromUnits(300)},
                               {"PoplatkyIIClass5D2", Currency::FromUnits(550)}});
    const int second = AddShow({{"PoplatkyIClass5D1", Currency::FromUnits(200)}});
    const int race = AddCompetition("Závod", Currency::FromRaw(10'500));
    const int rex = AddDog("Rex", owner, {{"PrvniUzaverka", true}, {"PrvniPes", true}});
    const int ben = AddDog("Ben", owner);
    Enter(rex, first);
    Enter(rex, second);
    Enter(ben, first);
    for (const int competition : {race, race, 77})
        Compete(rex, competition);
    Compete(ben, race);
    Compete(ben, AddCompetition("Zdarma", Value()));
    Pay(rex, Currency::FromUnits(1000));
    Pay(ben, Currency::FromRaw(1));
    EXPECT_EQ(Figures(owner), "2 dogs, fees 1052.1, paid 1000.0001, balance -52.0999");
}

TEST_F(OwnerAccountsTest, ANullFeeAMissingShowAndAClassWithoutAColumnFail) {
    const int show = AddShow({{"PoplatkyIClass5D1", Currency::FromUnits(300)}});
    const int null = AddOwner("Null");
    Enter(AddDog("Rex", null), show);
    const int gone = AddOwner("Pryč");
    Enter(AddDog("Ben", gone), 77);
    const int classless = AddOwner("Bez třídy");
    Enter(AddDog("Max", classless, {{"Trida", 0}}), show);
    for (const int owner : {null, gone, classless})
        EXPECT_EQ(Figures(owner), "failure");
}

class GeneratedShows : public OwnerAccountsTest, public ::testing::WithParamInterface<unsigned> {
  protected:
    static constexpr int kOwners = 12;
    static constexpr int kShows = 3;
    static constexpr int kCompetitions = 4;

    int Random(int from, int to) { return from + static_cast<int>(random_() % (to - from + 1U)); }
    bool OneIn(int count) { return Random(1, count) == 1; }
    Value AmountOrNull(int nullOneIn) {
        return OneIn(nullOneIn) ? Value() : Value(Currency::FromRaw(Random(-99, 9'999'999)));
    }
    void AddGeneratedDog() {
        const int dog = AddDog("Rex", Random(1, kOwners + 1),
                               {{"Trida", OneIn(20) ? Value() : Value(Random(1, 9))},
                                {"PrvniUzaverka", OneIn(2)},
                                {"PrvniPes", OneIn(3) ? Value() : Value(OneIn(2))}});
        for (int i = Random(0, 2); i > 0; --i)
            Enter(dog, OneIn(40) ? kShows + 1 : Random(1, kShows));
        for (int i = Random(0, 3); i > 0; --i)
            Compete(dog, Random(1, kCompetitions + 1));
        for (int i = Random(0, 3); i > 0; --i)
            Add("Uhrady", {{"ID_Psa", dog}, {"Kc", AmountOrNull(9)}});
    }

  private:
    std::mt19937 random_{GetParam()};
};

TEST_P(GeneratedShows, ComeToWhatTheWalkComesTo) {
    EditRun run(TheDataModule().Conn1);
    for (int i = 0; i < kOwners; ++i)
        AddOwner("Eva");
    for (int i = 0; i < kShows; ++i) {
        Assignments fees;
        for (const std::string& column : FeeColumns())
            fees.emplace_back(column.c_str(), AmountOrNull(60));
        AddShow(fees);
    }
    for (int i = 0; i < kCompetitions; ++i)
        AddCompetition("Závod", AmountOrNull(4));
    for (int i = 0; i < 3 * kOwners; ++i)
        AddGeneratedDog();
    run.Finish();

    const OwnerAccounts accounts;
    for (const Majitele& owner : OwnersByName())
        EXPECT_EQ(Outcome([&] { return accounts.Of(owner.ID); }),
                  Outcome([&] { return Walk(owner.ID); }))
            << "owner " << owner.ID;
}

INSTANTIATE_TEST_SUITE_P(Seeds, GeneratedShows, ::testing::Range(1u, 13u));

} // namespace

} // namespace lorvo::test
