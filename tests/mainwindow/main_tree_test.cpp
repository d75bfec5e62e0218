#include "mainwindow/tree_host.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QImage>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolTip>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class MainTreeTest : public TreeTest {
  protected:
    bool IsExpanded(const QString& key) const {
        const auto& model = static_cast<const TreeModel&>(*Tree().model());
        return Tree().isExpanded(model.IndexOf(&Node(key)));
    }
    void SetExpanded(const QString& key, bool expanded) const {
        const auto& model = static_cast<const TreeModel&>(*Tree().model());
        Tree().setExpanded(model.IndexOf(&Node(key)), expanded);
    }
};

TEST_F(MainTreeTest, StartsCollapsedWithNothingSelected) {
    EXPECT_EQ(Tree().ExpandedKeys(), QStringList());
    EXPECT_EQ(Tree().SelectedNode(), nullptr);
    EXPECT_EQ(Tree().objectName(), u"tvwMain"_s);
    EXPECT_TRUE(Tree().uniformRowHeights());
}

TEST_F(MainTreeTest, SelectsTheNodeUnderAPressOfAnyButton) {
    Choose(u"P1"_s, 0);
    EXPECT_EQ(host.SelectedNode(), u"P1"_s);
    Click(u"K2"_s, Qt::MiddleButton);
    EXPECT_EQ(host.SelectedNode(), u"K2"_s);
    EXPECT_EQ(host.shown, QStringList());
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, Qt::ControlModifier, PlaceOf(u"K2"_s));
    EXPECT_EQ(host.SelectedNode(), u"K2"_s);
}

TEST_F(MainTreeTest, ShowsTheNodeOnALeftClick) {
    Click(u"R10"_s);
    EXPECT_EQ(host.shown, QStringList{u"R10"_s});
}

TEST_F(MainTreeTest, SelectsByAPressOnTheOpeningSignToo) {
    const QPoint text = PlaceOf(u"K1"_s);
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, {8, text.y()});
    EXPECT_EQ(host.SelectedNode(), u"K1"_s);
    EXPECT_TRUE(IsExpanded(u"K1"_s));
}

TEST_F(MainTreeTest, ShowsTheWholeTextOfACutNodeUnderTheMouse) {
    const auto tipOver = [this](const QString& key) {
        const QPoint at = PlaceOf(key);
        QHelpEvent event(QEvent::ToolTip, at, Tree().viewport()->mapToGlobal(at));
        const bool shown = QCoreApplication::sendEvent(Tree().viewport(), &event);
        return shown ? QToolTip::text() : QString();
    };
    const QString name = u"Kruh 01 – hala A, u západního vchodu za veterinární přejímkou"_s;
    host.nodes.SetText(&Node(u"K1"_s), name);
    host.resize(220, 400);
    QCoreApplication::processEvents();
    EXPECT_EQ(tipOver(u"K1"_s), name);
    host.resize(900, 400);
    QCoreApplication::processEvents();
    tipOver(u"K1"_s);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); })) << "nothing is cut";
}

TEST_F(MainTreeTest, FindsNoNodeRightOfItsText) {
    const QPoint text = PlaceOf(u"K1"_s);
    EXPECT_TRUE(Tree().indexAt(text).isValid());
    EXPECT_FALSE(Tree().indexAt({Tree().viewport()->width() - 4, text.y()}).isValid());
}

TEST_F(MainTreeTest, KeepsTheSelectionWhileTheMouseMovesWithAButtonDown) {
    const QPoint from = PlaceOf(u"K1"_s), to = PlaceOf(u"K2"_s);
    QTest::mousePress(Tree().viewport(), Qt::LeftButton, {}, from);
    QTest::mouseMove(Tree().viewport(), to);
    QTest::mouseRelease(Tree().viewport(), Qt::LeftButton, {}, to);
    EXPECT_EQ(host.SelectedNode(), u"K1"_s);
    EXPECT_EQ(host.shown, QStringList());
}

