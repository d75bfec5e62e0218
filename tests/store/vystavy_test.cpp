#include "store/vystavy.h"

#include "store/psi_ve_vystavach.h"
#include "store/routines_fixture.h"

#include <algorithm>

namespace lorvo::test {

namespace {

using VystavyTest = RoutinesTest;

const Currency k300 = Currency::FromUnits(300);

TEST_F(VystavyTest, ANewShowHasANameAndNothingElse) {
    const int ID = InsertShow(Text("Hlavní výstava"));
    const Vystavy show = ShowByID(ID).value();
    EXPECT_EQ(show.Nazev, Text("Hlavní výstava"));
    EXPECT_FALSE(show.Uzaverka1);
    EXPECT_FALSE(show.Uzaverka2);
    for (const auto& fee : ShowFees(ID))
        EXPECT_FALSE(fee);
    EXPECT_FALSE(ShowByID(ID + 1));
    EXPECT_EQ(CountShows(), 1);
}

TEST_F(VystavyTest, FeeColumnsAreNamedByTheirRule) {
    EXPECT_EQ(FeeColumn(true, 4, true), "PoplatkyIClass4D1");
    EXPECT_EQ(FeeColumn(false, 9, false), "PoplatkyIIClass9D2");
    EXPECT_EQ(FeeColumn(true, 0, false), "PoplatkyIClass0D2");
    EXPECT_EQ(FeeColumns().front(), "PoplatkyIClass1D1");
    EXPECT_EQ(FeeColumns()[1], "PoplatkyIClass1D2");
    EXPECT_EQ(FeeColumns()[18], "PoplatkyIIClass1D1");
    EXPECT_EQ(FeeColumns().back(), "PoplatkyIIClass9D2");
}

TEST_F(VystavyTest, AFeeIsReadByItsColumn) {
    const int ID = Add("Vystavy", {{"PoplatkyIIClass3D2", k300}});
    EXPECT_EQ(ShowFee(ID, "PoplatkyIIClass3D2"), k300);
    EXPECT_EQ(FindShowFee(ID, "PoplatkyIIClass3D1"), std::nullopt);
}

TEST_F(VystavyTest, AFeeThatCannotBeReadIsAFailure) {
    const int ID = Add("Vystavy", {{"PoplatkyIClass1D1", k300}});
    const FeeTables tables;
    EXPECT_THROW(ShowFee(ID, FeeColumn(true, 0, true)), StoreError);
    EXPECT_THROW(tables.Fee(ID, true, 0, true), StoreError);
    EXPECT_THROW(ShowFee(ID, FeeColumn(true, 10, true)), StoreError);
    EXPECT_THROW(tables.Fee(ID, true, 10, true), StoreError);
    EXPECT_THROW(ShowFee(ID, FeeColumn(true, 1, false)), StoreError);
    EXPECT_THROW(tables.Fee(ID, true, 1, false), StoreError);
    EXPECT_THROW(ShowFee(ID + 1, FeeColumn(true, 1, true)), StoreError);
    EXPECT_THROW(tables.Fee(ID + 1, true, 1, true), StoreError);
    EXPECT_THROW(tables.ShowName(ID + 1), StoreError);
    EXPECT_THROW(ShowFees(ID + 1), StoreError);
}

TEST_F(VystavyTest, FeeTablesHoldAgainstTheSingleReads) {
    Assignments first = {{"Nazev", Text("Krajská")}};
    Assignments second = {{"Nazev", Text("Klubová")}};
    int amount = 0;
    for (const std::string& column : FeeColumns()) {
        first.emplace_back(column.c_str(), Currency::FromUnits(++amount));
        second.emplace_back(column.c_str(), Currency::FromRaw(-amount));
    }
    const int shows[] = {Add("Vystavy", first), Add("Vystavy", second)};
    const FeeTables tables;
    for (const int ID : shows) {
        for (int classColumn = 1; classColumn <= kFeeClasses; ++classColumn) {
            for (const bool closing : {true, false}) {
                for (const bool firstDog : {true, false})
                    EXPECT_EQ(tables.Fee(ID, closing, classColumn, firstDog),
                              ShowFee(ID, FeeColumn(closing, classColumn, firstDog)));
            }
        }
    }
    EXPECT_EQ(tables.ShowName(shows[1]), Text("Klubová"));
    EXPECT_EQ(ShowFees(shows[0]).at(35), Currency::FromUnits(36));
}

TEST_F(VystavyTest, ShowsComeInIDOrderAndAreRenamed) {
    const int first = InsertShow(Text("Nová výstava"));
    InsertShow(Text("A 'b'"));
    EXPECT_EQ(Nazvy(Shows()), (Texts{"Nová výstava", "A 'b'"}));
    EXPECT_EQ(CountShowsNamed(Text("NOVÁ VÝSTAVA")), 1);
    EXPECT_EQ(CountShowsNamed(Text("a 'B'")), 1);
    RenameShow(first, Text("Krajská"));
    EXPECT_EQ(CountShowsNamed(Text("nová výstava")), 0);
    EXPECT_EQ(ShowByID(first)->Nazev, Text("Krajská"));
}

TEST_F(VystavyTest, AnUpdateWritesNameAndFeesFromTexts) {
    const int ID = InsertShow(Text("x"));
    std::array<Currency, kFeeColumns> fees;
    fees.fill(Currency::FromUnits(250));
    fees[1] = Currency();
    fees[2] = Currency::FromRaw(125000);
    UpdateShow(ID, Text("Krajská 'A'"), fees);
    EXPECT_EQ(ShowByID(ID)->Nazev, Text("Krajská 'A'"));
    const FeeRow row = ShowFees(ID);
    EXPECT_EQ(row[0], Currency::FromUnits(250));
    EXPECT_EQ(row[1], Currency());
    EXPECT_EQ(row[2], Currency::FromRaw(125000));
    EXPECT_EQ(row[35], Currency::FromUnits(250));
}

TEST_F(VystavyTest, ClosingsGoToTheFirstShowIfThereIsOne) {
    const DateValue may = DateValue::FromCalendar(2005, 5, 1);
    SetClosingsOfFirstShow(may, may);
    EXPECT_EQ(CountShows(), 0);
    const int first = InsertShow(Text("a"));
    const int second = InsertShow(Text("b"));
    SetClosingsOfFirstShow(may, may.PlusDays(7));
    EXPECT_EQ(ShowByID(first)->Uzaverka1, may);
    EXPECT_EQ(ShowByID(first)->Uzaverka2, may.PlusDays(7));
    EXPECT_FALSE(ShowByID(second)->Uzaverka1);
}

TEST_F(VystavyTest, FeesOfTheFirstShowAreCleared) {
    EXPECT_THROW(ClearFeesOfFirstShow(), StoreError);
    const int first = Add("Vystavy", {{"PoplatkyIClass1D1", k300}});
    const int second = Add("Vystavy", {{"PoplatkyIClass1D1", k300}});
    ClearFeesOfFirstShow();
    for (const auto& fee : ShowFees(first))
        EXPECT_EQ(fee, Currency());
    EXPECT_EQ(ShowFee(second, "PoplatkyIClass1D1"), k300);
}

TEST_F(VystavyTest, TheOldestShowStays) {
    DeleteShowsButOldest();
    const int first = InsertShow(Text("a"));
    const int second = InsertShow(Text("b"));
    InsertShow(Text("c"));
    DeleteShow(first);
    DeleteShowsButOldest();
    EXPECT_EQ(Column("SELECT ID FROM Vystavy"), Texts{std::to_string(second)});
}

TEST_F(VystavyTest, ADogStandsInTheShowsThatWereAdded) {
    AddDogToShows(1, {5, 3});
    AddDogToShows(1, {4});
    AddDogToShows(2, {5});
    EXPECT_EQ(ShowsOfDog(1), (Numbers{5, 3, 4}));
    EXPECT_EQ(CountDogsInShow(5), 2);
    const LinkTable links = ShowLinks();
    EXPECT_EQ(links.Owners(), (Numbers{1, 2}));
    for (const int psiID : links.Owners())
        EXPECT_TRUE(std::ranges::equal(links.Of(psiID), ShowsOfDog(psiID)));
    DeleteShowsOfDog(1);
    EXPECT_TRUE(ShowsOfDog(1).empty());
    EXPECT_EQ(ShowsOfDog(2), Numbers{5});
    DeleteAllShowEntries();
    EXPECT_EQ(CountDogsInShow(5), 0);
}

TEST_F(VystavyTest, ShowsOfOtherDogsHoldAgainstTheDistinctRead) {
    AddDogToShows(1, {2, 9});
    AddDogToShows(2, {7, 2, 7});
    AddDogToShows(3, {4});
    for (const int psiID : {1, 2, 3, 4}) {
        const Numbers distinct = ReadNumbers(
            "SELECT DISTINCT(VystavaID) FROM PsiVeVystavach WHERE PesID <> " + Number(psiID));
        Numbers shows = ShowsOfOtherDogs(psiID);
        EXPECT_TRUE(
            std::is_permutation(shows.begin(), shows.end(), distinct.begin(), distinct.end()));
    }
    EXPECT_EQ(ShowsOfOtherDogs(1), (Numbers{2, 4, 7}));
    DeleteAllShowEntries();
    EXPECT_TRUE(ShowsOfOtherDogs(1).empty());
}

} // namespace

} // namespace lorvo::test
