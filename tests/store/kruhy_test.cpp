#include "store/kruhy.h"

#include "store/routines_fixture.h"

namespace lorvo::test {

namespace {

using KruhyTest = RoutinesTest;

TEST_F(KruhyTest, RingsComeInCzechOrder) {
    InsertRing(Text("Chodba"));
    InsertRing(Text("Hala"));
    InsertRing(Text("Nový kruh"));
    InsertRing(Text("Nový kruh"));
    InsertRing(Text("Čtverec"));
    EXPECT_EQ(Nazvy(RingsByName()), (Texts{"Čtverec", "Hala", "Chodba", "Nový kruh", "Nový kruh"}));
}

TEST_F(KruhyTest, ARingKeepsNameAndJudgeApart) {
    const int ID = InsertRing(Text("Nový kruh"));
    EXPECT_TRUE(RingByID(ID)->JmenoRozhodciho.isEmpty());
    SetRingJudge(ID, Text("O'Malley"));
    RenameRing(ID, Text("Kruh 'A'"));
    EXPECT_EQ(RingByID(ID)->Nazev, u"Kruh 'A'");
    EXPECT_EQ(RingByID(ID)->JmenoRozhodciho, u"O'Malley");
    EXPECT_THROW(RenameRing(ID + 1, Text("x")), StoreError);
}

TEST_F(KruhyTest, ADeletedRingIsGone) {
    const int first = InsertRing(Text("a"));
    const int second = InsertRing(Text("b"));
    InsertRing(Text("c"));
    DeleteRing(first);
    EXPECT_FALSE(RingByID(first));
    EXPECT_TRUE(RingByID(second));
    DeleteRing(0);
    EXPECT_EQ(RingsByName().size(), 2u);
    DeleteAllRings();
    EXPECT_TRUE(RingsByName().empty());
}

} // namespace

} // namespace lorvo::test
