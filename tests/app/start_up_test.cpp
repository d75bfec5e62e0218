#include "app/start_up.h"

#include "app/module_values.h"
#include "platform/values/errors.h"
#include "store/data_module.h"
#include "store/meny.h"
#include "store/vystavy.h"
#include "support/print_qt.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <QFile>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

class StartUp : public ::testing::Test {
  protected:
    void TearDown() override { Module() = {}; }

    void AddCurrency(const QString& zkratka, bool main) {
        database_.Execute("INSERT INTO Meny (Nazev, Zkratka, Kurs, Hlavni) VALUES ('" +
                          zkratka.toStdString() + "', '" + zkratka.toStdString() + "', 10000, " +
                          (main ? "-1" : "0") + ")");
    }
    /// Abbreviations in row order, the marked ones with a star behind.
    static QString CurrencyMarks() {
        QStringList marks;
        for (const Meny& money : Currencies())
            marks << money.Zkratka + (money.Hlavni ? u"*"_qs : QString());
        return marks.join(u' ');
    }
    void SetSetting(const QString& name, const QString& text) {
        platform_.settings[u"Sys\\"_qs + name] = text;
    }
    QString Setting(const QString& name) { return platform_.settings[u"Sys\\"_qs + name]; }

    test::RecordingPlatform platform_;
    TempDatabase database_;
};

TEST_F(StartUp, AMissingDatabaseIsNamedWithTheReason) {
    TheDataModule().Conn1.Close();
    try {
        OpenDatabase();
        FAIL() << "opened a file that isn't there";
    } catch (const StoreError& error) {
        EXPECT_TRUE(QString::fromUtf8(error.what()).contains(u"data.mdb"_qs)) << error.what();
    }
    EXPECT_FALSE(QFile::exists(platform_.ProgramFolder() + u"/data.mdb"_qs));
}

TEST_F(StartUp, TheDatabaseLiesInTheProgramFolder) {
    TheDataModule().Conn1.Close();
    TempDatabase::CopyTo(platform_.ProgramFolder());
    OpenDatabase();
    EXPECT_TRUE(TheDataModule().Conn1.IsOpen());
    EXPECT_EQ(TheDataModule().Conn1.Path(), platform_.ProgramFolder() + u"/data.mdb"_qs);
    TheDataModule().Conn1.Close();
}

TEST_F(StartUp, AnEmptyTableOfShowsGetsTheMainShowEachTime) {
    for (int start = 0; start < 2; ++start) {
        EnsureShow();
        ASSERT_EQ(Shows().size(), 1u);
        EXPECT_EQ(Shows().front().Nazev, u"Hlavní výstava"_qs);
        EXPECT_FALSE(Shows().front().Uzaverka1);
        database_.Execute("DELETE FROM Vystavy");
    }
}

TEST_F(StartUp, ShowsThatAreThereAreLeftAlone) {
    InsertShow(u"Krajská"_qs);
    EnsureShow();
    ASSERT_EQ(Shows().size(), 1u);
    EXPECT_EQ(Shows().front().Nazev, u"Krajská"_qs);
}

TEST_F(StartUp, TheFirstCurrencyBecomesMainWhateverTheLocaleSays) {
    AddCurrency(u"EUR"_qs, false);
    AddCurrency(u"Kč"_qs, false);
    EnsureMainCurrency();
    EXPECT_EQ(CurrencyMarks(), u"EUR* Kč"_qs);
    EXPECT_EQ(Module().MainCurrency, u"EUR"_qs);
}

TEST_F(StartUp, ACurrencyWithoutAbbreviationBecomesMainBeforeTheFirst) {
    AddCurrency(u"EUR"_qs, false);
    AddCurrency(QString(), false);
    EnsureMainCurrency();
    EXPECT_EQ(CurrencyMarks(), u"EUR *"_qs);
    EXPECT_EQ(Module().MainCurrency, QString());
}

TEST_F(StartUp, OfTwoMainCurrenciesTheFirstWins) {
    AddCurrency(u"USD"_qs, false);
    AddCurrency(u"EUR"_qs, true);
    AddCurrency(u"Kč"_qs, true);
    EnsureMainCurrency();
    EXPECT_EQ(CurrencyMarks(), u"USD EUR* Kč"_qs);
    EXPECT_EQ(Module().MainCurrency, u"EUR"_qs);
}

TEST_F(StartUp, RowsWithTheWinnersAbbreviationKeepTheirMark) {
    AddCurrency(u"EUR"_qs, true);
    AddCurrency(u"Kč"_qs, true);
    AddCurrency(u"EUR"_qs, true);
    EnsureMainCurrency();
    EXPECT_EQ(CurrencyMarks(), u"EUR* Kč EUR*"_qs);
}

TEST_F(StartUp, WithoutCurrenciesTheTableStaysEmptyAndAmountsAreInCrowns) {
    EnsureMainCurrency();
    EXPECT_EQ(CountCurrencies(), 0);
    EXPECT_EQ(Module().MainCurrency, u"Kč"_qs);
}

TEST_F(StartUp, AMissingTableOfCurrenciesIsPassedOverInSilence) {
    database_.Execute("DROP TABLE Meny");
    EnsureMainCurrency();
    EXPECT_EQ(Module().MainCurrency, u"Kč"_qs);
}

TEST_F(StartUp, ClassesAreShownOnlyByTheTextOne) {
    for (const QString& text : {QString(), u"0"_qs, u"2"_qs, u"true"_qs}) {
        SetSetting(u"ShowClasses"_qs, text);
        ReadShowClasses();
        EXPECT_FALSE(Module().ShowClassesOn) << text.toStdString();
    }
    SetSetting(u"ShowClasses"_qs, u"1"_qs);
    ReadShowClasses();
    EXPECT_TRUE(Module().ShowClassesOn);
}

TEST_F(StartUp, ARememberedNodeSwitchesRememberingOn) {
    SetSetting(u"RememberTree"_qs, u"P12"_qs);
    EXPECT_EQ(RememberedNode(), u"P12"_qs);
    EXPECT_TRUE(Module().RememberTreeOn);
}

TEST_F(StartUp, WithoutARememberedNodeRememberingIsOff) {
    Module().RememberTreeOn = true;
    EXPECT_EQ(RememberedNode(), QString());
    EXPECT_FALSE(Module().RememberTreeOn);
}

TEST_F(StartUp, TheTreesStateIsStoredWhenRemembered) {
    Module().RememberTreeOn = true;
    StoreTreeState(u"R5"_qs, {u"K1"_qs, u"R5"_qs});
    EXPECT_EQ(Setting(u"RememberTree"_qs), u"R5"_qs);
    EXPECT_EQ(Setting(u"ExpandedItems"_qs), u"K1|R5"_qs);
    StoreTreeState(QString(), {});
    EXPECT_EQ(Setting(u"RememberTree"_qs), u"R5"_qs) << "no selected node overwrites nothing";
    EXPECT_EQ(Setting(u"ExpandedItems"_qs), QString());
}

TEST_F(StartUp, WithoutRememberingOnlyTheNodeIsForgotten) {
    SetSetting(u"RememberTree"_qs, u"R5"_qs);
    SetSetting(u"ExpandedItems"_qs, u"K1|R5"_qs);
    StoreTreeState(u"R7"_qs, {u"K2"_qs});
    EXPECT_EQ(Setting(u"RememberTree"_qs), QString());
    EXPECT_EQ(Setting(u"ExpandedItems"_qs), u"K1|R5"_qs);
}

} // namespace
} // namespace lorvo
