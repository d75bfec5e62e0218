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

using namespace Qt::StringLiterals;

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
            marks << money.Zkratka + (money.Hlavni ? u"*"_s : QString());
        return marks.join(u' ');
    }
    void SetSetting(const QString& name, const QString& text) {
        platform_.settings[u"Sys\\"_s + name] = text;
    }
    QString Setting(const QString& name) { return platform_.settings[u"Sys\\"_s + name]; }

    test::RecordingPlatform platform_;
    TempDatabase database_;
};

TEST_F(StartUp, AMissingDatabaseIsNamedWithTheReason) {
    TheDataModule().Conn1.Close();
    try {
        OpenDatabase();
        FAIL() << "opened a file that isn't there";
    } catch (const StoreError& error) {
        EXPECT_TRUE(QString::fromUtf8(error.what()).contains(u"data.mdb"_s)) << error.what();
    }
    EXPECT_FALSE(QFile::exists(platform_.ProgramFolder() + u"/data.mdb"_s));
}

TEST_F(StartUp, TheDatabaseLiesInTheProgramFolder) {
    TheDataModule().Conn1.Close();
    TempDatabase::CopyTo(platform_.ProgramFolder());
    OpenDatabase();
    EXPECT_TRUE(TheDataModule().Conn1.IsOpen());
    EXPECT_EQ(TheDataModule().Conn1.Path(), platform_.ProgramFolder() + u"/data.mdb"_s);
    TheDataModule().Conn1.Close();
}

TEST_F(StartUp, AnEmptyTableOfShowsGetsTheMainShowEachTime) {
    for (int start = 0; start < 2; ++start) {
        EnsureShow();
        ASSERT_EQ(Shows().size(), 1u);
        EXPECT_EQ(Shows().front().Nazev, u"Hlavní výstava"_s);
        EXPECT_FALSE(Shows().front().Uzaverka1);
        database_.Execute("DELETE FROM Vystavy");
    }
}

TEST_F(StartUp, ShowsThatAreThereAreLeftAlone) {
    InsertShow(u"Krajská"_s);
    EnsureShow();
    ASSERT_EQ(Shows().size(), 1u);
    EXPECT_EQ(Shows().front().Nazev, u"Krajská"_s);
}

TEST_F(StartUp, TheFirstCurrencyBecomesMainWhateverTheLocaleSays) {
    AddCurrency(u"EUR"_s, false);
    AddCurrency(u"Kč"_s, false);
    EnsureMainCurrency();
    EXPECT_EQ(CurrencyMarks(), u"EUR* Kč"_s);
    EXPECT_EQ(Module().MainCurrency, u"EUR"_s);
}

TEST_F(StartUp, ACurrencyWithoutAbbreviationBecomesMainBeforeTheFirst) {
    AddCurrency(u"EUR"_s, false);
    AddCurrency(QString(), false);
    EnsureMainCurrency();
    EXPECT_EQ(CurrencyMarks(), u"EUR *"_s);
    EXPECT_EQ(Module().MainCurrency, QString());
}

// kept: first-mark-wins
TEST_F(StartUp, OfTwoMainCurrenciesTheFirstWins) {
    AddCurrency(u"USD"_s, false);
    AddCurrency(u"EUR"_s, true);
    AddCurrency(u"Kč"_s, true);
    EnsureMainCurrency();
    EXPECT_EQ(CurrencyMarks(), u"USD EUR* Kč"_s);
    EXPECT_EQ(Module().MainCurrency, u"EUR"_s);
}

TEST_F(StartUp, RowsWithTheWinnersAbbreviationKeepTheirMark) {
    AddCurrency(u"EUR"_s, true);
    AddCurrency(u"Kč"_s, true);
    AddCurrency(u"EUR"_s, true);
    EnsureMainCurrency();
    EXPECT_EQ(CurrencyMarks(), u"EUR* Kč EUR*"_s);
}

TEST_F(StartUp, WithoutCurrenciesTheTableStaysEmptyAndAmountsAreInCrowns) {
    EnsureMainCurrency();
    EXPECT_EQ(CountCurrencies(), 0);
    EXPECT_EQ(Module().MainCurrency, u"Kč"_s);
}

TEST_F(StartUp, AMissingTableOfCurrenciesIsPassedOverInSilence) {
    database_.Execute("DROP TABLE Meny");
    EnsureMainCurrency();
    EXPECT_EQ(Module().MainCurrency, u"Kč"_s);
}

TEST_F(StartUp, ClassesAreShownOnlyByTheTextOne) {
    for (const QString& text : {QString(), u"0"_s, u"2"_s, u"true"_s}) {
        SetSetting(u"ShowClasses"_s, text);
        EXPECT_FALSE(ShowClassesPreferred()) << text.toStdString();
    }
    SetSetting(u"ShowClasses"_s, u"1"_s);
    EXPECT_TRUE(ShowClassesPreferred());
}

TEST_F(StartUp, TheNodeSelectedLastIsRemembered) {
    EXPECT_EQ(RememberedNode(), QString());
    SetSetting(u"RememberTree"_s, u"P12"_s);
    EXPECT_EQ(RememberedNode(), u"P12"_s);
}

TEST_F(StartUp, TheTreesStateIsStoredWhenRemembered) {
    RememberTree(u"R5"_s, {u"K1"_s, u"R5"_s});
    EXPECT_EQ(Setting(u"RememberTree"_s), u"R5"_s);
    EXPECT_EQ(Setting(u"ExpandedItems"_s), u"K1|R5"_s);
    RememberTree(QString(), {});
    EXPECT_EQ(Setting(u"RememberTree"_s), u"R5"_s) << "no selected node overwrites nothing";
    EXPECT_EQ(Setting(u"ExpandedItems"_s), QString());
}

TEST_F(StartUp, WithoutRememberingOnlyTheNodeIsForgotten) {
    SetSetting(u"RememberTree"_s, u"R5"_s);
    SetSetting(u"ExpandedItems"_s, u"K1|R5"_s);
    ForgetTree();
    EXPECT_EQ(Setting(u"RememberTree"_s), QString());
    EXPECT_EQ(Setting(u"ExpandedItems"_s), u"K1|R5"_s);
}

} // namespace
} // namespace lorvo
