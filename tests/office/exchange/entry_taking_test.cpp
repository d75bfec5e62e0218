// Entries taken into the show: all or none, by the dog editor's rules.

#include "office/exchange/entry_taking.h"

#include "office/exchange/csv_text.h"
#include "office/exchange/entries_fixture.h"
#include "office/exchange/entry_source.h"
#include "office/exchange/office_lists.h"
#include "office/exchange/people_removal.h"
#include "office/exchange/sheet_files.h"
#include "office/exchange/show_check.h"
#include "office/exchange/text_encoding.h"
#include "platform/values/errors.h"
#include "show/show_generator.h"
#include "store/psi_lists.h"
#include "store/psi_ve_vystavach.h"
#include "store/uhrady.h"
#include "store/vazby_souteze.h"
#include "store/whole_run.h"

#include <QFile>
#include <random>

namespace lorvo::test {
namespace {

using namespace Qt::StringLiterals;

bool All(const EntryLine&) {
    return true;
}

class EntryTakingTest : public EntriesTest {
  protected:
    /// A row for each "name owner": all else stands as the fixture has it.
    std::vector<EntryLine> Lines(const std::vector<std::pair<const char*, const char*>>& dogs) {
        std::vector<EntryLine> lines;
        for (const auto& [dog, owner] : dogs)
            lines.push_back(Judge({{u"Jméno psa"_s, Text(dog)},
                                   {u"Majitel"_s, Text(owner)},
                                   {u"Soutěže"_s, u"Dítě a pes"_s},
                                   {u"Uhrazeno"_s, u"100"_s}}));
        return lines;
    }
};

TEST_F(EntryTakingTest, WritesDogsOwnersEntriesAndPayments) {
    const TakingReport report =
        TakeEntries(Lines({{"A", "Eva"}, {"B", "Eva"}, {"C", "Jan"}}), All, today);
    EXPECT_EQ(report.dogs, 3);
    EXPECT_EQ(report.newOwners, 2);
    EXPECT_EQ(report.entries, 6);
    EXPECT_EQ(report.payments, 3);
    EXPECT_EQ(report.paid, Currency::FromUnits(300));
    EXPECT_EQ(report.fees, Currency::FromUnits(600 + 500 + 600 + 3 * 50));
    EXPECT_EQ(Column("SELECT Jmeno FROM Psi WHERE PrvniPes = true"), (Texts{"A", "C"}));
    EXPECT_EQ(Column("SELECT Jmeno FROM Majitele"), (Texts{"Eva", "Jan"}));
    EXPECT_EQ(CountDogsInShow(show), 3);
    EXPECT_TRUE(CheckShow().IsWell());
}

TEST_F(EntryTakingTest, LeavesWhatCantBeTakenInTheRestWithTheReason) {
    const std::vector<EntryLine> lines = {Judge({}), Judge({{u"Třída"_s, u"modrá"_s}})};
    EXPECT_EQ(TakeEntries(lines, All, today).dogs, 1);
    const auto rest = RestOfTable({u"Jméno psa"_s}, lines, All);
    ASSERT_EQ(rest.size(), 2u);
    EXPECT_EQ(rest[0], (QStringList{u"Jméno psa"_s, u"Důvod"_s}));
    EXPECT_EQ(rest[1].first(), u"Alík"_s);
    EXPECT_EQ(rest[1].last(), u"Třída „modrá“ u tohoto plemene není."_s);
}

TEST_F(EntryTakingTest, AnOwnerWhoIsThereAlreadyGetsTheDogAndNobodyIsAdded) {
    const int eva =
        Add("Majitele", {{"Jmeno", Text("Eva Nová")}, {"Mesto", Text("Brno")}, {"PSC", 60200}});
    EXPECT_EQ(TakeEntries({Judge({})}, All, today).newOwners, 0);
    EXPECT_EQ(Column("SELECT MajitelID FROM Psi"), Texts{std::to_string(eva)});
    EXPECT_EQ(Column("SELECT COUNT(*) FROM Majitele"), Texts{"1"});
}

TEST_F(EntryTakingTest, AShortLineOfTheRestHasItsReasonBelowTheHeading) {
    EntryLine line = Judge({{u"Třída"_s, u"modrá"_s}});
    line.cells = {u"Alík"_s};
    const auto rest = RestOfTable({u"Jméno psa"_s, u"Plemeno"_s}, {line}, All);
    ASSERT_EQ(rest.size(), 2u);
    EXPECT_EQ(rest[1].size(), rest[0].size());
    EXPECT_EQ(rest[1][1], QString());
    EXPECT_EQ(rest[1].last(), line.reasons.join(u' '));
}

TEST_F(EntryTakingTest, AFailureOnTheWayLeavesEverythingAsItWas) {
    std::vector<EntryLine> lines = Lines({{"A", "Eva"}, {"B", "Jan"}});
    lines.back().entry.dog.Trida = 3; // no fee stands there, so that the report can't be made
    EXPECT_THROW(TakeEntries(lines, All, today), StoreError);
    EXPECT_EQ(CountDogs(), 0);
    EXPECT_EQ(Column("SELECT Jmeno FROM Majitele"), Texts{});
    EXPECT_EQ(CountPayments(), 0);
    EXPECT_EQ(TakeEntries(Lines({{"C", "Eva"}}), All, today).dogs, 1) << "the store works on";
}

TEST_F(EntryTakingTest, AWholeRunWithinAnotherRunIsRefused) {
    EditRun run(TheDataModule().Conn1);
    EXPECT_THROW(WholeRun(TheDataModule().Conn1), StoreError);
}

TEST_F(EntryTakingTest, PeopleGoAndAccountsStay) {
    std::vector<EntryLine> lines = Lines({{"A", "Eva"}, {"B", "Jan"}});
    for (EntryLine& line : lines)
        line.entry.dog.Chovatel = line.entry.dog.Poznamka = u"Tajemník"_s;
    TakeEntries(lines, All, today);
    const Currency before = std::get<Currency>(ExhibitorTable().totals[10]);
    EXPECT_EQ(CountPeople().breeders, 2);
    RemovePeople();
    EXPECT_EQ(Column("SELECT Jmeno FROM Majitele"), (Texts{"Vystavovatel 1", "Vystavovatel 2"}));
    EXPECT_EQ(Column("SELECT Mesto FROM Majitele"), (Texts{"", ""}));
    EXPECT_EQ(CountPeople().breeders + CountPeople().notes + CountPeople().accounts, 0);
    EXPECT_EQ(std::get<Currency>(ExhibitorTable().totals[10]), before);
    EXPECT_EQ(CountPayments(), 2);
    QFile file(TheDataModule().Conn1.Path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_FALSE(bytes.contains("Brno") || bytes.contains(u"Tajemník"_s.toUtf8()))
        << "remnants stay in the file";
}

TEST_F(EntryTakingTest, TheCheckNamesWhatPointsNowhere) {
    TakeEntries(Lines({{"A", "Eva"}}), All, today);
    DeleteOwner(1);
    DeleteShow(show);
    const QString faults = CheckShow().faults.join(u' ');
    EXPECT_TRUE(faults.contains(u"Psi, jejichž majitel v databázi není: 1."_s))
        << faults.toStdString();
    EXPECT_TRUE(
        faults.contains(u"Přihlášky na výstavy, které vedou k něčemu, co v databázi není: 1."_s));
    EXPECT_TRUE(faults.contains(
        u"V seznamu vystavovatelů je uhrazeno  0,00 Kč, plateb je ale za  100,00 Kč."_s))
        << faults.toStdString();
}

TEST_F(EntryTakingTest, TheCheckGoesOnWhereAccountsCanNotBeReckoned) {
    TakeEntries(Lines({{"A", "Eva"}}), All, today);
    DeleteShow(show);
    const QString faults = CheckShow().faults.join(u' ');
    EXPECT_TRUE(faults.contains(u"které vedou k něčemu, co v databázi není: 1."_s))
        << faults.toStdString();
    EXPECT_TRUE(faults.contains(u"Poplatky vystavovatelů nejdou spočítat: "_s))
        << faults.toStdString();
}

/// A generated show without awards, numbers and entries in more than one show: what a table of
/// entries can tell.
class RoundTripTest : public ::testing::Test {
  protected:
    RoundTripTest() {
        Module() = ModuleValues();
        show::GenerateShow(*show::SizeNamed("club"), 5, show::Numbers::None);
        Module().MainCurrency = u"Kč"_s;
    }

    static void ClearEntries() {
        DeleteAllDogs();
        DeleteAllOwners();
        DeleteAllPayments();
        DeleteAllShowEntries();
        DeleteAllCompetitionEntries();
    }

    static std::vector<EntryLine> Judged(const std::vector<QStringList>& rows) {
        EntryBook book(0, DateValue::FromCalendar(2027, 1, 1));
        return JudgedLines(rows, ColumnsByHeading(rows.front()), book);
    }

    /// Rows of a list, sorted, since rows come in the order of their IDs where names are equal.
    static std::vector<QString> Sorted(OfficeList list) {
        std::vector<QString> rows;
        for (const QStringList& row : TextRows(ReadOfficeList(list)))
            rows.push_back(row.join(u'|'));
        std::ranges::sort(rows);
        return rows;
    }

    RecordingPlatform platform_;
    /// Rows that only one of two sorted lists has.
    static Texts Differences(const std::vector<QString>& some, const std::vector<QString>& others) {
        std::vector<QString> rows;
        std::ranges::set_symmetric_difference(some, others, std::back_inserter(rows));
        Texts texts;
        for (const QString& row : rows)
            texts.push_back(row.toStdString());
        return texts;
    }

    TempDatabase database_{TempDatabase::Content::Delivered};
};

TEST_F(RoundTripTest, AShowTakenOutAndInAgainIsTheSame) {
    const auto entries = Sorted(OfficeList::Entries);
    const auto exhibitors = Sorted(OfficeList::Exhibitors);
    const auto breeds = Sorted(OfficeList::Breeds);
    const QByteArray bytes = CsvBytes(TextRows(EntryTable()));
    ClearEntries();
    const std::vector<EntryLine> lines =
        Judged(CsvRows(Decoded(bytes, GuessEncoding(bytes)), u';'));
    ASSERT_EQ(lines.size(), 400u);
    int doubtful = 0;
    for (const EntryLine& line : lines)
        doubtful += line.canBeTaken ? 0 : 1;
    const TakingReport report = TakeEntries(lines, All, DateValue::FromCalendar(2027, 1, 1));
    EXPECT_EQ(report.dogs + doubtful, 400);
    EXPECT_EQ(doubtful, 0) << lines.front().reasons.join(u' ').toStdString();
    EXPECT_EQ(Differences(Sorted(OfficeList::Entries), entries), Texts());
    EXPECT_EQ(Differences(Sorted(OfficeList::Exhibitors), exhibitors), Texts());
    EXPECT_EQ(Differences(Sorted(OfficeList::Breeds), breeds), Texts());
}

TEST_F(RoundTripTest, ASheetHoldsWhatTheTextHolds) {
    if (!CanWriteSheets())
        FAIL() << "the library for spreadsheets is missing";
    const ListTable table = EntryTable();
    const QString path = database_.Folder() + u"/list.xlsx"_s;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(SheetBytes(table));
    file.close();
    const auto rows = SheetRows(path);
    ASSERT_EQ(rows.size(), table.rows.size() + 1);
    EXPECT_EQ(rows.front(), table.headings);
    ClearEntries();
    int taken = TakeEntries(Judged(rows), All, DateValue::FromCalendar(2027, 1, 1)).dogs;
    EXPECT_EQ(taken, 400);
    EXPECT_EQ(SheetBytes(table), SheetBytes(table)) << "equal tables give equal bytes";
}

TEST_F(RoundTripTest, WithoutATemporaryFolderASheetIsNotWritten) {
    const QString file = database_.Folder() + u"/file"_s;
    ASSERT_TRUE(QFile(file).open(QIODevice::WriteOnly));
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(file));
    try {
        static_cast<void>(SheetBytes({}));
        ADD_FAILURE() << "no failure";
    } catch (const PlatformError& failure) {
        EXPECT_NE(std::string(failure.what()).find(file.toStdString()), std::string::npos)
            << failure.what();
    }
    before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
}

TEST_F(RoundTripTest, ASheetThatIsNoneIsRefusedByName) {
    for (const QString& name : {u"list.xlsx"_s, u"list.ods"_s}) {
        QFile file(database_.Folder() + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("Jméno;Pohlaví\n");
        file.close();
        try {
            const EntrySource source(file.fileName());
            ADD_FAILURE() << "taken with rows: " << source.Rows().size();
        } catch (const PlatformError& failure) {
            EXPECT_NE(std::string(failure.what()).find(name.toStdString()), std::string::npos);
        }
        file.remove();
        EXPECT_THROW(EntrySource(file.fileName()), PlatformError);
    }
}

TEST_F(RoundTripTest, TotalsAreThoseOfTheRows) {
    for (const OfficeList list : {OfficeList::Dogs, OfficeList::Exhibitors, OfficeList::Payments}) {
        const ListTable table = ReadOfficeList(list);
        for (std::size_t column = 0; column < table.totals.size(); ++column) {
            if (!std::holds_alternative<Currency>(table.totals[column]))
                continue;
            Currency sum;
            for (const TableRow& row : table.rows)
                sum += std::get<Currency>(row[column]);
            EXPECT_EQ(std::get<Currency>(table.totals[column]), sum) << table.title.toStdString();
        }
    }
}

TEST_F(RoundTripTest, MutatedBytesNeverDoMoreThanRefuse) {
    const QByteArray bytes = CsvBytes(TextRows(EntryTable())).left(20000);
    const int dogs = CountDogs();
    std::mt19937 dice(3);
    EntryBook book(0, DateValue::FromCalendar(2027, 1, 1));
    for (int round = 0; round < 60; ++round) {
        QByteArray mutated = bytes;
        for (auto changes = dice() % 200; changes > 0; --changes)
            mutated[static_cast<qsizetype>(dice() % static_cast<unsigned>(mutated.size()))] =
                static_cast<char>(dice() % 256);
        for (const TextEncoding encoding : kTextEncodings) {
            const QString text = Decoded(mutated, encoding);
            const auto rows = CsvRows(text, GuessSeparator(text));
            if (!rows.empty())
                JudgedLines(rows, ColumnsByHeading(rows.front()), book);
        }
    }
    EXPECT_EQ(CountDogs(), dogs);
}

} // namespace
} // namespace lorvo::test
