// The page that takes entries in: a file chosen, its lines judged, the ticked ones taken.

#include "manager/manager_fixture.h"
#include "manager/remembered_columns.h"
#include "store/plemena.h"

namespace lorvo::test {
namespace {

using namespace Qt::StringLiterals;

const QString kTaken = u"\nPsů: 2\nNových majitelů: 1\nPřihlášek na výstavy a do soutěží: 2\n"
                       u"Poplatky: 1 100,00 Kč\nPlateb: 0\nUhrazeno: 0,00 Kč\n"_s;

class EntriesPageTest : public ManagerPageTest {
  protected:
    void ExpectReport(MessageAnswer save) {
        platform.ExpectMessage(u"Převzato ze souboru "_s + Path(u"prihlasky.csv"_s) + kTaken +
                                   u"\nUložit tuto zprávu do souboru?"_s,
                               save);
    }
    /// Ticks or clears a line's box by the blank.
    void Tick(int line) {
        ReportList& lines = List("lvwLines");
        lines.setFocus();
        lines.setCurrentIndex(lines.model()->index(line, 0));
        QTest::keyClick(&lines, Qt::Key_Space);
    }
    QString State(int line) { return List("lvwLines").CellText(line, 1); }
    void ChooseByKeys(const char* combo, Qt::Key key) {
        auto& box = Control<QComboBox>(window, combo);
        box.setFocus();
        QTest::keyClick(&box, key);
    }
};

TEST_F(EntriesPageTest, EveryLineIsShownAndTheTickedOnesAreTaken) {
    OpenEntries(kEntries);
    ASSERT_EQ(List("lvwLines").RowCount(), 3);
    EXPECT_EQ(
        LabelText("lblCounts"),
        u"Řádků: 3, nových: 2, už přihlášených: 0, ke kontrole: 1, k převzetí zaškrtnuto: 2"_s);
    EXPECT_EQ(Control<QComboBox>(window, "cmbEncoding").currentText(), u"UTF-8"_s);
    EXPECT_EQ(Figures().dogs, 0) << "nothing is written before";
    ExpectReport(MessageAnswer::No);
    Press("cmdTake");
    EXPECT_EQ(Figures().dogs, 2);
    EXPECT_EQ(State(0), u"už je"_s) << "the lines are judged anew";
    EXPECT_FALSE(IsOffered("cmdTake"));
}

TEST_F(EntriesPageTest, TheReportIsSavedWhereTheClerkSays) {
    OpenEntries(kEntries);
    platform.chosenFiles << Path(u"zprava.txt"_s);
    ExpectReport(MessageAnswer::Yes);
    Press("cmdTake");
    EXPECT_EQ(platform.suggestedFiles, QStringList{Path(u"prihlasky - převzetí.txt"_s)});
    EXPECT_EQ(QString::fromUtf8(Read(Path(u"zprava.txt"_s))),
              (u"Převzato ze souboru "_s + Path(u"prihlasky.csv"_s) + kTaken).trimmed());
}

TEST_F(EntriesPageTest, ALineWithoutATickStaysAndGoesIntoTheRest) {
    OpenEntries(kEntries);
    Tick(1);
    EXPECT_TRUE(LabelText("lblCounts").endsWith(u"zaškrtnuto: 1"_s));
    platform.chosenFiles << Path(u"zbytek.csv"_s);
    Press("cmdRest");
    const QString rest = QString::fromUtf8(Read(Path(u"zbytek.csv"_s)));
    EXPECT_TRUE(rest.contains(u"Bára"_s) && rest.contains(u"Rek"_s) && !rest.contains(u"Alík"_s))
        << rest.toStdString();
}

TEST_F(EntriesPageTest, AnotherShowLeavesTheTicksAsTheClerkSetThem) {
    OpenEntries(kEntries);
    Tick(1);
    ChooseByKeys("cmbShow", Qt::Key_Down);
    EXPECT_EQ(Control<QComboBox>(window, "cmbShow").currentText(), u"(žádnou)"_s);
    EXPECT_TRUE(LabelText("lblCounts").endsWith(u"zaškrtnuto: 1"_s));
}

TEST_F(EntriesPageTest, TheRestNeverTakesThePlaceOfTheEntries) {
    OpenEntries(kEntries);
    Tick(1);
    platform.chosenFiles << Path(u"prihlasky.csv"_s);
    platform.ExpectMessage(u"Zbytek nelze uložit do souboru, ze kterého se přihlášky berou. "
                           "Zvolte jiný název."_s,
                           MessageAnswer::Ok, MessageIcon::Exclamation);
    Press("cmdRest");
    EXPECT_EQ(Read(Path(u"prihlasky.csv"_s)), kEntries);
}

TEST_F(EntriesPageTest, ALineThatCanNotBeTakenTakesNoTick) {
    OpenEntries(kEntries);
    EXPECT_EQ(State(2), u"nelze převzít"_s);
    Tick(2);
    EXPECT_TRUE(LabelText("lblCounts").endsWith(u"zaškrtnuto: 2"_s));
}

TEST_F(EntriesPageTest, AnotherEncodingIsReadFromTheSameBytes) {
    OpenEntries(kEntries);
    ChooseByKeys("cmbEncoding", Qt::Key_Down);
    EXPECT_NE(List("lvwLines").CellText(0, 2), u"Alík"_s);
    ChooseByKeys("cmbEncoding", Qt::Key_Up);
    EXPECT_EQ(List("lvwLines").CellText(0, 2), u"Alík"_s);
}

TEST_F(EntriesPageTest, AnotherSeparatorIsReadFromTheSameBytes) {
    OpenEntries(kEntries);
    ChooseByKeys("cmbSeparator", Qt::Key_Down);
    EXPECT_EQ(State(0), u"nelze převzít"_s);
    ChooseByKeys("cmbSeparator", Qt::Key_Up);
    EXPECT_EQ(State(0), u"nová"_s);
}

TEST_F(EntriesPageTest, AChosenColumnHoldsAndIsRememberedForHeadingsLikeThese) {
    const QByteArray odd = "Volací jméno;Plemeno;Pohlaví;Datum narození;Třída;Majitel\n"
                           "Alík;boxer;pes;5.6.2024;otevřená;Eva Nová\n";
    OpenEntries(odd);
    EXPECT_EQ(State(0), u"nelze převzít"_s) << "no column has the name";
    const auto choose = [](QWidget& columns, bool accept) {
        auto& name = Control<QComboBox>(columns, "cmbField(0)");
        EXPECT_EQ(name.currentText(), u"(není)"_s);
        name.setFocus();
        QTest::keyClick(&name, Qt::Key_Down);
        EXPECT_EQ(name.currentText(), u"Volací jméno"_s);
        QTest::keyClick(&columns, accept ? Qt::Key_Return : Qt::Key_Escape);
    };
    WhileOpen([this] { Press("cmdColumns"); }, [&](QWidget& columns) { choose(columns, false); });
    EXPECT_EQ(State(0), u"nelze převzít"_s) << "Esc leaves the columns as they were";
    WhileOpen([this] { Press("cmdColumns"); }, [&](QWidget& columns) { choose(columns, true); });
    EXPECT_EQ(State(0), u"nová"_s);

    frmSpravce next(ThePlatform());
    platform.chosenFiles << Path(u"prihlasky.csv"_s);
    next.show();
    next.tabSpravce->setCurrentIndex(1);
    QTest::mouseClick(&Control<QPushButton>(next, "cmdFile"), Qt::LeftButton);
    EXPECT_EQ(Control<ReportList>(next, "lvwLines").CellText(0, 1), u"nová"_s);
}

TEST_F(EntriesPageTest, AColumnThatOneFileLacksIsReadFromTheNext) {
    const QStringList few{u"Jméno psa"_s};
    const QStringList more{u"Jméno psa"_s, u"Uhrazeno"_s};
    constexpr auto kPaid = static_cast<std::size_t>(EntryField::Paid);
    RememberColumns(few, ColumnsByHeading(few));
    EXPECT_EQ(RememberedColumns(more)[kPaid], 1);
    ColumnChoice takenAway = ColumnsByHeading(more);
    takenAway[kPaid].reset();
    RememberColumns(more, takenAway);
    EXPECT_EQ(RememberedColumns(more)[kPaid], std::nullopt);
}

TEST_F(EntriesPageTest, TabGoesAsThePageReads) {
    OpenEntries(kEntries);
    Control<QPushButton>(window, "cmdFile").setFocus();
    QStringList passed;
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        passed << window.focusWidget()->objectName();
    }
    EXPECT_EQ(
        passed.join(u' '),
        u"cmdTemplate cmbEncoding cmbSeparator cmbShow cmdColumns lvwLines cmdTake cmdRest"_s);
}

TEST_F(EntriesPageTest, TabGoesFromTheFirstLinesThroughTheFieldsToTheButtons) {
    OpenEntries(kEntries);
    WhileOpen([this] { Press("cmdColumns"); },
              [](QWidget& columns) {
                  EXPECT_EQ(columns.focusWidget()->objectName(), u"cmbField(0)"_s);
                  QTest::keyClick(columns.focusWidget(), Qt::Key_Backtab);
                  EXPECT_EQ(columns.focusWidget()->objectName(), u"lvwFirstLines"_s);
                  QTest::keyClick(columns.focusWidget(), Qt::Key_Backtab);
                  EXPECT_EQ(columns.focusWidget()->objectName(), u"cmdCancel"_s);
              });
}

TEST_F(EntriesPageTest, BesideLorvoNothingIsTaken) {
    OpenEntries(kEntries);
    const ProgramLock lorvo(platform.ProgramFolder());
    ExpectRefusalBesideLorvo();
    Press("cmdTake");
    EXPECT_EQ(Figures().dogs, 0);
    EXPECT_TRUE(IsOffered("cmdTake"));
}

TEST_F(EntriesPageTest, WhatLorvoChangedMeanwhileIsShownFirst) {
    OpenEntries(kEntries);
    TheDataModule().Conn1.Open(DatabasePath(platform.ProgramFolder()));
    EXPECT_TRUE(SetBreedUsed(1, false));
    TheDataModule().Conn1.Close();
    platform.ExpectMessage(
        u"Databáze se od načtení souboru změnila. Podívejte se na řádky znovu."_s);
    Press("cmdTake");
    EXPECT_EQ(Figures().dogs, 0);
    EXPECT_EQ(State(0), u"nelze převzít"_s);
}

TEST_F(EntriesPageTest, NothingIsTakenIntoAShowThatIsGone) {
    OpenEntries(kEntries);
    TheDataModule().Conn1.Open(DatabasePath(platform.ProgramFolder()));
    Add("Vystavy", {{"Nazev", Text("Druhá")}});
    TheDataModule().rsVystavy.Open("DELETE * FROM Vystavy WHERE ID = 1");
    TheDataModule().Conn1.Close();
    platform.ExpectMessage(
        u"Databáze se od načtení souboru změnila. Podívejte se na řádky znovu."_s);
    Press("cmdTake");
    EXPECT_EQ(Figures().dogs, 0);
    EXPECT_EQ(Control<QComboBox>(window, "cmbShow").currentText(), u"Druhá"_s);
}

TEST_F(EntriesPageTest, AFileThatIsNoTableIsRefusedAndThePageStays) {
    Show(1);
    platform.chosenFiles << Path(u"neni.csv"_s);
    platform.ExpectMessage(u"Soubor nelze přečíst „"_s + Shown(u"neni.csv"_s) +
                           u"“: soubor nebo jeho složka neexistuje"_s);
    Press("cmdFile");
    EXPECT_FALSE(IsOffered("cmdTake"));
    EXPECT_EQ(LabelText("lblFile"), u"Není vybrán žádný soubor."_s);
}

TEST_F(EntriesPageTest, TheTemplateHasTheHeadingsThatAreKnown) {
    Show(1);
    platform.chosenFiles << Path(u"vzor.csv"_s);
    Press("cmdTemplate");
    EXPECT_EQ(platform.suggestedFiles, QStringList{Path(u"Přihlášky - vzor.csv"_s)});
    EXPECT_TRUE(Read(Path(u"vzor.csv"_s)).startsWith("\xEF\xBB\xBFJméno psa;"));
}

TEST_F(EntriesPageTest, WhenTheShowCanNotBeReadAnyMoreNoLineIsOffered) {
    OpenEntries(kEntries);
    ASSERT_EQ(List("lvwLines").RowCount(), 3);
    QFile data(DatabasePath(platform.ProgramFolder()));
    ASSERT_TRUE(data.open(QIODevice::ReadWrite));
    data.write(QByteArray(200, 'x'));
    data.close();
    platform.anyMessages = true;
    ChooseByKeys("cmbSeparator", Qt::Key_Down);
    EXPECT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(List("lvwLines").RowCount(), 0);
    EXPECT_FALSE(IsOffered("cmdTake"));
}

} // namespace
} // namespace lorvo::test
