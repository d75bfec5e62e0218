#include "forms/report_list.h"

#include "forms/controls.h"
#include "forms/report_rows.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class ReportListTest : public ::testing::Test {
  protected:
    ReportListTest() {
        list.SetColumnWidths({150, 100});
        list.SetRows({MakeRow("P1", {"Rex", "10"}), MakeRow("P2", {"Alík", "9"}),
                      MakeRow("P3", {"Čert", "100"})});
        list.resize(400, 300);
        list.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&list));
    }

    QPoint Middle(int position, int column = 0) {
        return list.visualRect(list.model()->index(position, column)).center();
    }
    QLineEdit* Editor() {
        for (QLineEdit* editor : list.findChildren<QLineEdit*>())
            if (editor->isVisible())
                return editor;
        return nullptr;
    }

    ReportList list{"lvwTest", {u"Jméno"_s, u"Číslo"_s}, nullptr};
};

TEST_F(ReportListTest, AmountsStandAtTheRightWhereverTheirColumnMoves) {
    list.AlignRight({1});
    list.InsertColumn(1, u"Pes"_s);
    const QAbstractItemModel& model = *list.model();
    const auto alignment = [&](int column) {
        const QVariant cell = model.index(0, column).data(Qt::TextAlignmentRole);
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole), cell);
        return Qt::Alignment(cell.toInt()) & Qt::AlignHorizontal_Mask;
    };
    EXPECT_EQ(alignment(0), Qt::AlignLeft);
    EXPECT_EQ(alignment(1), Qt::AlignLeft);
    EXPECT_EQ(alignment(2), Qt::AlignRight);
}

TEST_F(ReportListTest, GivesKeysTagsColoursAndTextsByTheirRoles) {
    ReportRow row = MakeRow("P4", {"Bára"});
    row.tag = u"značka"_s;
    row.bold = true;
    list.AddRow(row);
    list.SetCellColour(3, 1, QColor(Qt::red));
    const QAbstractItemModel& model = *list.model();
    EXPECT_EQ(model.index(3, 0).data(Qt::UserRole).toString(), u"P4"_s);
    EXPECT_EQ(model.index(3, 0).data(Qt::UserRole + 1).toString(), u"značka"_s);
    EXPECT_TRUE(model.index(3, 0).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(model.index(3, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));
    EXPECT_EQ(model.index(3, 1).data().toString(), QString());
    EXPECT_EQ(list.objectName(), u"lvwTest"_s);
    EXPECT_TRUE(list.uniformRowHeights());
}

TEST_F(ReportListTest, FindsRowsByKeyAfterEveryChange) {
    EXPECT_EQ(list.FindRow(u"P3"_s), 2);
    list.RemoveRow(u"P1"_s);
    EXPECT_EQ(list.FindRow(u"P3"_s), 1);
    EXPECT_EQ(list.FindRow(u"P1"_s), -1);
    list.SetKey(1, u"P7"_s);
    EXPECT_EQ(list.FindRow(u"P7"_s), 1);
    EXPECT_EQ(list.FindText(u"Alík"_s), 0);
    list.ClearRows();
    EXPECT_EQ(list.RowCount(), 0);
    EXPECT_EQ(list.FindRow(u"P7"_s), -1);
}

TEST_F(ReportListTest, TicksByMouseAndByTheSpaceBar) {
    list.SetCheckBoxes(true);
    QSignalSpy ticks(&list, &ReportList::ItemCheck);
    list.SetChecked(0, true);
    EXPECT_EQ(ticks.count(), 0);
    const QRect cell = list.visualRect(list.model()->index(1, 0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {cell.left() + 10, cell.center().y()});
    EXPECT_TRUE(list.Row(1).checked);
    EXPECT_EQ(ticks.count(), 1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Middle(2, 1));
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_TRUE(list.Row(2).checked);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_FALSE(list.Row(2).checked);
    EXPECT_EQ(ticks.count(), 3);
}

TEST_F(ReportListTest, ARightClickSelectsTheRowUnderThePointerFirst) {
    list.SelectRow(0);
    int selectedThen = -1;
    QObject::connect(&list, &ReportList::RightClick, &list,
                     [&](int) { selectedThen = list.SelectedRow(); });
    QSignalSpy clicks(&list, &ReportList::RightClick);
    QTest::mouseClick(list.viewport(), Qt::RightButton, {}, Middle(2));
    EXPECT_EQ(selectedThen, 2);
    QTest::mouseClick(list.viewport(), Qt::RightButton, {}, {50, 250});
    ASSERT_EQ(clicks.count(), 2);
    EXPECT_EQ(clicks[1][0].toInt(), -1);
}

TEST_F(ReportListTest, TellsClicksAndDeleteAndDoubleClicks) {
    QSignalSpy click(&list, &ReportList::ItemClick);
    QSignalSpy twice(&list, &ReportList::DoubleClick);
    QSignalSpy removal(&list, &ReportList::DeletePressed);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Middle(1));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, Middle(1));
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_GE(click.count(), 1);
    ASSERT_EQ(twice.count(), 1);
    EXPECT_EQ(twice[0][0].toInt(), 1);
    EXPECT_EQ(removal.count(), 1);
}

