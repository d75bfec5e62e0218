#include "forms/controls.h"
#include "forms/report_list.h"
#include "forms/report_rows.h"
#include "platform/menu_place.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// A list of three rows above the default button of its window.
class ReportListKeysTest : public ::testing::Test {
  protected:
    ReportListKeysTest() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&box);
        layout->addWidget(&list);
        layout->addWidget(&close);
        close.setDefault(true);
        list.SetRows({MakeRow("P1", {"Rex", " 10,00 Kč"}), MakeRow("P2", {"Alík", "1 234,50 Kč"}),
                      MakeRow("P3", {"Čert\tz\nLhoty", "-5,00 Kč"})});
        list.AlignRight({1});
        window.resize(400, 300);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        list.setFocus();
    }
    ~ReportListKeysTest() override {
        for (QWidget* child : {static_cast<QWidget*>(&box), static_cast<QWidget*>(&list),
                               static_cast<QWidget*>(&close)})
            child->setParent(nullptr);
    }

    QRect RowOnScreen(int position) {
        const QRect row = list.visualRect(list.model()->index(position, 0));
        return {list.viewport()->mapToGlobal(row.topLeft()), row.size()};
    }
    void PressMenuKey() {
        const QPoint middle = list.rect().center();
        QContextMenuEvent key(QContextMenuEvent::Keyboard, middle, list.mapToGlobal(middle));
        QApplication::sendEvent(&list, &key);
    }
    static QString Copied() { return QGuiApplication::clipboard()->text(); }

    QDialog window;
    QLineEdit box;
    ReportList list{"lvwTest", {u"Jméno"_s, u"Cena"_s}, nullptr};
    QPushButton close{u"Zavřít"_s};
};

TEST_F(ReportListKeysTest, EnterOpensTheRowAndNeverTheDefaultButton) {
    QSignalSpy opened(&list, &ReportList::DoubleClick);
    QSignalSpy closed(&close, &QPushButton::clicked);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(opened.count(), 0);
    list.SelectRow(1);
    QTest::keyClick(&list, Qt::Key_Return);
    QTest::keyClick(&list, Qt::Key_Enter, Qt::KeypadModifier);
    ASSERT_EQ(opened.count(), 2);
    EXPECT_EQ(opened[0][0].toInt(), 1);
    EXPECT_EQ(closed.count(), 0);
}

TEST_F(ReportListKeysTest, EnterThatEndsAnEditOpensNothing) {
    QSignalSpy opened(&list, &ReportList::DoubleClick);
    QSignalSpy closed(&close, &QPushButton::clicked);
    QSignalSpy edited(&list, &ReportList::AfterLabelEdit);
    list.StartLabelEdit(1);
    QTest::keyClick(list.findChild<QLineEdit*>(), Qt::Key_Return);
    QTRY_VERIFY2_WITH_TIMEOUT(edited.count() == 1, "no commit", 2000);
    EXPECT_EQ(opened.count() + closed.count(), 0);
}

TEST_F(ReportListKeysTest, TheMenuOpensAtTheSelectedRow) {
    list.SelectRow(1);
    std::vector<int> asked;
    QObject::connect(&list, &ReportList::RightClick, &list, [&](int position) {
        asked.push_back(position);
        ASSERT_TRUE(MenuPlace::Current());
        EXPECT_TRUE(RowOnScreen(position).contains(*MenuPlace::Current()));
    });
    PressMenuKey();
    QTest::keyClick(&list, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(asked, (std::vector<int>{1, 1}));
    EXPECT_FALSE(MenuPlace::Current());
}

TEST_F(ReportListKeysTest, WithoutASelectedRowTheMenuIsNobodys) {
    QSignalSpy asked(&list, &ReportList::RightClick);
    PressMenuKey();
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked[0][0].toInt(), -1);
}

TEST_F(ReportListKeysTest, AListThatGetsTheFocusChoosesNoRow) {
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Tab);
    ASSERT_TRUE(list.hasFocus());
    EXPECT_FALSE(list.currentIndex().isValid());
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.SelectedRow(), 0);
}

TEST_F(ReportListKeysTest, AfterADeletionNoRowIsChosen) {
    list.SelectRow(1);
    list.RemoveRow(u"P2"_s);
    EXPECT_EQ(list.SelectedRow(), -1);
    EXPECT_FALSE(list.currentIndex().isValid());
    list.SelectRow(1);
    list.RemoveRow(u"P1"_s);
    EXPECT_EQ(list.SelectedRow(), 0);
}

TEST_F(ReportListKeysTest, CtrlTabChangesThePage) {
    QTabWidget pages;
    auto* inPage = new ReportList("lvwPage", {u"Jméno"_s}, nullptr);
    pages.addTab(inPage, u"První"_s);
    pages.addTab(new QWidget, u"Druhá"_s);
    pages.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&pages));
    inPage->setFocus();
    QTest::keyClick(inPage, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(pages.currentIndex(), 1);
}

TEST_F(ReportListKeysTest, CopiesTheSelectedRowsForASheet) {
    list.SetMultiSelect(true);
    list.SelectRow(1);
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), u"Alík\t1234,50\n"_s);
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    list.header()->moveSection(0, 1);
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), u"10,00\tRex\n1234,50\tAlík\n-5,00\tČert z Lhoty\n"_s);
}

TEST_F(ReportListKeysTest, WithoutASelectionTheWholeListIsCopied) {
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), u"Jméno\tCena\nRex\t10,00\nAlík\t1234,50\nČert z Lhoty\t-5,00\n"_s);
}

TEST_F(ReportListKeysTest, CellsSayWhatTheirLooksMean) {
    ReportRow row = MakeRow("P4", {"Argo"});
    row.cells[0].spoken = u"otec"_s;
    const int position = list.AddRow(row);
    const QAbstractItemModel& model = *list.model();
    EXPECT_EQ(model.index(position, 0).data(Qt::AccessibleTextRole).toString(), u"Argo, otec"_s);
    EXPECT_EQ(model.index(0, 0).data(Qt::AccessibleTextRole).toString(), u"Rex"_s);
}

TEST_F(ReportListKeysTest, ToldColoursStandOnALightGround) {
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    window.setPalette(dark);
    EXPECT_EQ(list.palette().color(QPalette::Base), QColor(Qt::black));
    list.SetCellColour(0, 0, QColor(Qt::blue));
    EXPECT_EQ(list.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(list.palette().color(QPalette::Text), QColor(Qt::black));
}

} // namespace
} // namespace lorvo
