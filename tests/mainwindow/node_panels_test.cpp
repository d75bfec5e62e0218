#include "mainwindow/panels_test.h"

#include "platform/values/errors.h"

namespace lorvo {
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
    Show(u"K1"_qs);
    EXPECT_TRUE(InSight("picKruhInfo"));
    EXPECT_EQ(Title(), u"Kruh A"_qs);
    EXPECT_EQ(Text("lblPlemenaCnt"), u"1"_qs);
    EXPECT_EQ(Text("lblPlemenaCntPrc"), u"33,33%"_qs);
    EXPECT_EQ(Text("lblDogsCnt"), u"1"_qs);
    EXPECT_EQ(Text("lblDogsCntPrc"), u"50,00%"_qs);
    EXPECT_EQ(Path(), u"Kruh A"_qs);
    EXPECT_FALSE(Get<QLabel>("picMode").pixmap().isNull());
    EXPECT_FALSE(Get<QLabel>("sbMain(1).picture").pixmap().isNull());
}

TEST_F(NodePanelsTest, TheUnassignedRootIsShownAsARing) {
    Start();
    Show(u"K0"_qs);
    EXPECT_EQ(Title(), u"Nezařazeno v kruhu"_qs);
    EXPECT_EQ(Text("lblPlemenaCnt"), u"2"_qs);
    EXPECT_FALSE(Get<QWidget>("lblEditKruh").isEnabled());
}

TEST_F(NodePanelsTest, ARingIsRenamedInItsWindowAlsoWhenAnotherNodeIsSelected) {
    Offer({"frmNazevKruhu"});
    Start();
    Show(u"K1"_qs);
    tree->SelectNode(&nodes.Get(u"K0"_qs));
    Click("lblEditKruh");
    EXPECT_EQ(opened, QStringList(u"frmNazevKruhu"_qs));
    EXPECT_EQ(tree->SelectedNode()->Key(), u"K1"_qs);
}

TEST_F(NodePanelsTest, ABreedShowsBothNamesAndMarksItsRing) {
    Start();
    Show(u"R12"_qs);
    EXPECT_TRUE(InSight("picPlemenoInfo"));
    EXPECT_FALSE(InSight("picKruhInfo"));
    EXPECT_EQ(Title(), u"Pudl (Caniche)"_qs);
    EXPECT_EQ(Text("lblDogsCount"), u"1"_qs);
    EXPECT_EQ(Text("lblDogsCountPrc"), u"50,00%"_qs);
    EXPECT_EQ(Text("lblFCIplemene"), u"9"_qs);
    EXPECT_EQ(Path(), u"Kruh A > Pudl"_qs);
    EXPECT_TRUE(OnPath(u"K1"_qs));
    EXPECT_FALSE(OnPath(u"R12"_qs));
}

TEST_F(NodePanelsTest, AClassCountsItsDogsAndMarksRingAndBreed) {
    Module().ShowClassesOn = true;
    Start();
    Show(u"TR12|5"_qs);
    EXPECT_TRUE(InSight("picTridaInfo"));
    EXPECT_EQ(Text("lblClassDogCount"), u"1"_qs);
    EXPECT_EQ(Path(), u"Kruh A > Pudl > Třída otevřená"_qs);
    EXPECT_TRUE(OnPath(u"K1"_qs));
    EXPECT_TRUE(OnPath(u"R12"_qs));
    Show(u"TR12|6"_qs);
    EXPECT_EQ(Text("lblClassDogCount"), u"0"_qs);
}

TEST_F(NodePanelsTest, ADogBelowItsClassHasFourStepsAndOneBelowItsBreedThree) {
    Start();
    Show(u"P3"_qs);
    EXPECT_EQ(Title(), u"Alík z Lhoty"_qs);
    EXPECT_EQ(Path(), u"Kruh A > Pudl > Alík"_qs);
    Module().ShowClassesOn = true;
    tree->LoadData();
    Show(u"P3"_qs);
    EXPECT_EQ(Path(), u"Kruh A > Pudl > Třída otevřená > Alík"_qs);
    EXPECT_TRUE(OnPath(u"TR12|5"_qs));
    nodes.Move(&nodes.Get(u"P3"_qs), &nodes.Get(u"R12"_qs));
    Show(u"P3"_qs);
    EXPECT_EQ(Path(), u"Kruh A > Pudl > Alík"_qs);
}

