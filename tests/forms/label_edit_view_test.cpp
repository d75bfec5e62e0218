// The edit in place that a click on the selected row begins, and what is done before it opens.

#include "forms/report_list.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class WaitingEditTest : public testing::Test {
  protected:
    WaitingEditTest() : list("lvwDogs", {u"Pes"_s}, &window), button(u"Smazat"_s, &window) {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(&list);
        column->addWidget(&button);
        button.setFocusPolicy(Qt::NoFocus);
        list.SetLabelEdit(true);
        list.SetRows({{u"P1"_s, {}, {{u"Rex"_s}}}, {u"P2"_s, {}, {{u"Alík"_s}}}});
        QApplication::setDoubleClickInterval(kInterval);
        window.show();
    }
    ~WaitingEditTest() override { QApplication::setDoubleClickInterval(interval_); }
    void SetUp() override {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        list.setFocus();
        list.SelectRow(0);
        ClickSelected();
    }

    void ClickSelected() {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(0, 0)).center());
    }
    QLineEdit* Editor() { return list.findChild<QLineEdit*>(u"lvwDogs.editor"_s); }
    /// Whether an edit is open after all that could still begin has begun.
    bool Opens() {
        QTest::qWait(3 * kInterval);
        return Editor();
    }

    static constexpr int kInterval = 60;
    QWidget window;
    ReportList list;
    QPushButton button;

  private:
    int interval_ = QApplication::doubleClickInterval();
};

TEST_F(WaitingEditTest, OpensWhenNothingElseIsDone) {
    EXPECT_TRUE(Opens());
}

TEST_F(WaitingEditTest, IsTakenBackByACommand) {
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_FALSE(Opens());
}

TEST_F(WaitingEditTest, IsTakenBackByAKey) {
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_FALSE(Opens());
}

TEST_F(WaitingEditTest, IsTakenBackByAWindowThatCovers) {
    QDialog dialog(&window);
    QTimer::singleShot(3 * kInterval, &dialog, &QDialog::accept);
    dialog.exec();
    EXPECT_FALSE(Opens());
}

TEST_F(WaitingEditTest, BeginsAnewWithTheNextClick) {
    QTest::keyClick(&list, Qt::Key_Delete);
    QTest::qWait(3 * kInterval);
    ClickSelected();
    EXPECT_TRUE(Opens());
}

TEST_F(WaitingEditTest, F2EditsAtOnce) {
    QTest::keyClick(&list, Qt::Key_F2);
    EXPECT_TRUE(Editor());
}

} // namespace
} // namespace lorvo
