#include "office/cards/node_figures.h"

#include "platform/values/errors.h"

#include "office/cards/card_test.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class NodeFiguresTest : public CardTest {
  protected:
    /// Ring 4 with two breeds, one of them unused; breed 3 in use outside all rings; four dogs.
    void AddRing() {
        Run("INSERT INTO Plemena (ID, Nazev, NazevOrig, FCI, Pouzivat, ID_Kruhu) VALUES "
            "(1, 'Pudl', 'Caniche', 9, -1, 4), (2, 'Jezevčík', 'Dachshund', 4, 0, 4), "
            "(3, 'Barzoj', 'Barzoi', 10, -1, 0)");
        Run("INSERT INTO Psi (ID, PlemenoID, Trida) VALUES (1, 1, 5), (2, 2, 5), (3, 3, 5), "
            "(4, 1, 8)");
    }
};

// kept: ring-share-of-all-breeds
TEST_F(NodeFiguresTest, ARingCountsUsedBreedsButItsShareIsOfAll) {
    AddRing();
    const RingFigures figures = FiguresOfRing(4);
    EXPECT_EQ(figures.PlemenaCnt, u"1"_s);
    EXPECT_EQ(figures.PlemenaCntPrc, u"66,67%"_s);
    EXPECT_EQ(figures.DogsCnt, u"3"_s);
    EXPECT_EQ(figures.DogsCntPrc, u"75,00%"_s);
}

TEST_F(NodeFiguresTest, TheUnassignedRootCountsBreedsInNoRing) {
    AddRing();
    const RingFigures figures = FiguresOfRing(0);
    EXPECT_EQ(figures.PlemenaCnt, u"1"_s);
    EXPECT_EQ(figures.PlemenaCntPrc, u"33,33%"_s);
    EXPECT_EQ(figures.DogsCnt, u"1"_s);
    EXPECT_EQ(figures.DogsCntPrc, u"25,00%"_s);
}

TEST_F(NodeFiguresTest, SharesOfEmptyTablesAreZero) {
    const RingFigures ring = FiguresOfRing(4);
    EXPECT_EQ(ring.PlemenaCnt, u"0"_s);
    EXPECT_EQ(ring.PlemenaCntPrc, u"0,00%"_s);
    EXPECT_EQ(ring.DogsCntPrc, u"0,00%"_s);
    Run("INSERT INTO Plemena (ID, Nazev, FCI) VALUES (1, 'Pudl', 9)");
    const BreedFigures breed = FiguresOfBreed(1);
    EXPECT_EQ(breed.DogsCount, u"0"_s);
    EXPECT_EQ(breed.DogsCountPrc, u"0,00%"_s);
}

TEST_F(NodeFiguresTest, ABreedHasItsDogsTheirShareItsGroupAndBothNames) {
    AddRing();
    const BreedFigures figures = FiguresOfBreed(1);
    EXPECT_EQ(figures.DogsCount, u"2"_s);
    EXPECT_EQ(figures.DogsCountPrc, u"50,00%"_s);
    EXPECT_EQ(figures.FCI, u"9"_s);
    EXPECT_EQ(TitleOfBreed(1), u"Pudl (Caniche)"_s);
    EXPECT_THROW(TitleOfBreed(99), StoreError);
}

TEST_F(NodeFiguresTest, AClassCountsItsDogsOfTheBreed) {
    AddRing();
    EXPECT_EQ(DogCountOfClass(1, 5), u"1"_s);
    EXPECT_EQ(DogCountOfClass(1, 6), u"0"_s);
}

TEST_F(NodeFiguresTest, AnFciGroupCountsItsBreedsAndTheirDogs) {
    AddRing();
    EXPECT_EQ(FiguresOfFci(9).PlemenaInFCICount, u"1"_s);
    EXPECT_EQ(FiguresOfFci(9).DogsInFCICount, u"2"_s);
    EXPECT_EQ(FiguresOfFci(8).DogsInFCICount, u"0"_s);
}

} // namespace
} // namespace lorvo
