// An edit in place that is left open, and what acts elsewhere in its window meanwhile.

#include "forms/label_edit_delegate.h"

#include "forms/report_list.h"

#include <QAction>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class OpenEditTest : public testing::Test {
  protected:
    OpenEditTest() : list("lvwDogs", {u"Pes"_s}, &window) {
        auto* column = new QVBoxLayout(&window);
        auto* bar = new QToolBar(&window);
        QAction* act = bar->addAction(u"Smazat"_s);
        tool = qobject_cast<QToolButton*>(bar->widgetForAction(act));
        button = new QPushButton(u"&Zavřít"_s, &window);
        column->addWidget(bar);
        column->addWidget(&list);
        column->addWidget(button);
        list.SetRows({{u"P1"_s, {}, {{u"Rex"_s}}}, {u"P2"_s, {}, {{u"Alík"_s}}}});
        QObject::connect(&list, &ReportList::AfterLabelEdit, &list,
                         [this](int, const QString& text, bool* cancel) {
                             done << text;
                             *cancel = refuse;
                         });
        QObject::connect(&list, &ReportList::LabelEditGivenUp, &list,
                         [this](int row) { done << u"given up %1"_s.arg(row); });
        for (QAbstractButton* each :
             {static_cast<QAbstractButton*>(tool), static_cast<QAbstractButton*>(button)})
            QObject::connect(each, &QAbstractButton::clicked, &list,
                             [this, each] { done << each->text(); });
        window.show();
    }
    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&window)); }

    void Type(int row, const QString& text) {
        done.clear();
        list.StartLabelEdit(row);
        QTest::keyClicks(Editor(), text);
    }
    QLineEdit* Editor() {
        auto* editor = list.findChild<QLineEdit*>(u"lvwDogs.editor"_s);
        return editor;
    }
    void Click(QWidget* widget, QPoint place = {}) {
        QTest::mouseClick(widget, Qt::LeftButton, {}, place);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QWidget window;
    ReportList list;
    QToolButton* tool;
    QPushButton* button;
    bool refuse = false;
    QStringList done;
};

TEST_F(OpenEditTest, EndsBeforeAClickElsewhereActs) {
    for (QWidget* widget : {static_cast<QWidget*>(tool), static_cast<QWidget*>(button)}) {
        Type(0, u"Brok"_s);
        Click(widget);
        ASSERT_EQ(done.size(), 2);
        EXPECT_EQ(done[0], u"Brok"_s);
        EXPECT_FALSE(Editor());
    }
}

TEST_F(OpenEditTest, EndsBeforeAnAccessKeyActs) {
    Type(0, u"Brok"_s);
    QTest::keyClick(Editor(), Qt::Key_Z, Qt::AltModifier);
    QTRY_VERIFY2_WITH_TIMEOUT(done.size() == 2, "no click", 2000);
    EXPECT_EQ(done, (QStringList{u"Brok"_s, u"&Zavřít"_s}));
}

TEST_F(OpenEditTest, ARefusedTextKeepsTheClickFromActing) {
    refuse = true;
    for (QWidget* widget : {static_cast<QWidget*>(tool), static_cast<QWidget*>(button)}) {
        Type(0, u"Brok"_s);
        Click(widget);
        EXPECT_EQ(done, QStringList{u"Brok"_s});
    }
    Type(0, u"Brok"_s);
    Click(list.viewport(), list.visualRect(list.model()->index(1, 0)).center());
    EXPECT_EQ(done, QStringList{u"Brok"_s});
    EXPECT_EQ(list.SelectedRow(), 0) << "the row that was edited";
    Click(tool);
    EXPECT_EQ(done.last(), u"Smazat"_s) << "that click alone";
}

TEST_F(OpenEditTest, AClickWithinTheEditorIsPartOfTheEdit) {
    Type(0, u"Brok"_s);
    Click(Editor());
    EXPECT_TRUE(done.isEmpty());
    EXPECT_TRUE(Editor());
}

TEST_F(OpenEditTest, EscGivesItUp) {
    Type(1, u"Brok"_s);
    QTest::keyClick(Editor(), Qt::Key_Escape);
    EXPECT_EQ(done, QStringList{u"given up 1"_s});
}

TEST_F(OpenEditTest, AllOfAWindowEndAtOnce) {
    Type(1, u"Brok"_s);
    EndLabelEdits(window);
    EXPECT_EQ(done, QStringList{u"Brok"_s});
    EXPECT_EQ(list.CellText(1, 0), u"Brok"_s);
}

} // namespace
} // namespace lorvo
