#include "mainwindow/panels_test.h"

#include "platform/values/errors.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class NodePanelsTest : public PanelsTest {
  protected:
    NodePanelsTest() {
        Run("INSERT INTO Kruhy (ID, Nazev) VALUES (1, 'Kruh A')");
        Run("UPDATE Plemena SET ID_Kruhu = 1 WHERE ID = 12");
        AddDog(3, "Alík");
        AddDog(4, "Bára", 949, 4);
    }

    bool OnPath(const QString& key) {
        const TreeNode& node = nodes.Get(key);
        return node.colour == kPathText && node.background == kPathBackground;
    }
};

TEST_F(NodePanelsTest, ARingShowsItsFiguresAndItselfAsPath) {
    Start();
    Show(u"K1"_s);
    EXPECT_TRUE(InSight("picKruhInfo"));
    EXPECT_EQ(Title(), u"Kruh A"_s);
    EXPECT_EQ(Text("lblPlemenaCnt"), u"1"_s);
    EXPECT_EQ(Text("lblPlemenaCntPrc"), u"33,33%"_s);
    EXPECT_EQ(Text("lblDogsCnt"), u"1"_s);
    EXPECT_EQ(Text("lblDogsCntPrc"), u"50,00%"_s);
    EXPECT_EQ(Path(), u"Kruh A"_s);
    EXPECT_FALSE(Get<QLabel>("picMode").pixmap().isNull());
    EXPECT_FALSE(Get<QLabel>("sbMain(1).picture").pixmap().isNull());
}

TEST_F(NodePanelsTest, TheUnassignedRootIsShownAsARing) {
    Start();
    Show(u"K0"_s);
    EXPECT_EQ(Title(), u"Nezařazeno v kruhu"_s);
    EXPECT_EQ(Text("lblPlemenaCnt"), u"2"_s);
    EXPECT_FALSE(Get<QWidget>("lblEditKruh").isEnabled());
}

TEST_F(NodePanelsTest, ARingIsRenamedInItsWindowAlsoWhenAnotherNodeIsSelected) {
    Offer({"frmNazevKruhu"});
    Start();
    Show(u"K1"_s);
    tree->SelectNode(&nodes.Get(u"K0"_s));
    Click("lblEditKruh");
    EXPECT_EQ(opened, QStringList(u"frmNazevKruhu"_s));
    EXPECT_EQ(tree->SelectedNode()->Key(), u"K1"_s);
}

TEST_F(NodePanelsTest, ABreedShowsBothNamesAndMarksItsRing) {
    Start();
    Show(u"R12"_s);
    EXPECT_TRUE(InSight("picPlemenoInfo"));
    EXPECT_FALSE(InSight("picKruhInfo"));
    EXPECT_EQ(Title(), u"Pudl (Caniche)"_s);
    EXPECT_EQ(Text("lblDogsCount"), u"1"_s);
    EXPECT_EQ(Text("lblDogsCountPrc"), u"50,00%"_s);
    EXPECT_EQ(Text("lblFCIplemene"), u"9"_s);
    EXPECT_EQ(Path(), u"Kruh A > Pudl"_s);
    EXPECT_TRUE(OnPath(u"K1"_s));
    EXPECT_FALSE(OnPath(u"R12"_s));
}

TEST_F(NodePanelsTest, AClassCountsItsDogsAndMarksRingAndBreed) {
    look.showClasses = true;
    Start();
    Show(u"TR12|5"_s);
    EXPECT_TRUE(InSight("picTridaInfo"));
    EXPECT_EQ(Text("lblClassDogCount"), u"1"_s);
    EXPECT_EQ(Path(), u"Kruh A > Pudl > Třída otevřená"_s);
    EXPECT_TRUE(OnPath(u"K1"_s));
    EXPECT_TRUE(OnPath(u"R12"_s));
    Show(u"TR12|6"_s);
    EXPECT_EQ(Text("lblClassDogCount"), u"0"_s);
}

