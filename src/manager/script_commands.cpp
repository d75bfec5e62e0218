#include "manager/script_commands.h"

#include "manager/copy_commands.h"
#include "manager/remembered_columns.h"
#include "manager/show_access.h"
#include "manager/taking_report_text.h"
#include "office/exchange/csv_text.h"
#include "office/exchange/entry_book.h"
#include "office/exchange/entry_source.h"
#include "office/exchange/office_lists.h"
#include "office/exchange/people_removal.h"
#include "office/exchange/sheet_files.h"
#include "office/exchange/show_check.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"
#include "store/vystavy.h"

#include <QTextStream>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kNotUnderstood = 2;

/// What is saved goes under a name of its kind, so that a slip never takes the place of the data.
bool IsTextName(const QString& path) {
    return path.endsWith(u".csv"_s, Qt::CaseInsensitive);
}

/// Of the spreadsheets that are read, one kind is written.
bool IsWorkbookName(const QString& path) {
    return path.endsWith(u".xlsx"_s, Qt::CaseInsensitive);
}

using Run = int (*)(const ShowAccess& show, const QStringList& arguments, QTextStream& out);

int SaveList(const ShowAccess& show, const QStringList& arguments, QTextStream& out) {
    const QString& path = arguments[1];
    const auto* const list = std::ranges::find_if(kOfficeLists, [&](const OfficeListName& name) {
        return arguments[0] == QLatin1String(name.command);
    });
    if (list == kOfficeLists.end() || !(IsTextName(path) || IsWorkbookName(path)))
        return kNotUnderstood;
    const bool saved = show.OnShow([&] {
        const ListTable table = ReadOfficeList(list->list);
        ReplaceFile(path, IsWorkbookName(path) ? SheetBytes(table) : CsvBytes(TextRows(table)));
        out << QString::fromUtf16(list->title) << ": " << table.rows.size() << '\n';
    });
    return saved ? kDone : kFailed;
}

int Check(const ShowAccess& show, const QStringList&, QTextStream& out) {
    ShowCheck check;
    if (!show.OnShow([&check] { check = CheckShow(); }))
        return kFailed;
    for (const QString& line : check.faults + check.figures)
        out << line << '\n';
    return check.IsWell() ? kDone : kFailed;
}

/// The lines that nobody has to look at are taken, the others go into the file of the rest.
/// Which column is which. A file without one that is known holds no entries.
ColumnChoice ColumnsOf(const EntrySource& source) {
    ColumnChoice columns = RememberedColumns(source.Headings());
    if (std::ranges::none_of(columns, &std::optional<int>::has_value))
        throw PlatformError("Soubor „" + source.Path().toStdString() +
                            "“ nemá v prvním řádku žádný nadpis, podle kterého by šlo přihlášky "
                            "převzít.");
    return columns;
}

int Take(const ShowAccess& show, const QStringList& arguments, QTextStream& out) {
    if (!IsTextName(arguments[1]))
        return kNotUnderstood;
    const auto isNew = [](const EntryLine& line) {
        return line.state == LineState::New;
    };
    const bool taken = show.OnShowAlone([&] {
        const EntrySource source(arguments[0]);
        if (source.IsFile(arguments[1]))
            throw PlatformError(RestOverItsSource().toStdString());
        const std::vector<Vystavy> shows = Shows();
        const DateValue today = show.Today();
        EntryBook book(shows.empty() ? 0 : shows.front().ID, today);
        const auto lines = JudgedLines(source.Rows(), ColumnsOf(source), book);
        ReplaceFile(arguments[1], CsvBytes(RestOfTable(source.Headings(), lines, isNew)));
        show.CopyNow();
        out << TakingReportText(TakeEntries(lines, isNew, today), source.Path()) << '\n';
    });
    return taken ? kDone : kFailed;
}

int Remove(const ShowAccess& show, const QStringList&, QTextStream& out) {
    const bool removed = show.OnShowAlone([&] {
        const PeopleCounts counts = CountPeople();
        show.CopyNow();
        RemovePeople();
        out << RemovalSentences(counts).join(u'\n') << '\n';
    });
    return removed ? kDone : kFailed;
}

struct Command {
    const char16_t* name;
    qsizetype arguments;
    Run run;
    const char16_t* usage;
};
constexpr Command kCommands[] = {
    {u"seznam", 2, SaveList,
     u"seznam psi|vystavovatele|platby|rodice|plemena|prihlasky SOUBOR.csv|SOUBOR.xlsx"},
    {u"prevzit", 2, Take, u"prevzit PŘIHLÁŠKY.csv ZBYTEK.csv"},
    {u"kontrola", 0, Check, u"kontrola"},
    {u"zaloha", 0, MakeCopyCommand, u"zaloha"},
    {u"zalohy", 0, ListCopiesCommand, u"zalohy"},
    {u"porovnat", 2, CompareCopiesCommand, u"porovnat ZÁLOHA ZÁLOHA"},
    {u"vratit", 1, PutCopyBackCommand, u"vratit ZÁLOHA"},
    {u"vymazat-osoby", 0, Remove, u"vymazat-osoby"},
};

const Command* CommandNamed(const QString& name) {
    for (const Command& command : kCommands)
        if (name == QString::fromUtf16(command.name))
            return &command;
    return nullptr;
}

int ExplainUse(QTextStream& out) {
    out << u"LorvoSpravce PŘÍKAZ; bez příkazu otevře okno. Příkazy:\n"_s;
    for (const Command& command : kCommands)
        out << "  " << QString::fromUtf16(command.usage) << '\n';
    return kNotUnderstood;
}

} // namespace

int RunScriptCommand(Platform& platform, const QStringList& arguments, QTextStream& out) {
    const Command* const command = CommandNamed(arguments.value(0));
    if (!command || arguments.size() != command->arguments + 1)
        return ExplainUse(out);
    const int code = command->run(ShowAccess(platform), arguments.mid(1), out);
    return code == kNotUnderstood ? ExplainUse(out) : code;
}

} // namespace lorvo
