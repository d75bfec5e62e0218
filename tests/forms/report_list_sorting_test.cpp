#include "forms/report_list.h"

#include <QHeaderView>
#include <QTest>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class SortingTest : public ::testing::Test {
  protected:
    ReportList list{"lvwTest", {u"Jméno"_s, u"Číslo"_s}, nullptr};

    void Fill(const std::vector<std::pair<const char*, const char*>>& cells) {
        std::vector<ReportRow> rows;
        for (const auto& [name, number] : cells)
            rows.push_back(RowOf(name, number));
        list.SetRows(std::move(rows));
    }
    static ReportRow RowOf(const char* name, const char* number) {
        ReportRow row;
        row.key = QString::fromUtf8(number);
        row.cells = {{QString::fromUtf8(name), {}, -1}, {QString::fromUtf8(number), {}, -1}};
        return row;
    }
    QString Column(int column) {
        QStringList texts;
        for (int position = 0; position < list.RowCount(); ++position)
            texts << list.CellText(position, column);
        return texts.join(u' ');
    }
};

TEST_F(SortingTest, TheFirstClickSortsDescendingAndTheListToggles) {
    Fill({{"b", "1"}, {"c", "2"}, {"a", "3"}});
    EXPECT_EQ(list.PictureOf(0), HeaderPicture::None);
    SortListColumn(list, 0);
    EXPECT_EQ(Column(0), u"c b a"_s);
    EXPECT_EQ(list.PictureOf(0), HeaderPicture::Descending);
    EXPECT_EQ(list.PictureOf(1), HeaderPicture::Neutral);
    // The direction is the list's, so that another column goes on from it.
    SortListColumn(list, 1);
    EXPECT_EQ(Column(1), u"1 2 3"_s);
    EXPECT_EQ(list.PictureOf(1), HeaderPicture::Ascending);
    EXPECT_EQ(list.PictureOf(0), HeaderPicture::Neutral);
}

TEST_F(SortingTest, NumbersSortAsTexts) {
    Fill({{"x", "9"}, {"x", "100"}, {"x", "10"}});
    SortListColumn(list, 1);
    SortListColumn(list, 1);
    EXPECT_EQ(Column(1), u"10 100 9"_s);
}

TEST_F(SortingTest, CzechOrderWithoutRegardToLetterCase) {
    Fill({{"Žofka", ""},
          {"chrt", ""},
          {"Cit", ""},
          {"hafan", ""},
          {"ibizan", ""},
          {"Čert", ""},
          {"áron", ""},
          {"Šarik", ""},
          {"Sam", ""},
          {"azor", ""},
          {"Řek", ""},
          {"Rex", ""}});
    SortListColumn(list, 0);
    SortListColumn(list, 0);
    EXPECT_EQ(Column(0), u"áron azor Cit Čert hafan chrt ibizan Rex Řek Sam Šarik "
                         "Žofka"_s);
}

TEST_F(SortingTest, RowsOfEqualTextKeepTheirOrderEitherWay) {
    Fill({{"Rex", "1"}, {"rex", "2"}, {"REX", "3"}, {"Alík", "4"}});
    SortListColumn(list, 0);
    EXPECT_EQ(Column(1), u"1 2 3 4"_s);
    SortListColumn(list, 0);
    EXPECT_EQ(Column(1), u"4 1 2 3"_s);
}

TEST_F(SortingTest, TheSelectionStaysWithItsRow) {
    Fill({{"a", "1"}, {"b", "2"}, {"c", "3"}});
    list.SelectRow(0);
    SortListColumn(list, 0);
    EXPECT_EQ(list.SelectedRow(), 2);
}

TEST_F(SortingTest, RowsThatComeLaterFindTheirPlaceAndChangedOnesStay) {
    Fill({{"a", "1"}, {"c", "2"}});
    SortListColumn(list, 0);
    EXPECT_EQ(list.AddRow(RowOf("b", "3")), 1);
    list.SetCell(0, 0, u"0"_s);
    EXPECT_EQ(Column(0), u"0 b a"_s);
    Fill({{"a", "1"}, {"c", "2"}, {"b", "3"}});
    EXPECT_EQ(Column(0), u"c b a"_s);
}

TEST_F(SortingTest, AClickOnAHeadingSortsWhereAllowed) {
    Fill({{"a", "1"}, {"b", "2"}});
    list.resize(400, 200);
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    QWidget* header = list.header()->viewport();
    QTest::mouseClick(header, Qt::LeftButton, {}, {20, 8});
    EXPECT_EQ(Column(0), u"a b"_s);
    list.SetSorting(true);
    QTest::mouseClick(header, Qt::LeftButton, {}, {20, 8});
    EXPECT_EQ(Column(0), u"b a"_s);
}

TEST_F(SortingTest, TheSortedColumnStaysTheSameOneWhenColumnsComeAndGoBeforeIt) {
    Fill({{"x", "1"}, {"y", "3"}});
    SortListColumn(list, 1);
    list.InsertColumn(0, u"Nový"_s);
    ReportRow row;
    row.cells = {{QString()}, {u"z"_s}, {u"2"_s}};
    list.AddRow(row);
    EXPECT_EQ(Column(2), u"3 2 1"_s);
    list.RemoveColumn(0);
    list.AddRow(RowOf("z", "4"));
    EXPECT_EQ(Column(1), u"4 3 2 1"_s);
}

TEST_F(SortingTest, WithoutItsSortedColumnTheListTakesNewRowsAtTheEnd) {
    Fill({{"x", "1"}, {"y", "3"}});
    SortListColumn(list, 1);
    list.RemoveColumn(1);
    list.AddRow(RowOf("a", "9"));
    EXPECT_EQ(Column(0), u"y x a"_s);
}

} // namespace
} // namespace lorvo
