// What the pop-up menus of the tree offer, and what their entries do.

#include "mainwindow/tree_host.h"

namespace lorvo::test {
namespace {

class TreeMenusTest : public TreeTest {
  protected:
    QStringList MenuOf(const QString& key) {
        Choose(key, 0);
        return platform.LastMenuLines();
    }
    QRgb Background(const QString& key) const { return Node(key).background; }
};

TEST_F(TreeMenusTest, OffersTheRootMenuOverNoNode) {
    StandInFor(u"frmFind"_qs);
    EXPECT_EQ(MenuOf({}), (QStringList{u"601 Přidat kruh"_qs, u"---"_qs, u"602 Skrýt prázdné"_qs,
                                       u"603 Zobrazit vše"_qs, u"607 Zrušit zvýraznění"_qs,
                                       u"---"_qs, u"604 Rozbalit vše"_qs, u"605 Sbalit vše"_qs,
                                       u"---"_qs, u"606 Hledat     Ctrl+F"_qs}));
    Choose({}, 606);
    EXPECT_EQ(opened, QStringList{u"frmFind"_qs});
}

TEST_F(TreeMenusTest, OffersARingItsTwoEntriesAndGreysThemForTheUnassignedRoot) {
    EXPECT_EQ(MenuOf(u"K1"_qs),
              (QStringList{u"601 Přejmenovat kruh"_qs, u"602 Odstranit kruh"_qs}));
    EXPECT_EQ(MenuOf(u"K0"_qs),
              (QStringList{u"601 Přejmenovat kruh (-)"_qs, u"602 Odstranit kruh (-)"_qs}));
}

TEST_F(TreeMenusTest, OffersTheGroupsOfAnOwnBreedAndGreysThemForOthers) {
    QStringList lines = MenuOf(u"R30"_qs);
    ASSERT_EQ(lines.size(), 13);
    EXPECT_TRUE(lines.first().endsWith(u"FCI"_qs));
    EXPECT_EQ(lines[1], u"  500 [x] -nezařazeno-"_qs);
    EXPECT_EQ(lines[2], u"  501 FCI 1"_qs);
    EXPECT_EQ(lines[11], u"  510 FCI 10"_qs);
    EXPECT_EQ(lines.last(), u"603 Přidat psa"_qs);
    lines = MenuOf(u"R10"_qs);
    EXPECT_EQ(lines[3], u"  502 [x] FCI 2 (-)"_qs);
    EXPECT_EQ(lines.filter(u"(-)"_qs).size(), 11);
}

TEST_F(TreeMenusTest, SetsTheGroupOfAnOwnBreed) {
    Choose(u"R30"_qs, 507);
    EXPECT_EQ(Scalar("SELECT FCI FROM Plemena WHERE ID = 30"), u"7"_qs);
    EXPECT_EQ(host.shown, QStringList{u"R30"_qs});
    Choose(u"R30"_qs, 500);
    EXPECT_EQ(Scalar("SELECT FCI FROM Plemena WHERE ID = 30"), u"0"_qs);
}

TEST_F(TreeMenusTest, HasNoMenuForAClass) {
    Module().ShowClassesOn = true;
    Load();
    Click(u"TR10|3"_qs, Qt::RightButton);
    EXPECT_EQ(platform.LastMenuLines(), QStringList());
    EXPECT_EQ(host.SelectedNode(), u"TR10|3"_qs);
}

TEST_F(TreeMenusTest, MarksTheDogMenuByTheDogLastShown) {
    database.Execute("UPDATE Psi SET PrvniUzaverka = -1, PrvniPes = -1 WHERE ID = 2");
    Module().CurrentDogID = 2;
    EXPECT_EQ(MenuOf(u"P1"_qs),
              (QStringList{u"601 Odstranit psa"_qs, u"602 Příjem platby"_qs,
                           u"603 Zobrazit seznam přijatých plateb"_qs, u"---"_qs,
                           u"604 Zvýraznit všechny psy stejného majitele"_qs,
                           u"605 Zrušit zvýraznění"_qs, u"---"_qs, u"606 [x] První uzávěrka"_qs,
                           u"607 Druhá uzávěrka"_qs, u"608 [x] První pes"_qs}));
    Module().CurrentDogID = 3;
    EXPECT_EQ(
        MenuOf(u"P1"_qs).mid(7),
        (QStringList{u"606 První uzávěrka"_qs, u"607 [x] Druhá uzávěrka"_qs, u"608 První pes"_qs}));
}

TEST_F(TreeMenusTest, GreysWhatADogNotShownYetHasNot) {
    const QStringList lines = MenuOf(u"P1"_qs);
    EXPECT_EQ(lines.mid(0, 3), (QStringList{u"601 Odstranit psa"_qs, u"602 Příjem platby"_qs,
                                            u"603 Zobrazit seznam přijatých plateb"_qs}));
    EXPECT_TRUE(lines.value(9).endsWith(u"První pes (-)"_qs)) << lines.value(9).toStdString();
}

TEST_F(TreeMenusTest, OpensTheWindowsOfPaymentsForTheDogPointedAt) {
    StandInFor(u"frmPlatba"_qs);
    StandInFor(u"frmUhrady"_qs);
    for (const int entry : {602, 603}) {
        Module().CurrentDogID = 2;
        Choose(u"P1"_qs, entry);
        EXPECT_EQ(Module().CurrentDogID, 1);
    }
    EXPECT_EQ(opened, (QStringList{u"frmPlatba"_qs, u"frmUhrady"_qs}));
    EXPECT_EQ(host.shown, (QStringList{u"P1"_qs, u"P1"_qs}));
}

TEST_F(TreeMenusTest, SetsTheClosingOfTheDogLastShownNotOfTheOnePointedAt) {
    Module().CurrentDogID = 2;
    Choose(u"P1"_qs, 606);
    EXPECT_EQ(Scalar("SELECT PrvniUzaverka FROM Psi WHERE ID = 2"), u"-1"_qs);
    EXPECT_EQ(Scalar("SELECT PrvniUzaverka FROM Psi WHERE ID = 1"), u"0"_qs);
    Choose(u"P1"_qs, 607);
    EXPECT_EQ(Scalar("SELECT PrvniUzaverka FROM Psi WHERE ID = 2"), u"0"_qs);
    EXPECT_EQ(host.shown, (QStringList{u"P1"_qs, u"P1"_qs}));
}

TEST_F(TreeMenusTest, MovesTheMarkOfTheFirstDogWithinItsOwner) {
    database.Execute("UPDATE Psi SET PrvniPes = -1 WHERE ID IN (2, 3)");
    Module().CurrentDogID = 1;
    Module().CurrentOwner = 5;
    for (int times = 0; times < 2; ++times) {
        Choose(u"P1"_qs, 608);
        EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Psi WHERE PrvniPes = true"), u"2"_qs);
        EXPECT_EQ(Scalar("SELECT PrvniPes FROM Psi WHERE ID = 1"), u"-1"_qs);
        EXPECT_EQ(Scalar("SELECT PrvniPes FROM Psi WHERE ID = 3"), u"0"_qs);
    }
    EXPECT_EQ(host.shown, (QStringList{u"P1"_qs, u"P1"_qs}));
}

TEST_F(TreeMenusTest, HidesEmptyNodesFromTheTreeAlone) {
    Module().ShowClassesOn = true;
    Load("UPDATE Plemena SET ID_Kruhu = 2 WHERE ID = 20; DELETE FROM Psi WHERE ID = 3");
    Choose({}, 602);
    EXPECT_EQ(host.nodes.Count(), 6); // ring A, its breed, two of eight classes, two dogs
    EXPECT_FALSE(host.NodeExists(u"K0"_qs));
    EXPECT_FALSE(host.NodeExists(u"K2"_qs));
    EXPECT_TRUE(host.NodeExists(u"TR10|4"_qs));
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Plemena"), u"3"_qs);
}

TEST_F(TreeMenusTest, KeepsADogAddedSinceTheReloadWhenEmptyNodesAreHidden) {
    host.AddDogNode(u"R30"_qs, 77, u"Nový"_qs, true);
    Choose({}, 602);
    EXPECT_TRUE(host.NodeExists(u"P77"_qs));
}

TEST_F(TreeMenusTest, BringsHiddenNodesBackAndKeepsTheSelectedOneInSight) {
    host.SelectNode(u"P1"_qs);
    host.nodes.SetBackground(&Node(u"P1"_qs), kHighlight);
    Tree().collapseAll();
    Choose({}, 602);
    Choose({}, 603);
    EXPECT_TRUE(host.NodeExists(u"K2"_qs));
    EXPECT_EQ(Background(u"P1"_qs), kWhite);
    EXPECT_EQ(Tree().ExpandedKeys(), (QStringList{u"K1"_qs, u"R10"_qs}));
}

TEST_F(TreeMenusTest, ShowsAllWhenTheSelectedNodeIsNoMore) {
    host.SelectNode(u"P1"_qs);
    database.Execute("DELETE FROM Psi WHERE ID = 1");
    Choose({}, 603);
    EXPECT_FALSE(host.NodeExists(u"P1"_qs));
}

TEST_F(TreeMenusTest, ClearsAllColoursThoseOfTheSexesToo) {
    host.nodes.MarkOnPath(&Node(u"R10"_qs));
    host.nodes.SetBackground(&Node(u"P1"_qs), kHighlight);
    Choose({}, 607);
    for (const char16_t* key : {u"R10", u"P1", u"P2", u"K0"}) {
        EXPECT_EQ(Node(QString::fromUtf16(key)).colour, kBlack);
        EXPECT_EQ(Background(QString::fromUtf16(key)), kWhite);
    }
}

TEST_F(TreeMenusTest, ExpandsAndCollapsesEveryNode) {
    host.resize(400, 1000);
    Choose({}, 604);
    EXPECT_EQ(Tree().ExpandedKeys(), (QStringList{u"K0"_qs, u"R20"_qs, u"K1"_qs, u"R10"_qs}));
    Choose({}, 605);
    EXPECT_EQ(Tree().ExpandedKeys(), QStringList());
}

TEST_F(TreeMenusTest, TogglesTheDetailOfDogsByTheNumberThatNoEntryBears) {
    struct Answer : PopupMenus {
        int TrackPopup(const std::vector<MenuEntry>&) override { return 609; }
    };
    std::unique_ptr<PopupMenus> kept =
        std::exchange(ThePlatform().menus, std::make_unique<Answer>());
    ClickEmpty(Qt::RightButton);
    EXPECT_TRUE(Module().DogDetailInTree);
    EXPECT_EQ(host.NodeText(u"P3"_qs), u"Cvrk (II. uzávěrka)"_qs);
    ClickEmpty(Qt::RightButton);
    EXPECT_EQ(host.NodeText(u"P3"_qs), u"Cvrk"_qs);
    ThePlatform().menus = std::move(kept);
}

TEST_F(TreeMenusTest, HighlightsAllDogsOfTheCurrentOwner) {
    Module().CurrentOwner = 5;
    host.nodes.SetBackground(&Node(u"P2"_qs), kHighlight);
    Load("INSERT INTO Plemena (ID, Nazev, ID_Kruhu, Pouzivat) VALUES (40, 'Skryté', 0, 0);"
         "INSERT INTO Psi (ID, Jmeno, PlemenoID, MajitelID) VALUES (9, 'Bez uzlu', 40, 5)");
    Choose(u"P2"_qs, 604);
    EXPECT_EQ(Background(u"P1"_qs), kHighlight);
    EXPECT_EQ(Background(u"P3"_qs), kHighlight);
    EXPECT_EQ(Background(u"P2"_qs), kWhite);
    EXPECT_EQ(Tree().ExpandedKeys(), (QStringList{u"K0"_qs, u"R20"_qs, u"K1"_qs, u"R10"_qs}));
    EXPECT_FALSE(Tree().IsSelectionBarShown());

    Click(u"P1"_qs);
    EXPECT_EQ(Background(u"P3"_qs), kHighlight);
    Choose(u"P2"_qs, 605);
    EXPECT_EQ(Background(u"P1"_qs), kWhite);
    EXPECT_EQ(Node(u"P1"_qs).colour, kMaleText);
    EXPECT_TRUE(Tree().IsSelectionBarShown());
}

TEST_F(TreeMenusTest, ForgetsTheHighlightAtAReloadAlone) {
    Module().CurrentOwner = 5;
    Choose(u"P2"_qs, 604);
    Choose({}, 603);
    EXPECT_EQ(Background(u"P1"_qs), kWhite);
    EXPECT_EQ(Background(u"P3"_qs), kWhite);
}

} // namespace
} // namespace lorvo::test
