#include "office/tree/tree_loader.h"

#include "app/constant_tables.h"
#include "office/tree/tree_lines.h"
#include "platform/values/errors.h"
#include "store/data_module.h"
#include "support/temp_database.h"

#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class TreeLoaderTest : public ::testing::Test {
  protected:
    QStringList Load() {
        LoadTree(nodes, look);
        return test::TreeLines(nodes);
    }

    TempDatabase database;
    TreeNodes nodes;
    ViewPreferences look;
};

TEST_F(TreeLoaderTest, ShowsTheUnassignedRootOfAnEmptyDatabase) {
    EXPECT_EQ(Load(), QStringList{u"K0 Nezařazeno v kruhu"_s});
    EXPECT_TRUE(nodes.First()->bold);
    EXPECT_EQ(Tables().PaymentModes[1], u"hotově"_s);
}

TEST_F(TreeLoaderTest, ShowsAnUnusedBreedOnlyInARing) {
    database.Execute(
        "INSERT INTO Kruhy (ID, Nazev) VALUES (4, 'A');"
        "INSERT INTO Plemena (ID, Nazev, ID_Kruhu, Pouzivat) VALUES"
        " (1, 'Barzoj', 0, 0), (2, 'Boxer', 0, -1), (3, 'Čivava', 4, 0);"
        "INSERT INTO Psi (ID, Jmeno, PlemenoID) VALUES (1, 'Alík', 1), (3, 'Cvrk', 3)");
    EXPECT_EQ(Load(), (QStringList{u"K0 Nezařazeno v kruhu"_s, u"  R2 Boxer"_s, u"K4 A"_s,
                                   u"  R3 Čivava"_s, u"    P3 Cvrk"_s}));
}

TEST_F(TreeLoaderTest, HidesBreedsOfARingThatIsGone) {
    database.Execute("INSERT INTO Plemena (ID, Nazev, ID_Kruhu, Pouzivat) VALUES"
                     " (1, 'Barzoj', 9, -1), (2, 'Boxer', NULL, -1)");
    EXPECT_EQ(Load(), QStringList{u"K0 Nezařazeno v kruhu"_s});
}

TEST_F(TreeLoaderTest, FallsBackToTheOriginalNameInRingsAlone) {
    database.Execute(
        "INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'A');"
        "INSERT INTO Plemena (ID, Nazev, NazevOrig, ID_Kruhu, Pouzivat) VALUES"
        " (1, '', 'Barzoj', 0, -1), (2, '', 'Boxer', 1, -1), (3, NULL, 'Pudl', 1, -1)");
    EXPECT_EQ(Load(), (QStringList{u"K0 Nezařazeno v kruhu"_s, u"  R1 "_s, u"K1 A"_s,
                                   u"  R3 Pudl"_s, u"  R2 Boxer"_s}));
}

TEST_F(TreeLoaderTest, PutsTheCatalogueNumberBeforeTheName) {
    database.Execute("INSERT INTO Plemena (ID, Nazev, Pouzivat) VALUES (1, 'Boxer', -1);"
                     "INSERT INTO Psi (ID, Jmeno, PlemenoID, Cislo) VALUES"
                     " (1, 'Alík', 1, 12), (2, 'Bára', 1, 0), (3, 'Cvrk', 1, NULL)");
    EXPECT_EQ(Load(), (QStringList{u"K0 Nezařazeno v kruhu"_s, u"  R1 Boxer"_s, u"    P1 12 Alík"_s,
                                   u"    P2 Bára"_s, u"    P3 Cvrk"_s}));
}

TEST_F(TreeLoaderTest, OrdersMalesFirstThenByClassThenByName) {
    database.Execute("INSERT INTO Plemena (ID, Nazev, Pouzivat) VALUES (1, 'Boxer', -1);"
                     "INSERT INTO Psi (ID, Jmeno, PlemenoID, PohlaviPes, Trida) VALUES"
                     " (1, 'Alík', 1, 0, 1), (2, 'Hugo', 1, -1, 5), (3, 'Chvat', 1, -1, 5),"
                     " (4, 'Šimon', 1, -1, 2), (5, 'Hugo', 1, -1, 5)");
    Load();
    QStringList keys;
    for (const auto& dog : nodes.Get(u"R1"_s).children)
        keys.append(dog->Key());
    EXPECT_EQ(keys, (QStringList{u"P4"_s, u"P2"_s, u"P5"_s, u"P3"_s, u"P1"_s}));
    EXPECT_EQ(nodes.Get(u"P4"_s).colour, kMaleText);
    EXPECT_EQ(nodes.Get(u"P1"_s).colour, kFemaleText);
}

TEST_F(TreeLoaderTest, ShowsAllClassesOfABreedWithoutDogs) {
    look.showClasses = true;
    database.Execute("INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'A');"
                     "INSERT INTO Plemena (ID, Nazev, ID_Kruhu, Pouzivat) VALUES"
                     " (1, 'Boxer', 0, -1), (949, 'Německý ovčák', 1, -1)");
    EXPECT_EQ(Load(),
              (QStringList{u"K0 Nezařazeno v kruhu"_s, u"  R1 Boxer"_s,
                           u"    TR1|1 Třída štěňat od 3 do 6 měsíců"_s,
                           u"    TR1|2 Třída dorostu"_s, u"    TR1|3 Třída mladých"_s,
                           u"    TR1|4 Mezitřída"_s, u"    TR1|5 Třída otevřená"_s,
                           u"    TR1|6 Třída vítězů"_s, u"    TR1|7 Třída pracovní"_s,
                           u"    TR1|8 Třída veteránů"_s, u"K1 A"_s, u"  R949 Německý ovčák"_s,
                           u"    TR949|1 Třída dorostu"_s, u"    TR949|2 Třída mladých"_s,
                           u"    TR949|3 Třída dospívajících"_s, u"    TR949|4 Třída pracovní"_s}));
}

