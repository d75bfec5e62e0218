// Adding and editing dogs from the tree, dragging, and searching on.

#include "forms/application.h"
#include "mainwindow/tree_host.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"

#include <QMimeData>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class TreeCommandsDogsTest : public TreeTest {
  protected:
    TreeCommandsDogsTest() {
        StandInFor(u"fm_Dog"_s);
        database.Execute("INSERT INTO Meny (Zkratka, Hlavni) VALUES ('Kč', -1);"
                         "INSERT INTO Ostatni VALUES ('2005-05-14T00:00:00')");
    }
    void ExpectRefusal(const QString& text) {
        platform.ExpectMessage(text, MessageAnswer::Ok, MessageIcon::Exclamation,
                               MessageButtons::Ok, u"Hlavní okno"_s);
    }
};

const QString kNoDate = u"Psa nelze přidat. Datum výstavy nebylo určeno"_s;
const QString kNoBreed = u"Není vybráno plemeno, do kterého se má pes přidat"_s;

TEST_F(TreeCommandsDogsTest, AddsADogToTheBreedPointedAt) {
    Choose(u"R20"_s, 603);
    EXPECT_EQ(opened, QStringList{u"fm_Dog"_s});
    EXPECT_TRUE(dogTask.adding);
    EXPECT_EQ(dogTask.breedID, 20);
    EXPECT_EQ(Module().CurrentBreedID, 20);
    EXPECT_EQ(Scalar("SELECT Nazev FROM Vystavy"), u"Hlavní výstava"_s);
}

TEST_F(TreeCommandsDogsTest, RefusesADogWithoutAMainCurrencyFirst) {
    database.Execute("UPDATE Meny SET Hlavni = 0; UPDATE Psi SET Cislo = 1; DELETE FROM Ostatni");
    ExpectRefusal(u"Psa nelze přidat. V seznamu měn není zadána hlavní měna"_s);
    Choose(u"R20"_s, 603);
    EXPECT_EQ(opened, QStringList());
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Vystavy"), u"0"_s);
}

TEST_F(TreeCommandsDogsTest, RefusesADogOnceTheFirstRowHasANumber) {
    database.Execute("UPDATE Psi SET Cislo = 1 WHERE ID = 1; DELETE FROM Ostatni");
    ExpectRefusal(u"Psa nelze přidat. Psi mají přiřazena čísla"_s);
    Choose(u"R20"_s, 603);
    EXPECT_EQ(opened, QStringList());
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Vystavy"), u"0"_s);
}

// kept: numbers-block-by-first-row
TEST_F(TreeCommandsDogsTest, LooksAtNoOtherNumberThanTheFirstRows) {
    database.Execute("UPDATE Psi SET Cislo = ID WHERE ID > 1");
    Choose(u"R20"_s, 603);
    EXPECT_EQ(opened, QStringList{u"fm_Dog"_s});
}

TEST_F(TreeCommandsDogsTest, RefusesTheFirstDogWithoutAShowDateAfterAddingTheShow) {
    database.Execute("DELETE FROM Psi; DELETE FROM Ostatni");
    ExpectRefusal(kNoDate);
    Choose(u"R20"_s, 603);
    EXPECT_EQ(Scalar("SELECT Nazev FROM Vystavy"), u"Hlavní výstava"_s);
    database.Execute("INSERT INTO Ostatni VALUES ('1899-12-30T00:00:00')");
    ExpectRefusal(kNoDate);
    Choose(u"R20"_s, 603);
    EXPECT_EQ(opened, QStringList());
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Vystavy"), u"1"_s);
}

TEST_F(TreeCommandsDogsTest, LetsADateThatWasNeverGivenPass) {
    database.Execute("UPDATE Ostatni SET DatumVystavy = NULL");
    Choose(u"R20"_s, 603);
    EXPECT_EQ(opened, QStringList{u"fm_Dog"_s});
}

TEST_F(TreeCommandsDogsTest, AddsByTheCommandBarToTheBreedOfTheSelectedNode) {
    host.SelectNode(u"R30"_s);
    host.commands->AddDogToSelected();
    EXPECT_EQ(dogTask.breedID, 30);
    host.SelectNode(u"P1"_s);
    host.commands->AddDogToSelected();
    EXPECT_EQ(dogTask.breedID, 10);
    EXPECT_TRUE(dogTask.adding);
    EXPECT_EQ(opened.size(), 2);
}

