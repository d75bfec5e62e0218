// What the pop-up menus of the tree offer, and what their entries do.

#include "mainwindow/tree_host.h"

namespace lorvo::test {

using namespace Qt::StringLiterals;

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
    StandInFor(u"frmFind"_s);
    EXPECT_EQ(MenuOf({}), (QStringList{u"601 Přidat kruh"_s, u"---"_s, u"602 Skrýt prázdné"_s,
                                       u"603 Zobrazit vše"_s, u"607 Zrušit zvýraznění"_s, u"---"_s,
                                       u"604 Rozbalit vše"_s, u"605 Sbalit vše"_s, u"---"_s,
                                       u"606 Hledat     Ctrl+F"_s}));
    Choose({}, 606);
    EXPECT_EQ(opened, QStringList{u"frmFind"_s});
}

TEST_F(TreeMenusTest, OffersARingItsTwoEntriesAndGreysThemForTheUnassignedRoot) {
    EXPECT_EQ(MenuOf(u"K1"_s), (QStringList{u"601 Přejmenovat kruh"_s, u"602 Odstranit kruh"_s}));
    EXPECT_EQ(MenuOf(u"K0"_s),
              (QStringList{u"601 Přejmenovat kruh (-)"_s, u"602 Odstranit kruh (-)"_s}));
}

TEST_F(TreeMenusTest, OffersTheGroupsOfAnOwnBreedAndGreysThemForOthers) {
    QStringList lines = MenuOf(u"R30"_s);
    ASSERT_EQ(lines.size(), 13);
    EXPECT_TRUE(lines.first().endsWith(u"FCI"_s));
    EXPECT_EQ(lines[1], u"  500 [x] -nezařazeno-"_s);
    EXPECT_EQ(lines[2], u"  501 FCI 1"_s);
    EXPECT_EQ(lines[11], u"  510 FCI 10"_s);
    EXPECT_EQ(lines.last(), u"603 Přidat psa"_s);
    lines = MenuOf(u"R10"_s);
    EXPECT_EQ(lines[3], u"  502 [x] FCI 2 (-)"_s);
    EXPECT_EQ(lines.filter(u"(-)"_s).size(), 11);
}

TEST_F(TreeMenusTest, SetsTheGroupOfAnOwnBreed) {
    Choose(u"R30"_s, 507);
    EXPECT_EQ(Scalar("SELECT FCI FROM Plemena WHERE ID = 30"), u"7"_s);
    EXPECT_EQ(host.shown, QStringList{u"R30"_s});
    Choose(u"R30"_s, 500);
    EXPECT_EQ(Scalar("SELECT FCI FROM Plemena WHERE ID = 30"), u"0"_s);
}

TEST_F(TreeMenusTest, HasNoMenuForAClass) {
    host.look.showClasses = true;
    Load();
    Click(u"TR10|3"_s, Qt::RightButton);
    EXPECT_EQ(platform.LastMenuLines(), QStringList());
    EXPECT_EQ(host.SelectedNode(), u"TR10|3"_s);
}

TEST_F(TreeMenusTest, MarksTheDogMenuByTheDogLastShown) {
    database.Execute("UPDATE Psi SET PrvniUzaverka = -1, PrvniPes = -1 WHERE ID = 2");
    Module().CurrentDogID = 2;
    EXPECT_EQ(MenuOf(u"P1"_s),
              (QStringList{u"601 Odstranit psa"_s, u"602 Příjem platby"_s,
                           u"603 Zobrazit seznam přijatých plateb"_s, u"---"_s,
                           u"604 Zvýraznit všechny psy stejného majitele"_s,
                           u"605 Zrušit zvýraznění"_s, u"---"_s, u"606 [x] První uzávěrka"_s,
                           u"607 Druhá uzávěrka"_s, u"608 [x] První pes"_s}));
    Module().CurrentDogID = 3;
    EXPECT_EQ(
        MenuOf(u"P1"_s).mid(7),
        (QStringList{u"606 První uzávěrka"_s, u"607 [x] Druhá uzávěrka"_s, u"608 První pes"_s}));
}

