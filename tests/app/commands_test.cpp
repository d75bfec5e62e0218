#include "app/commands.h"

#include "support/print_qt.h"

#include <QSet>
#include <algorithm>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Nullptr when there is no such command.
const Command* FindCommand(QStringView key) {
    const auto found = std::ranges::find(AllCommands(), key, &Command::key);
    return found == AllCommands().end() ? nullptr : &*found;
}

QStringList Buttons(QStringView bar) {
    QStringList keys;
    for (const QStringView key : FindCommandBar(bar)->commands)
        keys << key.toString();
    return keys;
}

TEST(Commands, HaveKeysOfTheirOwn) {
    QSet<QString> keys;
    for (const Command& command : AllCommands())
        keys << command.key.toString();
    EXPECT_EQ(static_cast<std::size_t>(keys.size()), AllCommands().size());
}

TEST(Commands, OfEveryBarExist) {
    for (const QStringView bar : {u"STANDARD", u"ADD", u"TABLES", u"EXPORT", u"HELP", u"PLEMENA",
                                  u"VYSTAVY", u"DOGLIST", u"CURRENCIESLIST"}) {
        ASSERT_TRUE(FindCommandBar(bar));
        for (const QStringView key : FindCommandBar(bar)->commands)
            EXPECT_TRUE(FindCommand(key)) << key.toString().toStdString();
    }
}

TEST(Commands, StandInTheOrderOfTheirBars) {
    EXPECT_EQ(Buttons(u"STANDARD").join(u' '), u"ADD TABLES EXPORT SETTINGS HELP"_s);
    EXPECT_EQ(Buttons(u"ADD").join(u' '), u"ADD:CIRCLE ADD:DOG"_s);
    EXPECT_EQ(Buttons(u"HELP").join(u' '), u"HELP:GENERAL HELP:ABOUT"_s);
    EXPECT_EQ(Buttons(u"TABLES").indexOf(u"TABLES:SEP1"_s), 2);
    EXPECT_EQ(Buttons(u"TABLES").indexOf(u"TABLES:SEP2"_s), 8);
    EXPECT_EQ(Buttons(u"EXPORT").constFirst(), u"EXPORT:KATALOG"_s);
    EXPECT_EQ(Buttons(u"EXPORT").constLast(), u"EXPORT:PLATBY"_s);
}

TEST(Commands, WithoutAButtonExistAllTheSame) {
    for (const QStringView key : {u"ADD:RACE", u"TABLES:BARVY", u"EXPORT:SEP3", u"COLORS:ADD",
                                  u"HELP:CONTEXT", u"PLEMENA:HIDEUNUSED"}) {
        EXPECT_TRUE(FindCommand(key)) << key.toString().toStdString();
        const QString group = key.left(key.indexOf(u':')).toString();
        const CommandBar* bar = FindCommandBar(group);
        EXPECT_FALSE(bar && Buttons(group).contains(key.toString()));
    }
}

TEST(Commands, KnowTheirStyle) {
    EXPECT_EQ(FindCommand(u"TABLES:SEP1")->style, CommandStyle::Separator);
    EXPECT_EQ(FindCommand(u"HELP:CONTEXT")->style, CommandStyle::CheckBox);
    EXPECT_EQ(FindCommand(u"PLEMENA:HIDEUNUSED")->style, CommandStyle::CheckBox);
    EXPECT_EQ(FindCommand(u"ADD:CIRCLE")->style, CommandStyle::Plain);
    EXPECT_EQ(FindCommand(u"PLEMENA:HELP")->toolTip, u"Nápověda");
}

TEST(Commands, UnknownAreNotFound) {
    EXPECT_FALSE(FindCommand(u"ADD:CAT"));
    EXPECT_FALSE(FindCommandBar(u"COLORS"));
}

} // namespace
} // namespace lorvo
