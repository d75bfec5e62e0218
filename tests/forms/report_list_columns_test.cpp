#include "forms/report_list.h"

#include <QHeaderView>
#include <QTest>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class ReportListColumnsTest : public ::testing::Test {
  protected:
    ReportListColumnsTest() {
        list.SetColumnWidths({150, 60});
        list.resize(600, 300);
        list.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&list));
    }
    int Shown(int column) { return list.header()->sectionSize(column); }
    static ReportRow Row(const QString& amount) { return {u"P1"_s, {}, {{u"Rex"_s}, {amount}}}; }

    ReportList list{"lvwTest", {u"Jméno"_s, u"Uhrazeno"_s}, nullptr};
};

TEST_F(ReportListColumnsTest, TheLastColumnFillsTheWidthAndIsKeptAsDesigned) {
    EXPECT_EQ(Shown(0) + Shown(1), list.viewport()->width());
    list.resize(500, 300);
    EXPECT_EQ(Shown(0) + Shown(1), list.viewport()->width());
    EXPECT_EQ(list.ColumnWidth(0), 150);
    EXPECT_LT(list.ColumnWidth(1), 150);
}

TEST_F(ReportListColumnsTest, AMovedColumnTakesItsOwnWidthAgain) {
    list.header()->moveSection(0, 1);
    EXPECT_EQ(Shown(1), list.ColumnWidth(1));
    EXPECT_EQ(Shown(0) + Shown(1), list.viewport()->width());
    EXPECT_EQ(list.ColumnWidth(0), 150);
}

TEST_F(ReportListColumnsTest, HeadingsHaveRoomForTheSortPicture) {
    ReportList sorted("lvwSorted", {u"Uhrazeno"_s, u"Bilance"_s}, nullptr);
    sorted.SetSorting(true);
    sorted.SetColumnWidths({10, 10});
    SortListColumn(sorted, 0);
    for (const int column : {0, 1})
        EXPECT_GE(sorted.ColumnWidth(column), sorted.header()->sectionSizeHint(column)) << column;
}

TEST_F(ReportListColumnsTest, AmountsWidenTheirColumnUntilTheClerkDrawsIt) {
    list.InsertColumn(2, u"Účet"_s);
    list.AlignRight({1});
    const QString amount = u"1234 567,50 Kč a ještě něco"_s;
    list.SetRows({Row(amount)});
    EXPECT_GE(list.ColumnWidth(1), list.fontMetrics().horizontalAdvance(amount));
    list.header()->resizeSection(1, 40);
    list.SetRows({Row(amount)});
    EXPECT_EQ(list.ColumnWidth(1), 40);
    EXPECT_EQ(Shown(1), 40);
}

TEST_F(ReportListColumnsTest, AnInsertedColumnLeavesTheOthersTheirWidths) {
    list.InsertColumn(1, u"Pes"_s);
    EXPECT_EQ(list.ColumnWidth(0), 150);
    const int last = list.ColumnWidth(2);
    list.RemoveColumn(1);
    EXPECT_EQ(list.ColumnWidth(1), last);
    EXPECT_EQ(list.ColumnCount(), 2);
}

TEST_F(ReportListColumnsTest, InAListTooNarrowTextsGiveWayAndNothingLeavesTheScreen) {
    list.InsertColumn(2, u"Bilance"_s);
    list.AlignRight({2});
    list.SetColumnWidths({300, 200, 90});
    list.resize(430, 300);
    EXPECT_LE(Shown(0) + Shown(1) + Shown(2), list.viewport()->width());
    EXPECT_GE(Shown(2), 90);
    EXPECT_LT(Shown(0), 300);
    EXPECT_LT(Shown(1), 200);
    list.resize(700, 300);
    EXPECT_EQ(Shown(0), 300);
    EXPECT_EQ(Shown(1), 200);
}

TEST_F(ReportListColumnsTest, AColumnThatTheClerkDrewGivesNoWay) {
    list.SetColumnWidths({300, 200});
    list.header()->resizeSection(0, 290);
    list.resize(440, 300);
    EXPECT_EQ(Shown(0), 290);
    EXPECT_LT(Shown(1), 200);
    EXPECT_GE(Shown(1), list.header()->sectionSizeHint(1));
}

} // namespace
} // namespace lorvo
