#include "store/souteze.h"

#include "store/routines_fixture.h"
#include "store/vazby_souteze.h"

#include <algorithm>

namespace lorvo::test {

namespace {

using SoutezeTest = RoutinesTest;

Souteze Named(const char* nazev) {
    Souteze competition;
    competition.Nazev = QString::fromUtf8(nazev);
    return competition;
}

TEST_F(SoutezeTest, AStoredCompetitionReadsBackWhole) {
    Souteze competition = Named("Dítě a 'pes'");
    competition.Cena = Currency::FromUnits(50);
    competition.Parova = true;
    competition.NazevPar1 = Text("první");
    competition.NazevPar2 = Text("druhý");
    competition.ID = InsertCompetition(competition);
    Souteze read = CompetitionByID(competition.ID).value();
    EXPECT_EQ(read.Nazev, competition.Nazev);
    EXPECT_EQ(read.Cena, competition.Cena);
    EXPECT_TRUE(read.Parova);
    EXPECT_EQ(read.NazevPar1, competition.NazevPar1);
    EXPECT_EQ(read.NazevPar2, competition.NazevPar2);
    competition.Cena.reset();
    competition.Parova = false;
    UpdateCompetition(competition);
    read = CompetitionByID(competition.ID).value();
    EXPECT_FALSE(read.Cena);
    EXPECT_FALSE(read.Parova);
    EXPECT_EQ(Competitions().size(), 1u);
}

TEST_F(SoutezeTest, APriceThatIsNoNumberIsNone) {
    const int ID = InsertCompetition(Named("a"));
    InsertCompetition(Named("b"));
    for (const char* price : {"'zdarma'", "''", "NULL"}) {
        Execute(std::string("UPDATE Souteze SET Cena = ") + price + " WHERE ID = 1");
        EXPECT_EQ(Competitions().size(), 2u);
        EXPECT_FALSE(CompetitionByID(ID).value().Cena) << price;
    }
    RenameCompetition(ID, Text("c"));
    EXPECT_EQ(CompetitionByID(ID).value().Nazev, Text("c"));
}

TEST_F(SoutezeTest, CompetitionsComeByIDOrByName) {
    InsertCompetition(Named("Žák"));
    InsertCompetition(Named("Chlapec"));
    InsertCompetition(Named("Dítě"));
    EXPECT_EQ(Nazvy(Competitions()), (Texts{"Žák", "Chlapec", "Dítě"}));
    EXPECT_EQ(Nazvy(CompetitionsByName()), (Texts{"Dítě", "Chlapec", "Žák"}));
}

TEST_F(SoutezeTest, AnotherCompetitionOfTheNameIsFound) {
    const int ID = InsertCompetition(Named("Pár O'Hary"));
    EXPECT_TRUE(IsCompetitionNamed(Text("PÁR o'hary"), 0));
    EXPECT_FALSE(IsCompetitionNamed(Text("Pár O'Hary"), ID));
    EXPECT_FALSE(IsCompetitionNamed(Text("Par"), 0));
    RenameCompetition(ID, Text("Jiná"));
    EXPECT_FALSE(IsCompetitionNamed(Text("Pár O'Hary"), 0));
}

TEST_F(SoutezeTest, ADeletedCompetitionLeavesItsEntries) {
    const int ID = InsertCompetition(Named("a"));
    const int other = InsertCompetition(Named("b"));
    AddDogToCompetitions(1, {ID});
    DeleteCompetition(ID);
    EXPECT_EQ(Column("SELECT ID FROM Souteze"), Texts{std::to_string(other)});
    EXPECT_EQ(CountDogsInCompetition(ID), 1);
    EXPECT_THROW(RenameCompetition(ID, Text("x")), StoreError);
    DeleteAllCompetitions();
    EXPECT_TRUE(Competitions().empty());
}

TEST_F(SoutezeTest, EntriesAreReadByDogAndByCompetition) {
    AddDogToCompetitions(1, {5, 3});
    AddDogToCompetitions(2, {5});
    EXPECT_EQ(CompetitionsOfDog(1), (Numbers{5, 3}));
    EXPECT_TRUE(CompetitionsOfDog(9).empty());
    const LinkTable links = CompetitionLinks();
    EXPECT_EQ(links.Owners(), (Numbers{1, 2}));
    for (const int psiID : links.Owners())
        EXPECT_TRUE(std::ranges::equal(links.Of(psiID), CompetitionsOfDog(psiID)));
    EXPECT_EQ(CountDogsInCompetition(5), 2);
    EXPECT_EQ(CountDogsInCompetition(3), 1);
}

TEST_F(SoutezeTest, EntriesAreTakenByDogByCompetitionOrAll) {
    AddDogToCompetitions(1, {5, 3});
    AddDogToCompetitions(2, {5, 3});
    DeleteCompetitionsOfDog(1);
    EXPECT_TRUE(CompetitionsOfDog(1).empty());
    EXPECT_EQ(CompetitionsOfDog(2), (Numbers{5, 3}));
    DeleteDogsOfCompetition(5);
    EXPECT_EQ(CompetitionsOfDog(2), Numbers{3});
    DeleteAllCompetitionEntries();
    EXPECT_EQ(CountDogsInCompetition(3), 0);
}

} // namespace

} // namespace lorvo::test