TEST_F(NodePanelsTest, ASecondNodeTakesTheMarksOfTheFirstPathAwayAndLeavesHighlights) {
    Start();
    Show(u"P3"_qs);
    nodes.SetBackground(&nodes.Get(u"P3"_qs), kHighlight);
    Show(u"R949"_qs);
    EXPECT_FALSE(OnPath(u"K1"_qs));
    EXPECT_FALSE(OnPath(u"R12"_qs));
    EXPECT_TRUE(OnPath(u"K0"_qs));
    EXPECT_EQ(nodes.Get(u"P3"_qs).background, kHighlight);
    EXPECT_EQ(nodes.Get(u"P3"_qs).colour, kFemaleText);
    EXPECT_EQ(Text("sbMain(3)"), QString());
    EXPECT_TRUE(Get<QLabel>("sbMain(3).picture").pixmap().isNull());
}

TEST_F(NodePanelsTest, AnFciGroupHasAPanel) {
    Start();
    panels->ShowFciGroup(9);
    EXPECT_TRUE(InSight("picFCIInfo"));
    EXPECT_EQ(Text("lblPlemenaInFCICount"), u"1"_qs);
    EXPECT_EQ(Text("lblDogsInFCICount"), u"1"_qs);
}

TEST_F(NodePanelsTest, FiguresAreReadAfreshEachTime) {
    Start();
    Show(u"R12"_qs);
    AddDog(5, "Cita");
    Show(u"R12"_qs);
    EXPECT_EQ(Text("lblDogsCount"), u"2"_qs);
}

TEST_F(NodePanelsTest, BackAndForwardShowNodesWithoutSelectingThem) {
    Start();
    EXPECT_FALSE(Get<QWidget>("cmdHistoryBack").isEnabled());
    Show(u"K1"_qs);
    EXPECT_FALSE(Get<QWidget>("cmdHistoryBack").isEnabled());
    Show(u"R12"_qs);
    Show(u"P3"_qs);
    EXPECT_TRUE(Get<QWidget>("cmdHistoryBack").isEnabled());
    Click("cmdHistoryBack");
    EXPECT_EQ(Title(), u"Pudl (Caniche)"_qs);
    EXPECT_EQ(tree->SelectedNode()->Key(), u"P3"_qs);
    EXPECT_TRUE(Get<QWidget>("cmdHistoryFwd").isEnabled());
    Click("cmdHistoryBack");
    EXPECT_EQ(Title(), u"Kruh A"_qs);
    EXPECT_FALSE(Get<QWidget>("cmdHistoryBack").isEnabled());
    Click("cmdHistoryFwd");
    Click("cmdHistoryFwd");
    EXPECT_EQ(Title(), u"Alík z Lhoty"_qs);
    EXPECT_FALSE(Get<QWidget>("cmdHistoryFwd").isEnabled());
}

TEST_F(NodePanelsTest, ADogThatFailsHalfwayLeavesOnShowWhatWasFilled) {
    AddDog(5, "Cvok", 12, 0);
    Start();
    Show(u"P3"_qs);
    EXPECT_THROW(Show(u"P5"_qs), Error);
    EXPECT_EQ(Title(), u"Cvok z Lhoty"_qs);
    EXPECT_EQ(Text(u"Třída:"_qs), u"otevřená"_qs);
}

TEST_F(NodePanelsTest, HiddenPanelsLeaveNothingInSight) {
    Start();
    Show(u"P3"_qs);
    panels->HidePanels();
    for (const char* panel : {"picKruhInfo", "picPlemenoInfo", "picTridaInfo", "picFCIInfo",
                              "picPesInfo", "picMajitelInfo"})
        EXPECT_FALSE(InSight(panel)) << panel;
}

} // namespace
} // namespace lorvo