TEST_F(TreeCommandsDogsTest, RefusesByTheCommandBarWithoutABreed) {
    host.look.showClasses = true;
    Load();
    ExpectRefusal(kNoBreed);
    host.commands->AddDogToSelected();
    for (const char16_t* key : {u"K0", u"K1", u"TR10|3"}) {
        host.SelectNode(QString::fromUtf16(key));
        ExpectRefusal(kNoBreed);
        host.commands->AddDogToSelected();
    }
    host.SelectNode(u"P1"_s);
    host.commands->AddDogToSelected();
    EXPECT_EQ(dogTask.breedID, 10);
    EXPECT_EQ(opened.size(), 1);
}

// kept: add-dog-asks-less
TEST_F(TreeCommandsDogsTest, AsksByTheCommandBarForTheDatesRowAlone) {
    database.Execute("DELETE FROM Meny; UPDATE Psi SET Cislo = 1;"
                     "UPDATE Ostatni SET DatumVystavy = '1899-12-30T00:00:00'");
    host.SelectNode(u"R10"_s);
    host.commands->AddDogToSelected();
    EXPECT_EQ(opened.size(), 1);
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Vystavy"), u"0"_s);
    database.Execute("DELETE FROM Ostatni");
    ExpectRefusal(kNoDate);
    host.commands->AddDogToSelected();
    EXPECT_EQ(opened.size(), 1);
}

TEST_F(TreeCommandsDogsTest, EditsADogOnADoubleClick) {
    dogTask.adding = true;
    DoubleClick(u"P3"_s);
    EXPECT_EQ(opened, QStringList{u"fm_Dog"_s});
    EXPECT_FALSE(dogTask.adding);
    EXPECT_EQ(dogTask.breedID, 20);
    EXPECT_EQ(Module().CurrentBreedID, 20);
    EXPECT_EQ(host.SelectedNode(), u"P3"_s);
}

TEST_F(TreeCommandsDogsTest, TakesTheBreedFromAboveTheClass) {
    host.look.showClasses = true;
    Load();
    DoubleClick(u"P1"_s);
    EXPECT_EQ(dogTask.breedID, 10);
}

TEST_F(TreeCommandsDogsTest, DoesNothingOnADoubleClickElsewhere) {
    DoubleClick(u"R10"_s);
    DoubleClick(u"K2"_s);
    EXPECT_EQ(opened, QStringList());
    EXPECT_EQ(Tree().ExpandedKeys(), QStringList{u"K1"_s}); // opened to show the breed
}

TEST_F(TreeCommandsDogsTest, MovesABreedToTheRingItIsDroppedOn) {
    Drop(u"R20"_s, u"K1"_s);
    EXPECT_EQ(Node(u"R20"_s).parent->Key(), u"K1"_s);
    EXPECT_TRUE(Node(u"R20"_s).bold);
    EXPECT_EQ(Scalar("SELECT ID_Kruhu FROM Plemena WHERE ID = 20"), u"1"_s);
    Drop(u"R20"_s, u"K0"_s);
    EXPECT_EQ(Node(u"R20"_s).parent->Key(), u"K0"_s);
    EXPECT_EQ(Scalar("SELECT ID_Kruhu FROM Plemena WHERE ID = 20"), u"0"_s);
    EXPECT_EQ(host.shown, QStringList());
}

TEST_F(TreeCommandsDogsTest, LeavesABreedInPlaceThatIsDroppedOnItsOwnRing) {
    Drop(u"R10"_s, u"K1"_s);
    EXPECT_EQ(Node(u"R10"_s).parent->Key(), u"K1"_s);
    EXPECT_EQ(Scalar("SELECT ID_Kruhu FROM Plemena WHERE ID = 10"), u"1"_s);
}

TEST_F(TreeCommandsDogsTest, LosesAnUnusedBreedDroppedOnTheUnassignedRootAtTheNextReload) {
    Load("UPDATE Plemena SET Pouzivat = 0 WHERE ID = 10");
    Drop(u"R10"_s, u"K0"_s);
    EXPECT_EQ(Node(u"R10"_s).parent->Key(), u"K0"_s);
    Load();
    EXPECT_FALSE(host.NodeExists(u"R10"_s));
}