TEST_F(MainTreeTest, ShowsANodeThatTheClerkCollapses) {
    SetExpanded(u"K1"_s, true);
    EXPECT_EQ(host.shown, QStringList());
    SetExpanded(u"K1"_s, false);
    EXPECT_EQ(host.shown, QStringList{u"K1"_s});
}

TEST_F(MainTreeTest, CollapsesEveryNodeWithoutShowingAnother) {
    Tree().ExpandEveryNode();
    host.SelectNode(u"P1"_s);
    Choose({}, 605);
    EXPECT_EQ(Tree().ExpandedKeys(), QStringList());
    EXPECT_EQ(host.shown, QStringList());
    EXPECT_EQ(host.SelectedNode(), u"P1"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(host.SelectedNode(), u"K2"_s) << "the keyboard goes on from what stands for P1";
}

TEST_F(MainTreeTest, GoesToTheFirstNodeByHomeOrDownWhenNothingIsSelected) {
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down}) {
        Load();
        Tree().setCurrentIndex({});
        Tree().clearFocus();
        Tree().setFocus(Qt::TabFocusReason);
        Press(key);
        EXPECT_EQ(host.SelectedNode(), u"K0"_s);
    }
}

TEST_F(MainTreeTest, FindsNothingToGoToInATreeThatWasHiddenWhole) {
    Load("DELETE FROM Psi");
    Choose({}, 602);
    ASSERT_EQ(host.nodes.First(), nullptr);
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Up, Qt::Key_End}) {
        Press(key);
        EXPECT_EQ(host.SelectedNode(), QString());
    }
}

