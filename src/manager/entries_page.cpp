#include "manager/entries_page.h"

#include "forms/report_list.h"
#include "manager/entry_line_rows.h"
#include "manager/frmSloupce.h"
#include "manager/remembered_columns.h"
#include "manager/taking_report_text.h"
#include "office/exchange/csv_text.h"
#include "office/exchange/entry_book.h"
#include "platform/failure_guard.h"
#include "platform/whole_file.h"
#include "store/vystavy.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <map>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QString Filter() {
    return u"Tabulky (*.csv *.txt *.tsv *.xlsx *.ods)"_s;
}

QString Beside(const QString& path, const QString& ending) {
    const QFileInfo file(path);
    return file.path() + u'/' + file.completeBaseName() + ending;
}

} // namespace

void EntriesPage::ChooseFile() {
    const QString path = show_.Files().Open(u"Soubor s přihláškami"_s, Filter());
    if (path.isEmpty() || !show_.SayingFailure([&] { source_ = EntrySource(path); }))
        return;
    lblFile->setText(path);
    cmbEncoding->setEnabled(!source_.IsSheet());
    cmbSeparator->setEnabled(!source_.IsSheet());
    cmdColumns->setEnabled(true);
    FillShows();
    ReadAnew();
}

void EntriesPage::ReadAnew() {
    cmbEncoding->setCurrentIndex(cmbEncoding->findData(static_cast<int>(source_.Encoding())));
    cmbSeparator->setCurrentIndex(cmbSeparator->findData(source_.Separator()));
    columns_ = RememberedColumns(source_.Headings());
    Judge();
}

void EntriesPage::ChooseColumns() {
    frmSloupce window(source_.Rows(), columns_, this);
    OpenModal(window);
    if (!window.Result())
        return;
    columns_ = *window.Result();
    RememberColumns(source_.Headings(), columns_);
    Judge();
}

void EntriesPage::FillShows() {
    const QVariant chosen = cmbShow->currentData();
    cmbShow->clear();
    std::vector<Vystavy> shows;
    if (show_.OnShow([&shows] { shows = Shows(); }))
        for (const Vystavy& show : shows)
            cmbShow->addItem(show.Nazev, show.ID);
    cmbShow->addItem(u"(žádnou)"_s, 0);
    cmbShow->setCurrentIndex(std::max(0, cmbShow->findData(chosen)));
}

bool EntriesPage::IsShowThere() const {
    const int chosen = cmbShow->currentData().toInt();
    return chosen == 0 || ShowByID(chosen);
}

std::vector<EntryLine> EntriesPage::JudgedNow() const {
    EntryBook book(cmbShow->currentData().toInt(), show_.Today());
    return JudgedLines(source_.Rows(), columns_, book);
}

void EntriesPage::Judge() {
    if (!show_.OnShow([this] { lines_ = JudgedNow(); }))
        lines_.clear();
    ShowLines();
}

void EntriesPage::JudgeForShow() {
    std::map<int, std::pair<LineState, bool>> before;
    for (const EntryLine& line : lines_)
        before[line.number] = {line.state, IsTicked(line)};
    Judge();
    for (const EntryLine& line : lines_) {
        const auto [state, ticked] = before[line.number];
        const int position = lvwLines->FindRow(u'C' + QString::number(line.number));
        if (state == line.state && line.canBeTaken && position >= 0)
            lvwLines->SetChecked(position, ticked);
    }
    ShowCounts();
}

void EntriesPage::ShowLines() {
    std::vector<ReportRow> rows;
    for (const EntryLine& line : lines_)
        rows.push_back(RowOf(line, columns_));
    lvwLines->SetRows(std::move(rows));
    ShowCounts();
}

void EntriesPage::ShowCounts() {
    const EntryCounts counts =
        CountEntries(lines_, [this](const EntryLine& line) { return IsTicked(line); });
    lblCounts->setText(CountsText(counts));
    cmdTake->setEnabled(counts.ticked > 0);
    cmdRest->setEnabled(counts.ticked < counts.all);
}

void EntriesPage::KeepTick(int position) {
    const int number = lvwLines->Row(position).key.mid(1).toInt();
    const EntryLine& line = lines_[static_cast<std::size_t>(number - 1)];
    if (!line.canBeTaken)
        lvwLines->SetChecked(position, false);
    ShowCounts();
}

bool EntriesPage::IsTicked(const EntryLine& line) const {
    const int position = lvwLines->FindRow(u'C' + QString::number(line.number));
    return position >= 0 && lvwLines->Row(position).checked;
}

void EntriesPage::Take() {
    TakingReport report;
    bool changed = false;
    const bool ran = show_.OnShowAlone([&] {
        // Lorvo may have run since the lines were shown.
        std::vector<EntryLine> now;
        changed = !IsShowThere() || !AreJudgedAlike(now = JudgedNow(), lines_);
        if (changed)
            return;
        show_.CopyNow();
        const auto ticked = [this](const EntryLine& line) {
            return IsTicked(line);
        };
        report = TakeEntries(now, ticked, show_.Today());
    });
    if (changed) {
        show_.Warn(u"Databáze se od načtení souboru změnila. Podívejte se na řádky znovu."_s);
        FillShows();
        Judge();
    } else if (ran) {
        SayTaken(report);
    }
}

void EntriesPage::SayTaken(const TakingReport& report) {
    const QString text = TakingReportText(report, source_.Path());
    const bool save = show_.Ask(text + u"\n\nUložit tuto zprávu do souboru?"_s,
                                MessageButtons::YesNo) == MessageAnswer::Yes;
    const QString path =
        save ? show_.Files().Save(u"Uložit zprávu"_s, Beside(source_.Path(), u" - převzetí.txt"_s),
                                  u"Text (*.txt)"_s)
             : QString();
    if (!path.isEmpty())
        show_.SayingFailure([&] { ReplaceFile(path, text.toUtf8()); });
    Judge();
}

void EntriesPage::SaveRest() {
    const QString path = show_.Files().Save(
        u"Uložit zbytek"_s, Beside(source_.Path(), u" - zbytek.csv"_s), u"CSV (*.csv)"_s);
    if (path.isEmpty())
        return;
    if (source_.IsFile(path)) {
        show_.Warn(RestOverItsSource());
        return;
    }
    const auto ticked = [this](const EntryLine& line) {
        return IsTicked(line);
    };
    show_.SayingFailure(
        [&] { ReplaceFile(path, CsvBytes(RestOfTable(source_.Headings(), lines_, ticked))); });
}

void EntriesPage::SaveTemplate() {
    const QString path = show_.Files().Save(
        u"Uložit vzor"_s, show_.Folder() + u"/Přihlášky - vzor.csv"_s, u"CSV (*.csv)"_s);
    if (!path.isEmpty())
        show_.SayingFailure([&] { ReplaceFile(path, CsvBytes({EntryHeadings()})); });
}

} // namespace lorvo
