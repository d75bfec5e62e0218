#include "forms/command_collection.h"

#include "support/print_qt.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class CommandToolBarTest : public ::testing::Test {
  protected:
    CommandToolBarTest() {
        auto* column = new QVBoxLayout(&window_);
        bar_ = commands_->MakeBar(u"STANDARD"_s, &window_);
        column->addWidget(bar_);
        column->addWidget(below_);
        window_.show();
        below_->setFocus();
        // NOLINTNEXTLINE(bugprone-unused-return-value)
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    }
    static void Press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    QWidget* Button(const QString& key) { return bar_->widgetForAction(commands_->Action(key)); }

    QWidget window_;
    CommandCollection* commands_ = new CommandCollection(
        u"cmdBar"_s, {u"ADD"_s, u"TABLES"_s, u"EXPORT"_s, u"SETTINGS"_s, u"HELP"_s}, &window_);
    QToolBar* bar_ = nullptr;
    QLineEdit* below_ = new QLineEdit(&window_);
};

TEST_F(CommandToolBarTest, F10LeadsToTheFirstButtonAndArrowsAndTabAlong) {
    Press(Qt::Key_F10);
    EXPECT_EQ(QApplication::focusWidget(), Button(u"ADD"_s));
    Press(Qt::Key_Right);
    EXPECT_EQ(QApplication::focusWidget(), Button(u"TABLES"_s));
    Press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), Button(u"EXPORT"_s));
    Press(Qt::Key_Left);
    Press(Qt::Key_Left);
    Press(Qt::Key_Left);
    EXPECT_EQ(QApplication::focusWidget(), Button(u"ADD"_s));
}

TEST_F(CommandToolBarTest, PassesByAGreyedButton) {
    commands_->Action(u"ADD"_s)->setEnabled(false);
    Press(Qt::Key_F10);
    EXPECT_EQ(QApplication::focusWidget(), Button(u"TABLES"_s));
}

TEST_F(CommandToolBarTest, EscLeadsBack) {
    Press(Qt::Key_F10);
    Press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), below_);
}

TEST_F(CommandToolBarTest, EnterAndSpaceChooseACommandWithTheKeyboardBackWhereItWas) {
    QWidget* focusThen = nullptr;
    QSignalSpy chosen(commands_, &CommandCollection::CommandClick);
    QObject::connect(commands_, &CommandCollection::CommandClick, &window_,
                     [&] { focusThen = QApplication::focusWidget(); });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        Press(Qt::Key_F10);
        Button(u"SETTINGS"_s)->setFocus();
        Press(Qt::Key_Down);
        Press(key);
        EXPECT_EQ(focusThen, below_);
        focusThen = nullptr;
    }
    EXPECT_EQ(chosen.size(), 3) << "the down arrow chooses nothing";
    EXPECT_EQ(chosen.at(0).at(0).toString(), u"SETTINGS"_s);
}

class MenuKeys : public CommandToolBarTest, public ::testing::WithParamInterface<Qt::Key> {};

TEST_P(MenuKeys, DropAMenuDownAndLeadBackAfterIt) {
    QMenu* menu = commands_->Action(u"TABLES"_s)->menu();
    int dropped = 0;
    QObject::connect(menu, &QMenu::aboutToShow, menu, [&] {
        ++dropped;
        QTimer::singleShot(0, menu, &QMenu::close);
    });
    Press(Qt::Key_F10);
    Press(Qt::Key_Right);
    Press(GetParam());
    EXPECT_EQ(dropped, 1);
    EXPECT_EQ(window_.focusWidget(), below_);
}

INSTANTIATE_TEST_SUITE_P(EnterSpaceAndDown, MenuKeys,
                         ::testing::Values(Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space,
                                           Qt::Key_Down));

TEST_F(CommandToolBarTest, AClickOfTheMouseLeavesTheKeyboardWhereItIs) {
    QTest::mouseClick(Button(u"SETTINGS"_s), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), below_);
}

} // namespace
} // namespace lorvo
