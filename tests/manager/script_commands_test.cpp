// The commands of the data's own program, as a script gives them.

#include "manager/script_commands.h"

#include "manager/manager_fixture.h"

#include <QTextStream>

namespace lorvo::test {
namespace {

using namespace Qt::StringLiterals;

/// Exit code and what was written.
std::pair<int, QString> RunCommand(const QStringList& arguments) {
    QString text;
    QTextStream out(&text);
    const int code = RunScriptCommand(ThePlatform(), arguments, out);
    return {code, text};
}

TEST_F(ManagerTest, EntriesAreTakenByACommandAndTheRestStays) {
    const auto [code, text] = RunCommand({u"prevzit"_s, Write(kEntries), Path(u"zbytek.csv"_s)});
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(text.contains(u"Psů: 2\n"_s) && text.contains(u"Poplatky: 1 100,00 Kč"_s))
        << text.toStdString();
    const QString rest = QString::fromUtf8(Read(Path(u"zbytek.csv"_s)));
    EXPECT_TRUE(rest.contains(u"Rek"_s) && rest.contains(u"v seznamu plemen není"_s) &&
                !rest.contains(u"Alík"_s))
        << rest.toStdString();
    EXPECT_EQ(ListCopies(platform.ProgramFolder(), true).size(), 1u) << "the state before";
    EXPECT_EQ(RunCommand({u"prevzit"_s, Path(u"prihlasky.csv"_s), Path(u"zbytek.csv"_s)})
                  .second.section(u'\n', 1, 1),
              u"Psů: 0"_s);
}

TEST_F(ManagerTest, ListsChecksAndCopiesAreCommands) {
    RunCommand({u"prevzit"_s, Write(kEntries), Path(u"zbytek.csv"_s)});
    EXPECT_EQ(RunCommand({u"seznam"_s, u"psi"_s, Path(u"psi.csv"_s)}),
              (std::pair{0, u"Seznam psů: 2\n"_s}));
    EXPECT_TRUE(Read(Path(u"psi.csv"_s)).startsWith("\xEF\xBB\xBFJméno;"));
    EXPECT_EQ(RunCommand({u"kontrola"_s}).first, 0);
    EXPECT_EQ(RunCommand({u"zaloha"_s}).first, 0);
    EXPECT_EQ(RunCommand({u"zalohy"_s}).second.count(u'\n'), 2);
    EXPECT_EQ(RunCommand({u"seznam"_s, u"kocky"_s, Path(u"x.csv"_s)}).first, 2);
    EXPECT_TRUE(RunCommand({u"pomoc"_s}).second.contains(u"vymazat-osoby"_s));
}

TEST_F(ManagerTest, EveryListIsACommand) {
    RunCommand({u"prevzit"_s, Write(kEntries), Path(u"zbytek.csv"_s)});
    TheDataModule().Conn1.Open(DatabasePath(platform.ProgramFolder()));
    TheDataModule().rsPsi.Open("SELECT * FROM Psi");
    TheDataModule().rsPsi.Set("Otec", u"Argo"_s);
    TheDataModule().rsPsi.Set("Matka", u"Hera"_s);
    TheDataModule().rsPsi.Update();
    TheDataModule().Conn1.Close();
    const std::pair<const char16_t*, int> lists[] = {{u"psi", 2},     {u"vystavovatele", 1},
                                                     {u"platby", 0},  {u"rodice", 2},
                                                     {u"plemena", 1}, {u"prihlasky", 2}};
    for (const auto& [name, rows] : lists) {
        const auto [code, text] =
            RunCommand({u"seznam"_s, QString::fromUtf16(name), Path(u"seznam.csv"_s)});
        EXPECT_EQ(code, 0);
        EXPECT_TRUE(text.endsWith(u": %1\n"_s.arg(rows))) << text.toStdString();
    }
    EXPECT_EQ(RunCommand({u"seznam"_s, u"psi"_s, Path(u"psi.xlsx"_s)}).first, 0);
    EXPECT_TRUE(Read(Path(u"psi.xlsx"_s)).startsWith("PK"));
    EXPECT_EQ(RunCommand({u"seznam"_s, u"psi"_s, Path(u"psi.ods"_s)}).first, 2);
}

TEST_F(ManagerTest, CopiesAreComparedAndPutBackByCommands) {
    RunCommand({u"zaloha"_s});
    const QString copy = RunCommand({u"zalohy"_s}).second.section(u';', 0, 0);
    RunCommand({u"prevzit"_s, Write(kEntries), Path(u"zbytek.csv"_s)});
    EXPECT_EQ(Figures().dogs, 2);
    const auto [code, text] = RunCommand({u"porovnat"_s, copy, u"data.mdb"_s});
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(text.contains(u"Psi: přibylo 2, ubylo 0, změnilo se 0."_s)) << text.toStdString();
    EXPECT_EQ(RunCommand({u"vratit"_s, copy}), (std::pair{0, u"Vráceno: "_s + copy + u'\n'}));
    EXPECT_EQ(Figures().dogs, 0);
}

TEST_F(ManagerTest, AFileWithoutAKnownHeadingIsRefused) {
    for (const char* junk : {"", "x;y\n1;2\n", "\xff\xfe\x01"}) {
        const QString path = Write(junk);
        platform.ExpectMessage(u"Soubor „%1“ nemá v prvním řádku žádný nadpis, podle kterého by "
                               "šlo přihlášky převzít."_s.arg(path),
                               MessageAnswer::Ok, MessageIcon::Stop);
        EXPECT_EQ(RunCommand({u"prevzit"_s, path, Path(u"zbytek.csv"_s)}).first, 1);
        EXPECT_FALSE(QFile::exists(Path(u"zbytek.csv"_s)));
    }
}

TEST_F(ManagerTest, ACopyIsFoundByThePathThatMakingItTold) {
    const QString copy = RunCommand({u"zaloha"_s}).second.trimmed();
    EXPECT_TRUE(QDir::isAbsolutePath(copy)) << copy.toStdString();
    EXPECT_EQ(RunCommand({u"porovnat"_s, copy, u"data.mdb"_s}).first, 0);
    EXPECT_EQ(RunCommand({u"vratit"_s, copy}).first, 0);
}

TEST_F(ManagerTest, ACopyThatIsNotThereIsNamedSo) {
    const QString missing = u"Databáze %1: soubor neexistuje."_s.arg(Shown(u"Zálohy/žádná.mdb"_s));
    platform.ExpectMessage(missing, MessageAnswer::Ok, MessageIcon::Stop);
    EXPECT_EQ(RunCommand({u"porovnat"_s, u"žádná.mdb"_s, u"data.mdb"_s}).first, 1);
    platform.ExpectMessage(missing, MessageAnswer::Ok, MessageIcon::Stop);
    EXPECT_EQ(RunCommand({u"vratit"_s, u"žádná.mdb"_s}).first, 1);
}

TEST_F(ManagerTest, TheRestNeverTakesThePlaceOfTheEntries) {
    const QString entries = Write(kEntries);
    platform.ExpectMessage(u"Zbytek nelze uložit do souboru, ze kterého se přihlášky berou. "
                           "Zvolte jiný název."_s,
                           MessageAnswer::Ok, MessageIcon::Stop);
    const QString otherRoad = platform.ProgramFolder() + u"/./prihlasky.csv"_s;
    EXPECT_EQ(RunCommand({u"prevzit"_s, entries, otherRoad}).first, 1);
    EXPECT_EQ(Read(entries), kEntries);
    EXPECT_EQ(Figures().dogs, 0);
}

TEST_F(ManagerTest, NothingIsSavedOverTheDatabase) {
    EXPECT_EQ(RunCommand({u"seznam"_s, u"psi"_s, Path(u"data.mdb"_s)}).first, 2);
    EXPECT_EQ(RunCommand({u"prevzit"_s, Write(kEntries), Path(u"data.mdb"_s)}).first, 2);
    EXPECT_EQ(Figures().dogs, 0);
}

TEST_F(ManagerTest, PeopleAreRemovedByACommand) {
    RunCommand({u"prevzit"_s, Write(kEntries), Path(u"zbytek.csv"_s)});
    const auto [code, text] = RunCommand({u"vymazat-osoby"_s});
    EXPECT_EQ(code, 0);
    EXPECT_FALSE(text.isEmpty());
    TheDataModule().Conn1.Open(DatabasePath(platform.ProgramFolder()));
    TheDataModule().rsMajitele.Open("SELECT * FROM Majitele WHERE Ulice <> ''");
    EXPECT_EQ(TheDataModule().rsMajitele.RecordCount(), 0);
    TheDataModule().Conn1.Close();
}

TEST_F(ManagerTest, ACommandThatFailsSaysSoByItsCode) {
    QFile::remove(DatabasePath(platform.ProgramFolder()));
    platform.anyMessages = true;
    for (const QStringList& arguments : {QStringList{u"zaloha"_s},
                                         {u"kontrola"_s},
                                         {u"seznam"_s, u"psi"_s, Path(u"x.csv"_s)},
                                         {u"prevzit"_s, Write(kEntries), Path(u"zbytek.csv"_s)},
                                         {u"vymazat-osoby"_s}})
        EXPECT_EQ(RunCommand(arguments).first, 1) << arguments.front().toStdString();
    EXPECT_FALSE(platform.messages.empty());
}

} // namespace
} // namespace lorvo::test
