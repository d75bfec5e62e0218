// Colours and awards, the two short lists of names, and the awards that dogs won.

#include "store/barvy.h"
#include "store/oceneni.h"
#include "store/psi_oceneni.h"
#include "store/routines_fixture.h"

namespace lorvo::test {

namespace {

using CodeListsTest = RoutinesTest;

TEST_F(CodeListsTest, ColoursComeInIDOrder) {
    const int white = InsertColour(Text("Žíhaná"));
    InsertColour(Text("Bílá"));
    EXPECT_EQ(Nazvy(Colours()), (Texts{"Žíhaná", "Bílá"}));
    EXPECT_EQ(ColourByID(white)->Nazev, Text("Žíhaná"));
    EXPECT_FALSE(ColourByID(99));
}

TEST_F(CodeListsTest, AColourIsFoundWhateverItsLetterCase) {
    InsertColour(Text("Červená 'ohnivá'"));
    EXPECT_EQ(CountColoursNamed(Text("ČERVENÁ 'OHNIVÁ'")), 1);
    EXPECT_EQ(CountColoursNamed(Text("Cervena")), 0);
}

TEST_F(CodeListsTest, ColoursAreRenamedAndDeleted) {
    const int first = InsertColour(Text("a"));
    const int second = InsertColour(Text("b"));
    RenameColour(first, Text("c"));
    DeleteColour(second);
    EXPECT_EQ(Nazvy(Colours()), Texts{"c"});
    EXPECT_THROW(RenameColour(second, Text("x")), StoreError);
    DeleteAllColours();
    EXPECT_TRUE(Colours().empty());
}

TEST_F(CodeListsTest, AwardsComeByIDOrByName) {
    const int first = InsertAward(Text("Vítěz"));
    InsertAward(Text("CAC"));
    EXPECT_EQ(Nazvy(Awards()), (Texts{"Vítěz", "CAC"}));
    EXPECT_EQ(Nazvy(AwardsByName()), (Texts{"CAC", "Vítěz"}));
    RenameAward(first, Text("Best"));
    EXPECT_EQ(Nazvy(Awards()), (Texts{"Best", "CAC"}));
    DeleteAllAwards();
    EXPECT_TRUE(Awards().empty());
}

TEST_F(CodeListsTest, AwardsOfADogKeepTheOrderInWhichTheyWereGiven) {
    const int cac = InsertAward(Text("CAC"));
    const int best = InsertAward(Text("Best 'in' show"));
    AddAwardsToDog(1, {best, cac});
    AddAwardsToDog(2, {cac});
    AddAwardsToDog(1, {});
    EXPECT_EQ(AwardsOfDog(1), (Numbers{best, cac}));
    EXPECT_EQ(AwardNamesOfDog(1), (QStringList{Text("Best 'in' show"), Text("CAC")}));
    EXPECT_TRUE(AwardsOfDog(3).empty());
}

TEST_F(CodeListsTest, NamesByDogHoldAgainstTheSingleReads) {
    const int cac = InsertAward(Text("CAC"));
    const int best = InsertAward(Text("Best"));
    AddAwardsToDog(2, {best, cac, 999});
    AddAwardsToDog(1, {cac});
    AddAwardsToDog(3, {999});
    AddAwardsToDog(2, {cac});
    const auto names = AwardNamesByDog();
    EXPECT_EQ(names.size(), 2u);
    for (const auto& [psiID, awards] : names)
        EXPECT_EQ(awards, AwardNamesOfDog(psiID));
    EXPECT_EQ(names.at(2), (QStringList{Text("Best"), Text("CAC"), Text("CAC")}));
}

TEST_F(CodeListsTest, AwardsAreTakenByDogByAwardOrAll) {
    AddAwardsToDog(1, {10, 11});
    AddAwardsToDog(2, {10, 11});
    EXPECT_EQ(CountAwardOfDog(1, 10), 1);
    EXPECT_EQ(CountDogsWithAward(10), 2);
    DeleteAwardOfDog(1, 10);
    EXPECT_EQ(AwardsOfDog(1), Numbers{11});
    EXPECT_EQ(CountAwardOfDog(1, 10), 0);
    DeleteAwardFromDogs(11);
    EXPECT_TRUE(AwardsOfDog(1).empty());
    EXPECT_EQ(AwardsOfDog(2), Numbers{10});
    DeleteAwardsOfDog(2);
    EXPECT_EQ(Column("SELECT COUNT(*) FROM PsiOceneni"), Texts{"0"});
    AddAwardsToDog(2, {10});
    DeleteAllAwardsOfDogs();
    EXPECT_EQ(Column("SELECT COUNT(*) FROM PsiOceneni"), Texts{"0"});
}

} // namespace

} // namespace lorvo::test