TEST_F(TreeCommandsDogsTest, MovesADogToTheBreedItIsDroppedOn) {
    database.Execute("UPDATE Psi SET Cislo = 5 WHERE ID = 1");
    Drop(u"P1"_s, u"R20"_s);
    EXPECT_EQ(Node(u"P1"_s).parent->Key(), u"R20"_s);
    EXPECT_EQ(Scalar("SELECT PlemenoID FROM Psi WHERE ID = 1"), u"20"_s);
    EXPECT_EQ(Scalar("SELECT Trida FROM Psi WHERE ID = 1"), u"3"_s);
}

TEST_F(TreeCommandsDogsTest, PutsADroppedDogBesideTheClassesUntilTheNextReload) {
    host.look.showClasses = true;
    Load();
    Drop(u"P1"_s, u"R10"_s);
    EXPECT_EQ(Node(u"P1"_s).parent->Key(), u"R10"_s);
    Load();
    EXPECT_EQ(Node(u"P1"_s).parent->Key(), u"TR10|3"_s);
}

TEST_F(TreeCommandsDogsTest, DoesNothingOnAnyOtherDrop) {
    host.look.showClasses = true;
    Load();
    const std::pair<const char16_t*, const char16_t*> drops[] = {
        {u"P1", u"K2"},  {u"P1", u"TR10|5"},  {u"P1", u"P2"}, {u"R10", u"R20"},
        {u"R10", u"P3"}, {u"R10", u"TR20|1"}, {u"K1", u"K2"}};
    for (const auto& [dragged, target] : drops)
        Drop(QString::fromUtf16(dragged), QString::fromUtf16(target));
    EXPECT_EQ(Node(u"P1"_s).parent->Key(), u"TR10|3"_s);
    EXPECT_EQ(Node(u"R10"_s).parent->Key(), u"K1"_s);
    EXPECT_EQ(Scalar("SELECT PlemenoID FROM Psi WHERE ID = 1"), u"10"_s);
    EXPECT_EQ(Scalar("SELECT ID_Kruhu FROM Plemena WHERE ID = 10"), u"1"_s);
}

TEST_F(TreeCommandsDogsTest, MovesNothingForTextOfAnotherProgramThatLooksLikeAKey) {
    QMimeData text;
    text.setText(u"P1"_s);
    EXPECT_FALSE(DropData(text, u"R20"_s));
    text.setData(u"application/x-lorvo-node"_s, "of another running program");
    EXPECT_FALSE(DropData(text, u"R20"_s));
    EXPECT_EQ(Node(u"P1"_s).parent, &Node(u"R10"_s));
    EXPECT_EQ(Scalar("SELECT PlemenoID FROM Psi WHERE ID = 1"), u"10"_s);
}

// kept: drop-moves-before-it-stores
TEST_F(TreeCommandsDogsTest, LeavesTreeAndStoreApartWhenADropFailsInTheStore) {
    database.Execute("DELETE FROM Psi WHERE ID = 1");
    Drop(u"P1"_s, u"R20"_s);
    EXPECT_THROW(RethrowFailure(), StoreError);
    EXPECT_EQ(Node(u"P1"_s).parent->Key(), u"R20"_s);
}

TEST_F(TreeCommandsDogsTest, SearchesOnFromMatchToMatch) {
    StandInFor(u"frmFind"_s);
    Press(Qt::Key_F3);
    EXPECT_EQ(opened, QStringList{u"frmFind"_s});
    host.search.text = u"r"_s;
    QStringList found;
    for (int times = 0; times < 4; ++times) {
        Press(Qt::Key_F3);
        found.append(host.SelectedNode());
    }
    EXPECT_EQ(found, (QStringList{u"P3"_s, u"R10"_s, u"P2"_s, u"P2"_s}));
    EXPECT_EQ(host.shown, found);
    Press(Qt::Key_Home);
    Press(Qt::Key_F3);
    EXPECT_EQ(host.SelectedNode(), u"P3"_s);
}

TEST_F(TreeCommandsDogsTest, OpensTheSearchByCtrlF) {
    StandInFor(u"frmFind"_s);
    host.search.text = u"r"_s;
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(opened, QStringList{u"frmFind"_s});
}

} // namespace
} // namespace lorvo::test