TEST_F(ReportListTest, SeveralRowsAreSelectedOnlyWhenAllowed) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Middle(0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, Middle(2));
    EXPECT_EQ(list.SelectedRows(), std::vector<int>{2});
    list.SetMultiSelect(true);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, Middle(0));
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{0, 2}));
    QTest::mouseClick(list.viewport(), Qt::RightButton, {}, Middle(2));
    EXPECT_EQ(list.SelectedRows(), (std::vector<int>{0, 2}));
}

TEST_F(ReportListTest, F2RenamesAndEnterCommits) {
    list.SetLabelEdit(true);
    QSignalSpy after(&list, &ReportList::AfterLabelEdit);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Middle(1, 1));
    QTest::keyClick(&list, Qt::Key_F2);
    ASSERT_TRUE(Editor());
    EXPECT_EQ(Editor()->text(), u"Alík"_s);
    Editor()->selectAll();
    QTest::keyClicks(Editor(), u"Azor"_s);
    QTest::keyClick(Editor(), Qt::Key_Return);
    QTRY_VERIFY2_WITH_TIMEOUT(after.count() == 1, "no commit", 2000);
    EXPECT_EQ(list.CellText(1, 0), u"Azor"_s);
}

TEST_F(ReportListTest, AnUntouchedEditCommitsToo) {
    QSignalSpy after(&list, &ReportList::AfterLabelEdit);
    list.StartLabelEdit(0);
    ASSERT_TRUE(Editor());
    QTest::keyClick(Editor(), Qt::Key_Return);
    QTRY_VERIFY2_WITH_TIMEOUT(after.count() == 1, "no commit", 2000);
    EXPECT_EQ(after[0][1].toString(), u"Rex"_s);
}

TEST_F(ReportListTest, LossOfFocusCommitsAndEscDoesNot) {
    QSignalSpy after(&list, &ReportList::AfterLabelEdit);
    list.StartLabelEdit(0);
    Editor()->setText(u"Ares"_s);
    list.setFocus();
    EXPECT_EQ(after.count(), 1);
    EXPECT_EQ(list.CellText(0, 0), u"Ares"_s);
    list.StartLabelEdit(0);
    Editor()->setText(u"Brok"_s);
    QTest::keyClick(Editor(), Qt::Key_Escape);
    EXPECT_EQ(after.count(), 1);
    EXPECT_EQ(list.CellText(0, 0), u"Ares"_s);
}

TEST_F(ReportListTest, ACancelledCommitKeepsTheOldTextAndMayTakeTheRowAway) {
    QObject::connect(&list, &ReportList::AfterLabelEdit, &list,
                     [&](int position, const QString&, bool* cancel) {
                         *cancel = true;
                         list.RemoveRow(list.Row(position).key);
                     });
    list.StartLabelEdit(2);
    Editor()->setText(u"Cit"_s);
    list.setFocus();
    EXPECT_EQ(list.RowCount(), 2);
    EXPECT_EQ(list.FindText(u"Cit"_s), -1);
}

TEST_F(ReportListTest, AnEditMayBeRefusedBeforeItStarts) {
    QObject::connect(&list, &ReportList::BeforeLabelEdit, &list,
                     [](int, bool* cancel) { *cancel = true; });
    list.SetLabelEdit(true);
    list.SelectRow(0);
    QTest::keyClick(&list, Qt::Key_F2);
    EXPECT_FALSE(Editor());
}

TEST_F(ReportListTest, AListWithoutLabelEditIgnoresF2) {
    list.SelectRow(0);
    QTest::keyClick(&list, Qt::Key_F2);
    EXPECT_FALSE(Editor());
}

TEST_F(ReportListTest, AColumnMayBeAddedBetweenOthers) {
    list.InsertColumn(1, u"Plemeno"_s);
    EXPECT_EQ(list.ColumnCount(), 3);
    EXPECT_EQ(list.CellText(0, 1), QString());
    EXPECT_EQ(list.CellText(0, 2), u"10"_s);
    list.SetHeading(1, u"Rasa"_s);
    EXPECT_EQ(list.model()->headerData(1, Qt::Horizontal).toString(), u"Rasa"_s);
}

TEST_F(ReportListTest, IconsStandInTheirCells) {
    list.SetIcons({ProgramIcon(u"not-printed"_s), ProgramIcon(u"printed"_s)});
    list.SetCellIcon(0, 1, 1);
    const auto icon = list.model()->index(0, 1).data(Qt::DecorationRole).value<QIcon>();
    EXPECT_FALSE(icon.isNull());
    EXPECT_FALSE(list.model()->index(1, 1).data(Qt::DecorationRole).isValid());
}

TEST(ReportListModelTest, AnswersNothingOnWhatIsNotThere) {
    ReportList list("lvwTest", {u"Jméno"_s}, nullptr);
    list.SetCheckBoxes(true);
    list.AddRow(MakeRow("P1", {"Rex"}));
    QAbstractItemModel& model = *list.model();
    EXPECT_FALSE(model.data({}).isValid());
    EXPECT_FALSE(model.setData({}, Qt::Checked, Qt::CheckStateRole));
    EXPECT_FALSE(model.setData(model.index(0, 0), u"Max"_s, Qt::EditRole)) << "by the list alone";
    EXPECT_FALSE(model.headerData(1, Qt::Horizontal).isValid());
    EXPECT_FALSE(model.headerData(0, Qt::Vertical).isValid());
    EXPECT_EQ(list.CellText(0, 0), u"Rex"_s);
}

} // namespace
} // namespace lorvo