TEST_F(TreeMenusTest, GreysWhatADogNotShownYetHasNot) {
    const QStringList lines = MenuOf(u"P1"_s);
    EXPECT_EQ(lines.mid(0, 3), (QStringList{u"601 Odstranit psa"_s, u"602 Příjem platby"_s,
                                            u"603 Zobrazit seznam přijatých plateb"_s}));
    EXPECT_TRUE(lines.value(9).endsWith(u"První pes (-)"_s)) << lines.value(9).toStdString();
}

TEST_F(TreeMenusTest, OpensTheWindowsOfPaymentsForTheDogPointedAt) {
    StandInFor(u"frmPlatba"_s);
    StandInFor(u"frmUhrady"_s);
    for (const int entry : {602, 603}) {
        Module().CurrentDogID = 2;
        Choose(u"P1"_s, entry);
        EXPECT_EQ(Module().CurrentDogID, 1);
    }
    EXPECT_EQ(opened, (QStringList{u"frmPlatba"_s, u"frmUhrady"_s}));
    EXPECT_EQ(host.shown, (QStringList{u"P1"_s, u"P1"_s}));
}

TEST_F(TreeMenusTest, SetsTheClosingOfTheDogLastShownNotOfTheOnePointedAt) {
    Module().CurrentDogID = 2;
    Choose(u"P1"_s, 606);
    EXPECT_EQ(Scalar("SELECT PrvniUzaverka FROM Psi WHERE ID = 2"), u"-1"_s);
    EXPECT_EQ(Scalar("SELECT PrvniUzaverka FROM Psi WHERE ID = 1"), u"0"_s);
    Choose(u"P1"_s, 607);
    EXPECT_EQ(Scalar("SELECT PrvniUzaverka FROM Psi WHERE ID = 2"), u"0"_s);
    EXPECT_EQ(host.shown, (QStringList{u"P1"_s, u"P1"_s}));
}

TEST_F(TreeMenusTest, MovesTheMarkOfTheFirstDogWithinItsOwner) {
    database.Execute("UPDATE Psi SET PrvniPes = -1 WHERE ID IN (2, 3)");
    Module().CurrentDogID = 1;
    Module().CurrentOwner = 5;
    for (int times = 0; times < 2; ++times) {
        Choose(u"P1"_s, 608);
        EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Psi WHERE PrvniPes = true"), u"2"_s);
        EXPECT_EQ(Scalar("SELECT PrvniPes FROM Psi WHERE ID = 1"), u"-1"_s);
        EXPECT_EQ(Scalar("SELECT PrvniPes FROM Psi WHERE ID = 3"), u"0"_s);
    }
    EXPECT_EQ(host.shown, (QStringList{u"P1"_s, u"P1"_s}));
}

TEST_F(TreeMenusTest, HidesEmptyNodesFromTheTreeAlone) {
    host.look.showClasses = true;
    Load("UPDATE Plemena SET ID_Kruhu = 2 WHERE ID = 20; DELETE FROM Psi WHERE ID = 3");
    Choose({}, 602);
    EXPECT_EQ(host.nodes.Count(), 6); // ring A, its breed, two of eight classes, two dogs
    EXPECT_FALSE(host.NodeExists(u"K0"_s));
    EXPECT_FALSE(host.NodeExists(u"K2"_s));
    EXPECT_TRUE(host.NodeExists(u"TR10|4"_s));
    EXPECT_EQ(Scalar("SELECT COUNT (*) FROM Plemena"), u"3"_s);
}

TEST_F(TreeMenusTest, KeepsADogAddedSinceTheReloadWhenEmptyNodesAreHidden) {
    host.AddDogNode(u"R30"_s, 77, u"Nový"_s, true);
    Choose({}, 602);
    EXPECT_TRUE(host.NodeExists(u"P77"_s));
}

TEST_F(TreeMenusTest, BringsHiddenNodesBackAndKeepsTheSelectedOneInSight) {
    host.SelectNode(u"P1"_s);
    host.nodes.SetBackground(&Node(u"P1"_s), kHighlight);
    Tree().collapseAll();
    Choose({}, 602);
    Choose({}, 603);
    EXPECT_TRUE(host.NodeExists(u"K2"_s));
    EXPECT_EQ(Background(u"P1"_s), kWhite);
    EXPECT_EQ(Tree().ExpandedKeys(), (QStringList{u"K1"_s, u"R10"_s}));
}

