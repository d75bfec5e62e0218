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

} // namespace
} // namespace lorvo::test
