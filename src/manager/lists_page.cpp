#include "manager/lists_page.h"

#include "forms/controls.h"
#include "forms/report_list.h"
#include "office/exchange/csv_text.h"
#include "office/exchange/sheet_files.h"
#include "platform/failure_guard.h"
#include "platform/whole_file.h"

#include <QShowEvent>
#include <QVBoxLayout>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// "Celkem: Psů 400, Bilance (Kč) -150".
QString TotalsText(const ListTable& table) {
    QStringList parts;
    for (std::size_t i = 1; i < table.totals.size(); ++i)
        if (const QString text = CellText(table.totals[i]); !text.isEmpty())
            parts << table.headings[static_cast<qsizetype>(i)] + u' ' + text;
    return parts.isEmpty() ? u"Řádků: "_s + QString::number(table.rows.size())
                           : u"Celkem: "_s + parts.join(u", "_s);
}

bool IsNumber(const TableCell& cell) {
    return std::holds_alternative<int>(cell) || std::holds_alternative<Currency>(cell);
}

/// The columns in which a number stands, from 0.
std::vector<int> NumberColumns(const ListTable& table) {
    std::vector<int> found;
    for (std::size_t column = 0; column < static_cast<std::size_t>(table.headings.size()); ++column)
        if (std::ranges::any_of(
                table.rows, IsNumber,
                [column](const TableRow& row) -> const TableCell& { return row[column]; }))
            found.push_back(static_cast<int>(column));
    return found;
}

} // namespace

ListsPage::ListsPage(const ShowAccess& show, QWidget* parent)
    : QWidget(parent), lvwSeznamy(new ReportList("lvwSeznamy", {u"Seznam"_s}, this)),
      cmdCsv(Named(new QPushButton(u"Uložit jako &CSV…"_s, this), u"cmdCsv"_s)),
      cmdSheet(Named(new QPushButton(u"Uložit jako &tabulku…"_s, this), u"cmdSheet"_s)),
      show_(show), totals_(Named(new QLabel(this), u"lblCelkem"_s)) {
    std::vector<ReportRow> lists;
    for (const OfficeListName& list : kOfficeLists)
        lists.push_back(
            {QString::fromLatin1(list.command), {}, {{QString::fromUtf16(list.title)}}});
    lvwSeznamy->SetRows(std::move(lists));
    lvwSeznamy->setAccessibleName(u"Seznamy"_s);
    lvwSeznamy->setMaximumHeight(lvwSeznamy->fontMetrics().lineSpacing() * 10);
    cmdSheet->setVisible(CanWriteSheets());
    totals_->setTextFormat(Qt::PlainText);
    LayOut();
    Connect(lvwSeznamy, &ReportList::SelectionChanged, this, &ListsPage::ShowList);
    Connect(cmdCsv, &QPushButton::clicked, this, &ListsPage::SaveCsv);
    Connect(cmdSheet, &QPushButton::clicked, this, &ListsPage::SaveSheet);
    cmdCsv->setEnabled(false);
    cmdSheet->setEnabled(false);
}

void ListsPage::LayOut() {
    auto* column = new QVBoxLayout(this);
    column->addWidget(lvwSeznamy);
    column->addStretch(1);
    column->addWidget(totals_);
    column->addLayout(ButtonRow({cmdCsv, cmdSheet}));
}

void ListsPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Guarded([this, event] {
        if (!event->spontaneous() && lvwSeznamy->SelectedRow() >= 0)
            Later(this, [this] { ShowList(); });
    });
}

void ListsPage::ShowList() {
    const int chosen = lvwSeznamy->SelectedRow();
    const bool read = chosen >= 0 && show_.OnShow([this, chosen] {
        table_ = ReadOfficeList(kOfficeLists[static_cast<std::size_t>(chosen)].list);
    });
    cmdCsv->setEnabled(read);
    cmdSheet->setEnabled(read);
    if (read)
        ShowRows();
}

void ListsPage::ShowRows() {
    auto* list = new ReportList("lvwRadky", table_.headings, this);
    list->setAccessibleName(table_.title);
    std::vector<ReportRow> rows;
    for (const TableRow& row : table_.rows) {
        ReportRow& shown = rows.emplace_back();
        for (const TableCell& cell : row)
            shown.cells.push_back({CellText(cell)});
    }
    list->SetRows(std::move(rows));
    list->AlignRight(NumberColumns(table_));
    list->SetSorting(true);
    list->FitToContents();
    auto* column = static_cast<QVBoxLayout*>(layout());
    delete rows_;
    rows_ = list;
    column->insertWidget(1, list, 10);
    setTabOrder(lvwSeznamy, list);
    totals_->setText(TotalsText(table_));
}

void ListsPage::Save(const QString& filter, const QString& ending,
                     const std::function<QByteArray(const ListTable&)>& bytes) {
    const QString suggested = show_.Folder() + u'/' + table_.title + ending;
    const QString path = show_.Files().Save(u"Uložit seznam"_s, suggested, filter);
    if (!path.isEmpty())
        show_.SayingFailure([&] { ReplaceFile(path, bytes(table_)); });
}

void ListsPage::SaveCsv() {
    Save(u"CSV (*.csv)"_s, u".csv"_s,
         [](const ListTable& table) { return CsvBytes(TextRows(table)); });
}

void ListsPage::SaveSheet() {
    Save(u"Tabulka (*.xlsx)"_s, u".xlsx"_s, SheetBytes);
}

} // namespace lorvo