TEST_F(MainTreeTest, TheKeyboardStaysWhereItStoodAfterAReload) {
    host.SelectNode(u"P1"_s);
    Load();
    EXPECT_EQ(host.SelectedNode(), QString());
    EXPECT_EQ(Tree().ExpandedKeys(), QStringList());
    host.MakeNodeVisible(u"P1"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(host.SelectedNode(), u"P2"_s);
}

TEST_F(MainTreeTest, OpensTheMenuOfTheCurrentNodeByAKey) {
    host.SelectNode(u"P1"_s);
    platform.ExpectMenu(0);
    Press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(platform.LastMenuLines().front().contains(u"Odstranit psa"_s));
    host.SelectNode(u"K1"_s);
    platform.ExpectMenu(0);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(Tree().viewport(), &key);
    EXPECT_TRUE(platform.LastMenuLines().front().contains(u"Přejmenovat kruh"_s));
}

TEST_F(MainTreeTest, OpensTheMenuOfTheCurrentNodeAfterAReload) {
    host.SelectNode(u"P1"_s);
    Load();
    host.MakeNodeVisible(u"P1"_s);
    platform.ExpectMenu(0);
    Press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(platform.LastMenuLines().front().contains(u"Odstranit psa"_s));
    EXPECT_EQ(host.SelectedNode(), u"P1"_s);
}

TEST_F(MainTreeTest, OpensTheMenuOfTheEmptyPlaceByAKeyWhenNothingIsSelected) {
    platform.ExpectMenu(0);
    Press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(platform.LastMenuLines().front().contains(u"Přidat kruh"_s));
}

TEST_F(MainTreeTest, EndsEveryKeyByShowingTheSelectedNode) {
    Press(Qt::Key_A);
    host.SelectNode(u"K1"_s);
    host.shown.clear();
    Press(Qt::Key_Down);
    Press(Qt::Key_Escape);
    EXPECT_EQ(host.shown, (QStringList{u"K2"_s, u"K2"_s}));
}

TEST_F(MainTreeTest, ShowsNothingOnAKeyWithoutASelection) {
    StandInFor(u"frmFind"_s);
    Press(Qt::Key_F3);
    EXPECT_EQ(host.shown, QStringList());
}

TEST_F(MainTreeTest, PutsTheSearchBackToTheStartOnHome) {
    host.SelectNode(u"P1"_s);
    host.search.start = 7;
    Press(Qt::Key_Home);
    EXPECT_EQ(host.search.start, 1);
    EXPECT_EQ(host.shown, QStringList{u"K0"_s});
}

TEST_F(MainTreeTest, EditsInPlaceOnlyWhatItIsToldTo) {
    host.SelectNode(u"K1"_s);
    static_cast<QAbstractItemView&>(Tree()).edit(Tree().currentIndex());
    EXPECT_EQ(Editor(), nullptr);
    Tree().StartLabelEdit(&Node(u"K1"_s));
    EXPECT_NE(Editor(), nullptr);
}

TEST_F(MainTreeTest, ExpandsAllAboveANodeThatIsMadeVisible) {
    host.MakeNodeVisible(u"P2"_s);
    EXPECT_EQ(Tree().ExpandedKeys(), (QStringList{u"K1"_s, u"R10"_s}));
    EXPECT_EQ(Tree().SelectedNode(), nullptr);
}

// kept: class-nodes-collapsed
TEST_F(MainTreeTest, RestoresExpandedRingsAndBreedsButNoClasses) {
    platform.settings[u"Sys\\ExpandedItems"_s] = u"K1|R10|TR10|3"_s;
    host.look.showClasses = true;
    Load();
    EXPECT_EQ(Tree().ExpandedKeys(), (QStringList{u"K1"_s, u"R10"_s}));
}

TEST_F(MainTreeTest, IgnoresWhatWasExpandedWhileClassesAreOff) {
    platform.settings[u"Sys\\ExpandedItems"_s] = u"K1|R10"_s;
    Load();
    EXPECT_EQ(Tree().ExpandedKeys(), QStringList());
}

TEST_F(MainTreeTest, ForgetsSelectionAndExpansionAtAReload) {
    host.SelectNode(u"P1"_s);
    Load();
    EXPECT_EQ(Tree().SelectedNode(), nullptr);
    EXPECT_EQ(Tree().ExpandedKeys(), QStringList());
}

TEST_F(MainTreeTest, ShowsTheHighlightOfASelectedNodeWithoutTheSelectionBar) {
    host.SelectNode(u"P1"_s);
    host.nodes.SetBackground(&Node(u"P1"_s), kHighlight);
    const int y = PlaceOf(u"P1"_s).y();
    const auto pixel = [&](int x) {
        return Tree().viewport()->grab().toImage().pixelColor(x, y);
    };
    const int right = Tree().viewport()->width() - 6;
    const QColor bar = pixel(right);
    EXPECT_NE(bar, QColor(kHighlight));
    EXPECT_NE(pixel(2), QColor(Qt::white));
    Tree().SetSelectionBarShown(false);
    EXPECT_EQ(pixel(right), QColor(kHighlight));
    EXPECT_EQ(pixel(2), QColor(Qt::white));
    Tree().SetSelectionBarShown(true);
    EXPECT_EQ(pixel(right), bar);
}

TEST_F(MainTreeTest, SelectsTheNextNodeWhenTheSelectedOneGoes) {
    host.SelectNode(u"P1"_s);
    host.nodes.Remove(&Node(u"P1"_s));
    EXPECT_EQ(host.SelectedNode(), u"P2"_s);
    host.nodes.Remove(&Node(u"P2"_s));
    EXPECT_EQ(host.SelectedNode(), u"R10"_s);
}

TEST_F(MainTreeTest, JumpsToAFarDogInALargeTree) {
    std::string sql = "BEGIN;";
    for (int dog = 100; dog < 3100; ++dog)
        sql += "INSERT INTO Psi (ID, Jmeno, PlemenoID) VALUES (" + std::to_string(dog) +
               ", 'Pes', 10);";
    Load(sql + "COMMIT");
    host.SelectNode(u"P3099"_s);
    const QRect viewport = Tree().viewport()->rect();
    EXPECT_TRUE(viewport.contains(PlaceOf(u"P3099"_s)));
}

} // namespace
} // namespace lorvo::test