TEST_F(TreeLoaderTest, PutsDogsUnderTheirClasses) {
    look.showClasses = true;
    database.Execute("INSERT INTO Plemena (ID, Nazev, Pouzivat) VALUES (1, 'Boxer', -1);"
                     "INSERT INTO Psi (ID, Jmeno, PlemenoID, Trida) VALUES (1, 'Alík', 1, 8)");
    Load();
    EXPECT_EQ(nodes.Get(u"P1"_s).parent->Key(), u"TR1|8"_s);
}

TEST_F(TreeLoaderTest, StopsAtADogWhoseClassItsBreedLacks) {
    look.showClasses = true;
    database.Execute("INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'A'), (2, 'B');"
                     "INSERT INTO Plemena (ID, Nazev, ID_Kruhu, Pouzivat) VALUES"
                     " (949, 'Ovčák', 1, -1), (2, 'Pudl', 2, -1);"
                     "INSERT INTO Psi (ID, Jmeno, PlemenoID, Trida) VALUES"
                     " (1, 'Alík', 949, 4), (2, 'Bára', 949, 5), (3, 'Cvrk', 949, 6)");
    EXPECT_THROW(LoadTree(nodes, look), Error);
    EXPECT_NE(nodes.Find(u"P1"_s), nullptr);
    EXPECT_EQ(nodes.Find(u"P2"_s), nullptr);
    EXPECT_EQ(nodes.Last()->Key(), u"P1"_s);
    EXPECT_EQ(nodes.Find(u"K2"_s), nullptr);
}

TEST_F(TreeLoaderTest, TakesAnyClassNumberWithoutClassNodes) {
    database.Execute("INSERT INTO Plemena (ID, Nazev, Pouzivat) VALUES (1, 'Boxer', -1);"
                     "INSERT INTO Psi (ID, Jmeno, PlemenoID, Trida) VALUES (1, 'Alík', 1, NULL)");
    EXPECT_NO_THROW(Load());
    EXPECT_NE(nodes.Find(u"P1"_s), nullptr);
}

TEST_F(TreeLoaderTest, TellsClosingAndFirstDogInDetailModeOutsideRingsAlone) {
    look.dogDetailInTree = true;
    database.Execute(
        "INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'A');"
        "INSERT INTO Plemena (ID, Nazev, ID_Kruhu, Pouzivat) VALUES"
        " (1, 'Boxer', 0, -1), (2, 'Pudl', 1, -1);"
        "INSERT INTO Psi (ID, Jmeno, PlemenoID, PrvniUzaverka, PrvniPes, Cislo) VALUES"
        " (1, 'Alík', 1, -1, -1, 3), (2, 'Bára', 1, 0, 0, 0), (3, 'Cvrk', 2, -1, -1, 0)");
    Load();
    EXPECT_EQ(nodes.Get(u"P1"_s).text, u"3 Alík (I. uzávěrka, 1.pes majitele)"_s);
    EXPECT_EQ(nodes.Get(u"P2"_s).text, u"Bára (II. uzávěrka)"_s);
    EXPECT_EQ(nodes.Get(u"P3"_s).text, u"Cvrk"_s);
}

TEST_F(TreeLoaderTest, ForgetsColoursAndMovesAtAReload) {
    database.Execute(
        "INSERT INTO Plemena (ID, Nazev, Pouzivat) VALUES (1, 'Boxer', -1);"
        "INSERT INTO Psi (ID, Jmeno, PlemenoID, PohlaviPes) VALUES (1, 'Alík', 1, -1)");
    Load();
    nodes.SetBackground(&nodes.Get(u"P1"_s), kHighlight);
    nodes.Remove(&nodes.Get(u"K0"_s));
    Load();
    EXPECT_EQ(nodes.Get(u"P1"_s).background, kWhite);
}

TEST_F(TreeLoaderTest, ExpandsRingsAndBreedsThatWereStoredButNoClass) {
    look.showClasses = true;
    database.Execute(
        "INSERT INTO Kruhy (ID, Nazev) VALUES (3, 'A');"
        "INSERT INTO Plemena (ID, Nazev, ID_Kruhu, Pouzivat) VALUES (1, 'Boxer', 3, -1)");
    Load();
    const auto restored = NodesToExpand(nodes, u"K0|K3|R1|TR1|3|R77||R1x"_s);
    EXPECT_EQ(test::Keys(restored), (QStringList{u"K0"_s, u"K3"_s, u"R1"_s}));
    EXPECT_TRUE(NodesToExpand(nodes, {}).empty());
}

TEST_F(TreeLoaderTest, LeavesTheRootWhenTheStoreFails) {
    database.Execute("DROP TABLE Psi");
    EXPECT_THROW(LoadTree(nodes, look), StoreError);
    EXPECT_EQ(test::TreeLines(nodes), QStringList{u"K0 Nezařazeno v kruhu"_s});
}

} // namespace
} // namespace lorvo
