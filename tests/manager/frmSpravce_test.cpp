// The window of the data's own program and its commands, on a small show.

#include "manager/frmSpravce.h"

#include "app/module_values.h"
#include "forms/report_list.h"
#include "manager/script_commands.h"
#include "office/copies/show_copies.h"
#include "store/ostatni.h"
#include "store/routines_fixture.h"
#include "store/vystavy.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTextStream>

namespace lorvo::test {
namespace {

using namespace Qt::StringLiterals;

class ManagerTest : public RoutinesTest {
  protected:
    ManagerTest() {
        platform.now = DateValue::FromCalendar(2027, 3, 1);
        Add("Plemena", {{"Nazev", Text("Boxer")}, {"Pouzivat", true}});
        Add("Vystavy", {{"Nazev", Text("Hlavní výstava")},
                        {"PoplatkyIClass5D1", Currency::FromUnits(600)},
                        {"PoplatkyIClass5D2", Currency::FromUnits(500)}});
        SetShowDate(DateValue::FromCalendar(2027, 5, 14));
        const QString path = TheDataModule().Conn1.Path();
        TheDataModule().Conn1.Close();
        EXPECT_TRUE(QFile::copy(path, DatabasePath(platform.ProgramFolder())));
    }

    QString Write(const QByteArray& text) {
        const QString path = platform.ProgramFolder() + u"/prihlasky.csv"_s;
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return path;
    }
    static QByteArray Read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Exit code and what was written.
    static std::pair<int, QString> Run(const QStringList& arguments) {
        QString text;
        QTextStream out(&text);
        const int code = RunScriptCommand(arguments, out);
        return {code, text};
    }
    QString Path(const QString& name) const { return platform.ProgramFolder() + u'/' + name; }

    RecordingPlatform platform;
};

const QByteArray kEntries = "Jméno psa;Plemeno;Pohlaví;Datum narození;Třída;Majitel;Město;PSČ\n"
                            "Alík;boxer;pes;5.6.2024;otevřená;Eva Nová;Brno;60200\n"
                            "Bára;boxer;fena;1.1.2023;otevřená;Eva Nová;Brno;60200\n"
                            "Rek;jezevčík;pes;1.1.2023;otevřená;Jan Malý;Zlín;76001\n";

TEST_F(ManagerTest, EntriesAreTakenByACommandAndTheRestStays) {
    const auto [code, text] = Run({u"prevzit"_s, Write(kEntries), Path(u"zbytek.csv"_s)});
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(text.contains(u"Psů: 2\n"_s) && text.contains(u"Poplatky: 1 100,00 Kč"_s))
        << text.toStdString();
    const QString rest = QString::fromUtf8(Read(Path(u"zbytek.csv"_s)));
    EXPECT_TRUE(rest.contains(u"Rek"_s) && rest.contains(u"v seznamu plemen není"_s) &&
                !rest.contains(u"Alík"_s))
        << rest.toStdString();
    EXPECT_EQ(ListCopies(platform.ProgramFolder(), true).size(), 1u) << "the state before";
    EXPECT_EQ(Run({u"prevzit"_s, Path(u"prihlasky.csv"_s), Path(u"zbytek.csv"_s)})
                  .second.section(u'\n', 1, 1),
              u"Psů: 0"_s);
}

TEST_F(ManagerTest, ListsChecksAndCopiesAreCommands) {
    Run({u"prevzit"_s, Write(kEntries), Path(u"zbytek.csv"_s)});
    EXPECT_EQ(Run({u"seznam"_s, u"psi"_s, Path(u"psi.csv"_s)}),
              (std::pair{0, u"Seznam psů: 2\n"_s}));
    EXPECT_TRUE(Read(Path(u"psi.csv"_s)).startsWith("\xEF\xBB\xBFJméno;"));
    EXPECT_EQ(Run({u"kontrola"_s}).first, 0);
    EXPECT_EQ(Run({u"zaloha"_s}).first, 0);
    EXPECT_EQ(Run({u"zalohy"_s}).second.count(u'\n'), 2);
    EXPECT_EQ(Run({u"seznam"_s, u"kocky"_s, Path(u"x.csv"_s)}).first, 2);
    EXPECT_TRUE(Run({u"pomoc"_s}).second.contains(u"vymazat-osoby"_s));
}

TEST_F(ManagerTest, TheWindowShowsEveryLineAndTakesTheTickedOnes) {
    platform.chosenFiles = {Write(kEntries), QString()};
    platform.ExpectMessage(
        u"Převzato ze souboru "_s + Path(u"prihlasky.csv"_s) +
            u"\nPsů: 2\nNových majitelů: 1\nPřihlášek na výstavy a do soutěží: 2\nPoplatky: 1 100,00 Kč\nPlateb: 0\nUhrazeno: 0,00 Kč\n\nUložit tuto zprávu do souboru?"_s,
        MessageAnswer::No);
    frmSpravce window;
    window.show();
    window.tabSpravce->setCurrentIndex(1);
    QTest::mouseClick(window.findChild<QPushButton*>(u"cmdFile"_s), Qt::LeftButton);
    auto* lines = window.findChild<ReportList*>(u"lvwLines"_s);
    ASSERT_EQ(lines->RowCount(), 3);
    EXPECT_EQ(
        window.findChild<QLabel*>(u"lblCounts"_s)->text(),
        u"Řádků: 3, nových: 2, už přihlášených: 0, ke kontrole: 1, k převzetí zaškrtnuto: 2"_s);
    EXPECT_EQ(window.findChild<QComboBox*>(u"cmbEncoding"_s)->currentText(), u"UTF-8"_s);
    QTest::mouseClick(window.findChild<QPushButton*>(u"cmdTake"_s), Qt::LeftButton);
    EXPECT_EQ(FiguresOfDatabase(DatabasePath(platform.ProgramFolder())).dogs, 2);
    EXPECT_EQ(lines->CellText(0, 1), u"už je"_s) << "the lines are judged anew";
}

TEST_F(ManagerTest, AnotherEncodingIsReadFromTheSameBytes) {
    platform.chosenFiles = {Write(kEntries)};
    frmSpravce window;
    window.show();
    QTest::mouseClick(window.findChild<QPushButton*>(u"cmdFile"_s), Qt::LeftButton);
    auto* encoding = window.findChild<QComboBox*>(u"cmbEncoding"_s);
    auto* lines = window.findChild<ReportList*>(u"lvwLines"_s);
    encoding->setCurrentIndex(1);
    Q_EMIT encoding->activated(1);
    EXPECT_NE(lines->CellText(0, 2), u"Alík"_s);
    encoding->setCurrentIndex(0);
    Q_EMIT encoding->activated(0);
    EXPECT_EQ(lines->CellText(0, 2), u"Alík"_s);
}

} // namespace
} // namespace lorvo::test
