#include "payments/frmPrehledPlateb.h"

#include "app/amount_texts.h"
#include "app/common_routines.h"
#include "forms/controls.h"
#include "forms/make_cells.h"
#include "forms/report_list.h"
#include "office/payments/payment_lookups.h"
#include "office/texts/dog_texts.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "store/data_module.h"
#include "store/uhrady.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

// Numbers of the menu's entries.
constexpr int kMarkPrinted = 100;
constexpr int kMarkNotPrinted = 101;

constexpr int kAmountColumn = 3;
constexpr int kPrintedColumn = 4;
constexpr int kPaidColumn = 7;

// Positions in the list's icons.
constexpr int kNotPrintedIcon = 2;
constexpr int kPrintedIcon = 3;

ReportCell PrintedCell(bool printed) {
    return {YesNo(printed), {}, printed ? kPrintedIcon : kNotPrintedIcon};
}

/// What many rows share.
struct SharedTexts {
    CurrencyAbbreviations currencies;
    AmountTexts inMainCurrency{AmountText};
    AmountTexts paid{PlainAmount};
};

ReportRow RowOf(const PaymentRow& payment, SharedTexts& texts) {
    const QString id = QString::number(payment.UID);
    return {u"P"_s + id, id,
            MakeCells(payment.MajX, payment.Jmeno, DateOrEmpty(payment.Datum),
                      texts.inMainCurrency.Of(payment.Kc), PrintedCell(payment.Printed),
                      PaymentModeText(payment.Uhrada), payment.Ucet, texts.paid.Of(payment.Castka),
                      texts.currencies.Of(payment.Mena))};
}

} // namespace

frmPrehledPlateb::frmPrehledPlateb(QWidget* parent)
    : Form("frmPrehledPlateb", u"Přehled plateb"_s, Border::Sizable, parent),
      lvwUhrady(
          new ReportList("lvwUhrady",
                         {u"Jméno"_s, u"Jméno psa"_s, u"Datum"_s, u"Částka v Kč"_s, u"Vytištěno"_s,
                          u"Způsob úhrady"_s, u"Číslo účtu"_s, u"Částka"_s, u"Měna"_s},
                         this)) {
    lvwUhrady->SetColumnWidths({230, 120, 150, 110, 80, 110, 140, 80, 60});
    lvwUhrady->AlignRight({kAmountColumn, kPaidColumn});
    lvwUhrady->SetIcons({ProgramIcon(u"payment"_s), ProgramIcon(u"blank"_s),
                         ProgramIcon(u"not-printed"_s), ProgramIcon(u"printed"_s)});
    lvwUhrady->SetMultiSelect(true);
    lvwUhrady->SetSorting(true);
    Connect(lvwUhrady, &ReportList::RightClick, this, &frmPrehledPlateb::ShowMenu);
    auto* column = new QVBoxLayout(this);
    column->addWidget(lvwUhrady);
    resize(1150, 560);
}

void frmPrehledPlateb::Load() {
    const ReadRun run(TheDataModule().Conn1);
    SharedTexts texts;
    const std::vector<PaymentRow> payments = PaymentsWithOwners();
    std::vector<ReportRow> rows;
    rows.reserve(payments.size());
    for (const PaymentRow& payment : payments)
        rows.push_back(RowOf(payment, texts));
    lvwUhrady->SetRows(std::move(rows));
}

void frmPrehledPlateb::ShowMenu() {
    if (lvwUhrady->SelectedRow() < 0)
        return;
    MenuEntry printed;
    printed.number = kMarkPrinted;
    printed.text = u"Označit jako vytištěné"_s;
    MenuEntry notPrinted;
    notPrinted.number = kMarkNotPrinted;
    notPrinted.text = u"Označit jako nevytištěné"_s;
    const int chosen = ThePlatform().menus->TrackPopup({printed, notPrinted});
    if (chosen == kMarkPrinted || chosen == kMarkNotPrinted)
        MarkSelected(chosen == kMarkPrinted);
}

void frmPrehledPlateb::MarkSelected(bool printed) {
    const WaitCursor wait = Waiting();
    const std::vector<int> positions = lvwUhrady->SelectedRows();
    EditRun run(TheDataModule().Conn1);
    for (const int position : positions)
        SetPaymentPrinted(lvwUhrady->Row(position).tag.toInt(), printed);
    run.Finish();
    const ReportCell cell = PrintedCell(printed);
    for (const int position : positions) {
        lvwUhrady->SetCell(position, kPrintedColumn, cell.text);
        lvwUhrady->SetCellIcon(position, kPrintedColumn, cell.icon);
    }
}

} // namespace lorvo
