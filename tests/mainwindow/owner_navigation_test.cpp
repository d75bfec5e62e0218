#include "mainwindow/panels_test.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class OwnerNavigationTest : public PanelsTest {
  protected:
    void AddThreeDogs() {
        AddDog(3, "Bára");
        AddDog(4, "Alík");
        AddDog(5, "Cita", 949, 4);
    }
};

TEST_F(OwnerNavigationTest, PreviousAndNextStepThroughTheOwnersDogsByName) {
    AddThreeDogs();
    Start();
    Show(u"P3"_s);
    EXPECT_TRUE(InSight("picPrev"));
    EXPECT_TRUE(InSight("picNext"));
    EXPECT_TRUE(InSight("picList"));
    EXPECT_EQ(Get<QWidget>("picPrev").toolTip(), u"Alík z Lhoty"_s);
    EXPECT_EQ(Get<QWidget>("picNext").toolTip(), u"Cita z Lhoty"_s);
    Click("picNext");
    EXPECT_EQ(tree->SelectedNode()->Key(), u"P5"_s);
    EXPECT_EQ(Title(), u"Cita z Lhoty"_s);
    EXPECT_TRUE(tree->hasFocus());
    EXPECT_FALSE(InSight("picNext"));
    EXPECT_TRUE(InSight("picList"));
    Click("picPrev");
    Click("picPrev");
    EXPECT_EQ(Title(), u"Alík z Lhoty"_s);
    EXPECT_FALSE(InSight("picPrev"));
}

TEST_F(OwnerNavigationTest, AnOnlyDogHasNoPictures) {
    AddDog(3, "Bára");
    Start();
    Show(u"P3"_s);
    for (const char* picture : {"picPrev", "picNext", "picList"})
        EXPECT_FALSE(InSight(picture)) << picture;
    EXPECT_TRUE(InSight("picEditMajitele"));
}

TEST_F(OwnerNavigationTest, ANeighbourThatIsGoneFromTheTreeIsLeftAlone) {
    AddThreeDogs();
    Start();
    Show(u"P3"_s);
    nodes.Remove(&nodes.Get(u"P5"_s));
    Click("picNext");
    EXPECT_EQ(Title(), u"Bára z Lhoty"_s);
    EXPECT_EQ(tree->SelectedNode()->Key(), u"P3"_s);
}

TEST_F(OwnerNavigationTest, TheMenuListsTheDogsWithTheCurrentOneMarked) {
    AddThreeDogs();
    Start();
    Show(u"P3"_s);
    platform.ExpectMenu(0);
    Click("picList");
    EXPECT_EQ(
        platform.LastMenuLines(),
        (QStringList{u"4 Alík"_s, u"3 [x] Bára"_s, u"5 Cita"_s, u"---"_s,
                     u"-1 Zvýraznit všechny psy tohoto majitele"_s, u"-3 Zrušit zvýraznění"_s}));
    EXPECT_EQ(Title(), u"Bára z Lhoty"_s);
}

TEST_F(OwnerNavigationTest, ADogOfTheMenuIsSelectedAndShown) {
    AddThreeDogs();
    Start();
    Show(u"P3"_s);
    platform.ExpectMenu(5);
    QTest::mouseClick(Value(u"Jméno:"_s), Qt::RightButton);
    EXPECT_EQ(tree->SelectedNode()->Key(), u"P5"_s);
    EXPECT_EQ(Title(), u"Cita z Lhoty"_s);
}

TEST_F(OwnerNavigationTest, HighlightingMarksTheOwnersDogsAloneUntilItIsTakenAway) {
    AddThreeDogs();
    Run("INSERT INTO Psi (ID, Jmeno, PlemenoID, MajitelID, Trida) VALUES (9, 'Cizí', 12, 8, 5)");
    Start();
    nodes.SetBackground(&nodes.Get(u"P9"_s), kHighlight);
    Show(u"P3"_s);
    platform.ExpectMenu(-1);
    Click("picList");
    for (const char16_t* key : {u"P3", u"P4", u"P5"})
        EXPECT_EQ(nodes.Get(QString::fromUtf16(key)).background, kHighlight);
    EXPECT_EQ(nodes.Get(u"P9"_s).background, kWhite);
    EXPECT_FALSE(tree->IsSelectionBarShown());
    Show(u"P9"_s);
    EXPECT_EQ(nodes.Get(u"P4"_s).background, kHighlight);
    Show(u"P3"_s);
    platform.ExpectMenu(-3);
    Click("picList");
    EXPECT_EQ(nodes.Get(u"P4"_s).background, kWhite);
    EXPECT_TRUE(tree->IsSelectionBarShown());
}

TEST_F(OwnerNavigationTest, ADogThatIsGoneFromTheDataHasNoMenu) {
    AddThreeDogs();
    Start();
    Show(u"P3"_s);
    Run("DELETE FROM Psi WHERE ID = 3");
    Click("picList");
    EXPECT_THROW(RethrowFailure(), StoreError);
    EXPECT_TRUE(platform.LastMenuLines().isEmpty());
}

} // namespace
} // namespace lorvo
