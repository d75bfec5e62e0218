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
    CommandCollection commands(u"cmdBar"_qs, {u"PLEMENA"_qs}, &window_);
    const QToolBar& bar = *commands.MakeBar(u"PLEMENA"_qs, &window_);
    EXPECT_EQ(bar.objectName(), u"PLEMENA"_qs);
    EXPECT_EQ(Keys(bar), (QStringList{u"PLEMENA:ADD"_qs, u"PLEMENA:EDIT"_qs, u"PLEMENA:DELETE"_qs,
                                      u"PLEMENA:HELP"_qs}));
    EXPECT_EQ(bar.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    for (const QAction* action : bar.actions())
        EXPECT_FALSE(action->icon().pixmap(16).isNull()) << action->objectName().toStdString();
    EXPECT_EQ(commands.Action(u"PLEMENA:HELP"_qs)->toolTip(), u"Nápověda"_qs);
}

TEST_F(CommandCollectionTest, AClickNamesTheCommand) {
    CommandCollection commands(u"cmdBar"_qs, {u"VYSTAVY"_qs}, &window_);
    QToolBar& bar = *commands.MakeBar(u"VYSTAVY"_qs, &window_);
    const QSignalSpy clicks(&commands, &CommandCollection::CommandClick);
    QTest::mouseClick(bar.widgetForAction(commands.Action(u"VYSTAVY:EDIT"_qs)), Qt::LeftButton);
    ASSERT_EQ(clicks.size(), 1);
    EXPECT_EQ(clicks[0][0].toString(), u"VYSTAVY:EDIT"_qs);
}

TEST_F(CommandCollectionTest, ACommandWithoutAButtonKeepsItsCheckMark) {
    CommandCollection commands(u"cmdBar"_qs, {u"PLEMENA"_qs}, &window_);
    QAction& hide = *commands.Action(u"PLEMENA:HIDEUNUSED"_qs);
    EXPECT_TRUE(hide.isCheckable());
    const QSignalSpy clicks(&commands, &CommandCollection::CommandClick);
    hide.trigger();
    EXPECT_TRUE(hide.isChecked());
    EXPECT_EQ(clicks.size(), 1);
}

TEST_F(CommandCollectionTest, HoldsItsOwnGroupsAlone) {
    const CommandCollection commands(u"cmdBar"_qs, {u"DOGLIST"_qs}, &window_);
    EXPECT_EQ(commands.Action(u"DOGLIST:FILTER"_qs)->text(), u"Filtr"_qs);
    EXPECT_THROW(commands.Action(u"VYSTAVY:ADD"_qs), Error);
}

TEST_F(CommandCollectionTest, ABarThatIsNotDescribedIsRefused) {
    CommandCollection commands(u"cmdBar"_qs, {u"COLORS"_qs}, &window_);
    EXPECT_THROW(commands.MakeBar(u"COLORS"_qs, &window_), Error);
}

} // namespace
} // namespace lorvo