TEST_F(NodePanelsTest, ADogBelowItsClassHasFourStepsAndOneBelowItsBreedThree) {
    Start();
    Show(u"P3"_s);
    EXPECT_EQ(Title(), u"Alík z Lhoty"_s);
    EXPECT_EQ(Path(), u"Kruh A > Pudl > Alík"_s);
    look.showClasses = true;
    tree->LoadData();
    Show(u"P3"_s);
    EXPECT_EQ(Path(), u"Kruh A > Pudl > Třída otevřená > Alík"_s);
    EXPECT_TRUE(OnPath(u"TR12|5"_s));
    nodes.Move(&nodes.Get(u"P3"_s), &nodes.Get(u"R12"_s));
    Show(u"P3"_s);
    EXPECT_EQ(Path(), u"Kruh A > Pudl > Alík"_s);
}

TEST_F(NodePanelsTest, ASecondNodeTakesTheMarksOfTheFirstPathAwayAndLeavesHighlights) {
    Start();
    Show(u"P3"_s);
    nodes.SetBackground(&nodes.Get(u"P3"_s), kHighlight);
    Show(u"R949"_s);
    EXPECT_FALSE(OnPath(u"K1"_s));
    EXPECT_FALSE(OnPath(u"R12"_s));
    EXPECT_TRUE(OnPath(u"K0"_s));
    EXPECT_EQ(nodes.Get(u"P3"_s).background, kHighlight);
    EXPECT_EQ(nodes.Get(u"P3"_s).colour, kFemaleText);
    EXPECT_EQ(Text("sbMain(3)"), QString());
    EXPECT_TRUE(Get<QLabel>("sbMain(3).picture").pixmap().isNull());
}

// kept: fci-panel-out-of-reach
TEST_F(NodePanelsTest, AnFciGroupHasAPanel) {
    Start();
    panels->ShowFciGroup(9);
    EXPECT_TRUE(InSight("picFCIInfo"));
    EXPECT_EQ(Text("lblPlemenaInFCICount"), u"1"_s);
    EXPECT_EQ(Text("lblDogsInFCICount"), u"1"_s);
}

TEST_F(NodePanelsTest, FiguresAreReadAfreshEachTime) {
    Start();
    Show(u"R12"_s);
    AddDog(5, "Cita");
    Show(u"R12"_s);
    EXPECT_EQ(Text("lblDogsCount"), u"2"_s);
}

TEST_F(NodePanelsTest, BackAndForwardShowNodesWithoutSelectingThem) {
    Start();
    EXPECT_FALSE(Get<QWidget>("cmdHistoryBack").isEnabled());
    Show(u"K1"_s);
    EXPECT_FALSE(Get<QWidget>("cmdHistoryBack").isEnabled());
    Show(u"R12"_s);
    Show(u"P3"_s);
    EXPECT_TRUE(Get<QWidget>("cmdHistoryBack").isEnabled());
    Click("cmdHistoryBack");
    EXPECT_EQ(Title(), u"Pudl (Caniche)"_s);
    EXPECT_EQ(tree->SelectedNode()->Key(), u"P3"_s);
    EXPECT_TRUE(Get<QWidget>("cmdHistoryFwd").isEnabled());
    Click("cmdHistoryBack");
    EXPECT_EQ(Title(), u"Kruh A"_s);
    EXPECT_FALSE(Get<QWidget>("cmdHistoryBack").isEnabled());
    Click("cmdHistoryFwd");
    Click("cmdHistoryFwd");
    EXPECT_EQ(Title(), u"Alík z Lhoty"_s);
    EXPECT_FALSE(Get<QWidget>("cmdHistoryFwd").isEnabled());
}

TEST_F(NodePanelsTest, ADogThatFailsHalfwayLeavesOnShowWhatWasFilled) {
    AddDog(5, "Cvok", 12, 0);
    Start();
    Show(u"P3"_s);
    EXPECT_THROW(Show(u"P5"_s), Error);
    EXPECT_EQ(Title(), u"Cvok z Lhoty"_s);
    EXPECT_EQ(Text(u"Třída:"_s), u"otevřená"_s);
}

TEST_F(NodePanelsTest, HiddenPanelsLeaveNothingInSight) {
    Start();
    Show(u"P3"_s);
    panels->HidePanels();
    for (const char* panel : {"picKruhInfo", "picPlemenoInfo", "picTridaInfo", "picFCIInfo",
                              "picPesInfo", "picMajitelInfo"})
        EXPECT_FALSE(InSight(panel)) << panel;
}

} // namespace
} // namespace lorvo
