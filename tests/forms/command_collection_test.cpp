#include "forms/command_collection.h"

#include "platform/values/errors.h"
#include "support/print_qt.h"

#include <QAction>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class CommandCollectionTest : public ::testing::Test {
  protected:
    static QStringList Keys(const QToolBar& bar) {
        QStringList keys;
        for (const QAction* action : bar.actions())
            keys << action->objectName();
        return keys;
    }

    QWidget window_;
};

TEST_F(CommandCollectionTest, ABarBesideAListHoldsItsButtonsWithCaptionsAndPictures) {
    CommandCollection commands(u"cmdBar"_s, {u"PLEMENA"_s}, &window_);
    const QToolBar& bar = *commands.MakeBar(u"PLEMENA"_s, &window_);
    EXPECT_EQ(bar.objectName(), u"PLEMENA"_s);
    EXPECT_EQ(Keys(bar), (QStringList{u"PLEMENA:ADD"_s, u"PLEMENA:EDIT"_s, u"PLEMENA:DELETE"_s,
                                      u"PLEMENA:HELP"_s}));
    EXPECT_EQ(bar.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    for (const QAction* action : bar.actions())
        EXPECT_FALSE(action->icon().pixmap(16).isNull()) << action->objectName().toStdString();
    EXPECT_EQ(commands.Action(u"PLEMENA:HELP"_s)->toolTip(), u"Nápověda"_s);
}

TEST_F(CommandCollectionTest, AClickNamesTheCommand) {
    CommandCollection commands(u"cmdBar"_s, {u"VYSTAVY"_s}, &window_);
    QToolBar& bar = *commands.MakeBar(u"VYSTAVY"_s, &window_);
    const QSignalSpy clicks(&commands, &CommandCollection::CommandClick);
    QTest::mouseClick(bar.widgetForAction(commands.Action(u"VYSTAVY:EDIT"_s)), Qt::LeftButton);
    ASSERT_EQ(clicks.size(), 1);
    EXPECT_EQ(clicks[0][0].toString(), u"VYSTAVY:EDIT"_s);
}

TEST_F(CommandCollectionTest, ACommandWithoutAButtonKeepsItsCheckMark) {
    CommandCollection commands(u"cmdBar"_s, {u"PLEMENA"_s}, &window_);
    QAction& hide = *commands.Action(u"PLEMENA:HIDEUNUSED"_s);
    EXPECT_TRUE(hide.isCheckable());
    const QSignalSpy clicks(&commands, &CommandCollection::CommandClick);
    hide.trigger();
    EXPECT_TRUE(hide.isChecked());
    EXPECT_EQ(clicks.size(), 1);
}

TEST_F(CommandCollectionTest, HoldsItsOwnGroupsAlone) {
    const CommandCollection commands(u"cmdBar"_s, {u"DOGLIST"_s}, &window_);
    EXPECT_EQ(commands.Action(u"DOGLIST:FILTER"_s)->text(), u"Filtr"_s);
    EXPECT_THROW(commands.Action(u"VYSTAVY:ADD"_s), Error);
}

TEST_F(CommandCollectionTest, ABarThatIsNotDescribedIsRefused) {
    CommandCollection commands(u"cmdBar"_s, {u"COLORS"_s}, &window_);
    EXPECT_THROW(commands.MakeBar(u"COLORS"_s, &window_), Error);
}

} // namespace
} // namespace lorvo
