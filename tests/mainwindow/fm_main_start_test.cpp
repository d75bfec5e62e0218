#include "forms/report_list.h"
#include "mainwindow/fm_main_fixture.h"
#include "platform/values/errors.h"
#include "store/vystavy.h"
#include "support/grid_lines.h"

#include <QSplitter>
#include <QToolBar>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class MainWindowStart : public MainWindowTest {
  protected:
    int TreeWidth() { return Control<QSplitter>(u"vbuSplit"_s).sizes().constFirst(); }
};

TEST_F(MainWindowStart, AnEmptyDatabaseOpensWithTheMainShowAndAnAlmostEmptyTree) {
    Start();
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(window_->windowTitle(), u"Lorvo"_s);
    ASSERT_EQ(Shows().size(), 1u);
    EXPECT_EQ(Shows().front().Nazev, u"Hlavní výstava"_s);
    EXPECT_EQ(Tree().Nodes().Count(), 1);
    EXPECT_TRUE(window_->NodeExists(u"K0"_s));
    EXPECT_EQ(window_->SelectedNode(), QString());
    EXPECT_TRUE(platform_.messages.empty());
}

TEST_F(MainWindowStart, OtherWindowsReachTheTreeThroughTheServices) {
    AddSmallShow();
    Start();
    MainWindowServices& services = TheMainWindow();
    EXPECT_EQ(&services.Nodes(), &Tree().Nodes());
    services.AddDogNode(u"R11"_s, 300, u"Cita"_s, false);
    services.SetNodeText(u"P300"_s, u"Cita z Lhoty"_s);
    services.SelectNode(u"P300"_s);
    EXPECT_EQ(services.SelectedNode(), u"P300"_s);
    EXPECT_EQ(services.NodeText(u"P300"_s), u"Cita z Lhoty"_s);
    EXPECT_THROW(services.SelectNode(u"P301"_s), Error);
    EXPECT_THROW(services.AddDogNode(u"R99"_s, 301, u"Cita"_s, false), Error);
    EXPECT_EQ(services.Caption(), u"Lorvo"_s);
}

TEST_F(MainWindowStart, FillsTheTablesOfConstants) {
    Start();
    EXPECT_EQ(Module().ClassNames[3], u"mezitřída"_s);
    EXPECT_EQ(Tables().SpecialClassTo[2], 24);
    EXPECT_EQ(Tables().DogSizes[5], u"velký"_s);
    EXPECT_EQ(Tables().CoatTypes[4], u"bez srsti"_s);
    EXPECT_EQ(Tables().PaymentModes[1], u"hotově"_s);
    EXPECT_EQ(Module().MainCurrency, u"Kč"_s);
}

TEST_F(MainWindowStart, MissingTablesAreMetInSilence) {
    database_.Execute("DROP TABLE Vystavy");
    database_.Execute("DROP TABLE Meny");
    AddSmallShow();
    Start();
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(window_->NodeExists(u"P100"_s));
    EXPECT_TRUE(platform_.messages.empty());
}

TEST_F(MainWindowStart, ATreeThatFailsHalfwayStaysAsFarAsItGot) {
    AddSmallShow();
    AddDog(102, "Zbloudilý", 10, 0);
    Setting(u"Sys\\ShowClasses"_s) = u"1"_s;
    Start();
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(window_->NodeExists(u"R10"_s));
    EXPECT_FALSE(window_->NodeExists(u"P102"_s));
    EXPECT_EQ(Module().MainCurrency, u"Kč"_s) << "what comes later in the sequence still runs";
}

TEST_F(MainWindowStart, TheRememberedNodeIsSelectedAndShown) {
    AddSmallShow();
    Setting(u"Sys\\RememberTree"_s) = u"R10"_s;
    Start();
    EXPECT_EQ(window_->SelectedNode(), u"R10"_s);
    EXPECT_TRUE(Title().startsWith(u"Pudl"_s)) << Title().toStdString();
}

