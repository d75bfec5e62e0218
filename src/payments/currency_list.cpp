#include "payments/currency_list.h"

#include "app/common_routines.h"
#include "forms/command_collection.h"
#include "forms/messages.h"
#include "forms/report_list.h"
#include "payments/frmEditCurrency.h"
#include "platform/failure_guard.h"
#include "store/meny.h"
#include "store/uhrady.h"

#include <QToolBar>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

std::vector<ReportRow> CurrencyRows() {
    std::vector<ReportRow> rows;
    for (const Meny& currency : Currencies()) {
        const QString id = QString::number(currency.ID);
        ReportRow row{
            u"C"_s + id, id, {{currency.Nazev}, {currency.Zkratka}, {PlainAmount(currency.Kurs)}}};
        row.bold = currency.Hlavni;
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

CurrencyList::CurrencyList(QWidget* parent)
    : QWidget(parent),
      commands_(new CommandCollection(u"CURRENCIESLIST"_s, {u"CURRENCIESLIST"_s}, this)),
      lvwCurrencies(new ReportList(
          "lvwCurrencies", {u"Název"_s, u"Zkratka"_s, u"Kurs (x Kč/ 1 jednotka)"_s}, this)) {
    lvwCurrencies->SetColumnWidths({180, 80, 160});
    auto* column = new QVBoxLayout(this);
    column->addWidget(commands_->MakeBar(u"CURRENCIESLIST"_s, this));
    column->addWidget(lvwCurrencies);

    Connect(commands_, &CommandCollection::CommandClick, this, &CurrencyList::CarryOut);
    Connect(lvwCurrencies, &ReportList::DeletePressed, this, &CurrencyList::DeleteByKey);
    Connect(lvwCurrencies, &ReportList::DoubleClick, this, &CurrencyList::EditSelected);
}

void CurrencyList::Refill() {
    lvwCurrencies->SetHeading(2, CurrencyRateCaption());
    lvwCurrencies->SetRows(CurrencyRows());
}

void CurrencyList::RefillAfterEditor(bool bold) {
    std::vector<ReportRow> rows = CurrencyRows();
    for (ReportRow& row : rows)
        row.bold = bold;
    lvwCurrencies->SetRows(std::move(rows));
}

void CurrencyList::CarryOut(const QString& command) {
    if (command == u"CURRENCIESLIST:ADD")
        Edit(0);
    else if (command == u"CURRENCIESLIST:EDIT" && SelectedID() == 0)
        Inform(*this, u"Nebyla vybrána žádná měna"_s);
    else if (command == u"CURRENCIESLIST:EDIT")
        Edit(SelectedID());
    else if (command == u"CURRENCIESLIST:DELETE")
        DeleteByCommand();
}

int CurrencyList::SelectedID() const {
    const int selected = lvwCurrencies->SelectedRow();
    return selected < 0 ? 0 : lvwCurrencies->Row(selected).tag.toInt();
}

void CurrencyList::Edit(int currencyID) {
    frmEditCurrency editor(
        currencyID, [this](bool main) { RefillAfterEditor(main); }, window());
    OpenModal(editor);
}

void CurrencyList::EditSelected() {
    const int edited = SelectedID();
    if (edited == 0)
        return;
    Edit(edited);
    if (const int row = lvwCurrencies->FindRow(u"C"_s + QString::number(edited)); row >= 0)
        lvwCurrencies->SelectRow(row);
}

QString CurrencyList::DeleteQuestion(int position) const {
    return u"Určitě chcete ze seznamu odstranit měnu "_s + lvwCurrencies->CellText(position, 0) +
           u'?';
}

void CurrencyList::DeleteByCommand() {
    const int selected = lvwCurrencies->SelectedRow();
    if (selected < 0)
        return;
    if (const int payments = CountPaymentsInCurrency(SelectedID())) {
        Inform(*this, u"Měnu nelze odstranit, je použita v %1 platbách."_s.arg(payments));
        return;
    }
    if (Ask(*this, DeleteQuestion(selected), MessageButtons::OkCancel) == MessageAnswer::Ok)
        DeleteRow(selected);
}

// kept: two-roads-of-deleting-a-currency
// The key asks less than the command: it doesn't look for payments in the currency.
void CurrencyList::DeleteByKey() {
    const int selected = lvwCurrencies->SelectedRow();
    if (selected < 0)
        return;
    if (Ask(*this, DeleteQuestion(selected), MessageButtons::YesNoCancel) == MessageAnswer::Yes)
        DeleteRow(selected);
}

void CurrencyList::DeleteRow(int position) {
    const ReportRow& row = lvwCurrencies->Row(position);
    DeleteCurrency(row.tag.toInt());
    lvwCurrencies->RemoveRow(QString(row.key));
}

} // namespace lorvo