TEST_F(TreeMenusTest, ShowsAllWhenTheSelectedNodeIsNoMore) {
    host.SelectNode(u"P1"_s);
    database.Execute("DELETE FROM Psi WHERE ID = 1");
    Choose({}, 603);
    EXPECT_FALSE(host.NodeExists(u"P1"_s));
}

// kept: clearing-colours-takes-sexes
TEST_F(TreeMenusTest, ClearsAllColoursThoseOfTheSexesToo) {
    host.nodes.MarkOnPath(&Node(u"R10"_s));
    host.nodes.SetBackground(&Node(u"P1"_s), kHighlight);
    Choose({}, 607);
    for (const char16_t* key : {u"R10", u"P1", u"P2", u"K0"}) {
        EXPECT_EQ(Node(QString::fromUtf16(key)).colour, kBlack);
        EXPECT_EQ(Background(QString::fromUtf16(key)), kWhite);
    }
}

TEST_F(TreeMenusTest, ExpandsAndCollapsesEveryNode) {
    host.resize(400, 1000);
    Choose({}, 604);
    EXPECT_EQ(Tree().ExpandedKeys(), (QStringList{u"K0"_s, u"R20"_s, u"K1"_s, u"R10"_s}));
    Choose({}, 605);
    EXPECT_EQ(Tree().ExpandedKeys(), QStringList());
}

// kept: detail-without-entry
TEST_F(TreeMenusTest, TogglesTheDetailOfDogsByTheNumberThatNoEntryBears) {
    struct Answer : PopupMenus {
        int TrackPopup(const std::vector<MenuEntry>&) override { return 609; }
    };
    std::unique_ptr<PopupMenus> kept =
        std::exchange(ThePlatform().menus, std::make_unique<Answer>());
    ClickEmpty(Qt::RightButton);
    EXPECT_TRUE(host.look.dogDetailInTree);
    EXPECT_EQ(host.NodeText(u"P3"_s), u"Cvrk (II. uzávěrka)"_s);
    ClickEmpty(Qt::RightButton);
    EXPECT_EQ(host.NodeText(u"P3"_s), u"Cvrk"_s);
    ThePlatform().menus = std::move(kept);
}

TEST_F(TreeMenusTest, HighlightsAllDogsOfTheCurrentOwner) {
    Module().CurrentOwner = 5;
    host.nodes.SetBackground(&Node(u"P2"_s), kHighlight);
    Load("INSERT INTO Plemena (ID, Nazev, ID_Kruhu, Pouzivat) VALUES (40, 'Skryté', 0, 0);"
         "INSERT INTO Psi (ID, Jmeno, PlemenoID, MajitelID) VALUES (9, 'Bez uzlu', 40, 5)");
    Choose(u"P2"_s, 604);
    EXPECT_EQ(Background(u"P1"_s), kHighlight);
    EXPECT_EQ(Background(u"P3"_s), kHighlight);
    EXPECT_EQ(Background(u"P2"_s), kWhite);
    EXPECT_EQ(Tree().ExpandedKeys(), (QStringList{u"K0"_s, u"R20"_s, u"K1"_s, u"R10"_s}));
    EXPECT_FALSE(Tree().IsSelectionBarShown());

    Click(u"P1"_s);
    EXPECT_EQ(Background(u"P3"_s), kHighlight);
    Choose(u"P2"_s, 605);
    EXPECT_EQ(Background(u"P1"_s), kWhite);
    EXPECT_EQ(Node(u"P1"_s).colour, kMaleText);
    EXPECT_TRUE(Tree().IsSelectionBarShown());
}

TEST_F(TreeMenusTest, ForgetsTheHighlightAtAReloadAlone) {
    Module().CurrentOwner = 5;
    Choose(u"P2"_s, 604);
    Choose({}, 603);
    EXPECT_EQ(Background(u"P1"_s), kWhite);
    EXPECT_EQ(Background(u"P3"_s), kWhite);
}

} // namespace
} // namespace lorvo::test