TEST_F(MainWindowStart, ARememberedNodeThatIsGoneSelectsNothing) {
    AddSmallShow();
    Setting(u"Sys\\RememberTree"_s) = u"P999"_s;
    Start();
    EXPECT_EQ(window_->SelectedNode(), QString());
    EXPECT_TRUE(window_->Look().rememberTree);
    EXPECT_TRUE(platform_.messages.empty());
}

TEST_F(MainWindowStart, ARememberedClassNodeIsNotRestored) {
    AddSmallShow();
    Setting(u"Sys\\ShowClasses"_s) = u"1"_s;
    Setting(u"Sys\\RememberTree"_s) = u"TR10|5"_s;
    Start();
    EXPECT_TRUE(window_->NodeExists(u"TR10|5"_s));
    EXPECT_EQ(window_->SelectedNode(), QString());
    EXPECT_TRUE(window_->Look().rememberTree);
}

TEST_F(MainWindowStart, TheDividerStandsWhereItWasLeft) {
    Setting(u"Splitters\\fm_main\\Left"_s) = u"250"_s;
    Start();
    EXPECT_EQ(TreeWidth(), 250);
    Close();
    EXPECT_EQ(Setting(u"Splitters\\fm_main\\Left"_s), u"250"_s);
}

TEST_F(MainWindowStart, AUselessDividerPositionKeepsTheDesignedOne) {
    Start();
    const int designed = TreeWidth();
    for (const QString& text : {u"0"_s, u"-250"_s, u"abc"_s, u"0,5"_s}) {
        window_.reset();
        Setting(u"Splitters\\fm_main\\Left"_s) = text;
        Start();
        EXPECT_EQ(TreeWidth(), designed) << text.toStdString();
    }
}

TEST_F(MainWindowStart, GridLinesFollowThePreferenceBothWays) {
    for (const bool shown : {true, false}) {
        Setting(u"Sys\\ShowGrid"_s) = shown ? u"1"_s : u"0"_s;
        Start();
        for (const QString& name : {u"lvwSouteze"_s, u"lvwOceneni"_s, u"lvwDogs"_s})
            EXPECT_EQ(test::ShowsGridLines(Control<ReportList>(name)), shown) << name.toStdString();
        window_.reset();
    }
}

TEST_F(MainWindowStart, ClosingWithoutRememberingStoresAnEmptyNode) {
    AddSmallShow();
    Setting(u"Sys\\ExpandedItems"_s) = u"K7"_s;
    Start();
    window_->SelectNode(u"P100"_s);
    Close();
    EXPECT_EQ(Setting(u"Sys\\RememberTree"_s), QString());
    EXPECT_EQ(Setting(u"Sys\\ExpandedItems"_s), u"K7"_s);
}

TEST_F(MainWindowStart, ClosingWithRememberingStoresTheSelectedAndTheExpandedNodes) {
    AddSmallShow();
    Start();
    window_->Look().rememberTree = true;
    window_->SelectNode(u"P101"_s);
    Close();
    EXPECT_EQ(Setting(u"Sys\\RememberTree"_s), u"P101"_s);
    EXPECT_EQ(Setting(u"Sys\\ExpandedItems"_s), u"K1|R10"_s);
}

TEST_F(MainWindowStart, ExpandedBreedsComeBackButNotTheirClasses) {
    AddSmallShow();
    Setting(u"Sys\\ShowClasses"_s) = u"1"_s;
    Setting(u"Sys\\RememberTree"_s) = u"K1"_s;
    Start();
    window_->SelectNode(u"P100"_s);
    Close();
    EXPECT_EQ(Setting(u"Sys\\ExpandedItems"_s), u"K1|R10|TR10|5"_s);
    Setting(u"Sys\\RememberTree"_s) = u"K1"_s;
    Start();
    EXPECT_EQ(Tree().ExpandedKeys(), (QStringList{u"K1"_s, u"R10"_s}));
}

TEST_F(MainWindowStart, TheWindowKeepsItsSize) {
    Start();
    window_->resize(780, 600); // what the test's screen has room for
    Close();
    Start();
    EXPECT_EQ(window_->size(), QSize(780, 600));
}

} // namespace
} // namespace lorvo
