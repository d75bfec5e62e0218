#include "dogs/frmVystavovatele.h"

#include "app/amount_texts.h"
#include "app/common_routines.h"
#include "app/main_window_services.h"
#include "app/module_values.h"
#include "dogs/frmEditMan.h"
#include "dogs/totals_bar.h"
#include "forms/controls.h"
#include "forms/make_cells.h"
#include "forms/messages.h"
#include "forms/report_list.h"
#include "office/fees/owner_accounts.h"
#include "office/texts/colours.h"
#include "office/texts/money_texts.h"
#include "office/tree/node_key.h"
#include "payments/frmUhrady.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "store/data_module.h"
#include "store/majitele.h"
#include "store/uhrady.h"

#include <QProgressBar>
#include <QVBoxLayout>
#include <utility>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

enum Column {
    kName,
    kStreet,
    kTown,
    kPostCode,
    kCountry,
    kTelephone,
    kEmail,
    kDogs,
    kFees,
    kPaid,
    kBalance
};

/// Number of the menu's last entry; a positive one is a dog's ID.
constexpr int kShowPaymentsNumber = -3;

std::optional<QColor> ColourOf(Currency balance) {
    return BalanceColour(balance, kOverpaidInExhibitors);
}

/// The texts move from the owner to its row.
ReportRow RowOf(Majitele&& owner, const AccountTotals& account, AmountTexts& amounts) {
    const QString id = QString::number(owner.ID);
    return {u"M"_s + id, id,
            MakeCells(std::move(owner.Jmeno), std::move(owner.Ulice), std::move(owner.Mesto),
                      PostCodeText(owner.PSC), std::move(owner.Stat).value_or(QString()),
                      std::move(owner.Telefon), std::move(owner.Email),
                      QString::number(account.dogs), amounts.Of(account.owed),
                      amounts.Of(account.paid),
                      ReportCell{amounts.Of(account.Balance()), ColourOf(account.Balance())})};
}

/// Moves the bar in whole percents: a row's worth of it would only be repainting.
void ShowProgress(QProgressBar& bar, int value) {
    const int percent = std::max(1, bar.maximum() / 100);
    if (value % percent == 0)
        bar.setValue(value);
}

std::vector<MenuEntry> MenuOf(int ownerID) {
    std::vector<MenuEntry> menu;
    for (const Psi& dog : DogsOfOwner(ownerID)) {
        MenuEntry& entry = menu.emplace_back();
        entry.number = dog.ID;
        entry.text = (dog.PohlaviPes ? u"P "_s : u"F "_s) + dog.Jmeno;
    }
    menu.push_back(MenuEntry::Separator());
    MenuEntry& payments = menu.emplace_back();
    payments.number = kShowPaymentsNumber;
    payments.text = u"Zobrazit platby"_s;
    return menu;
}

} // namespace

frmVystavovatele::frmVystavovatele(QWidget* parent)
    : Form("frmVystavovatele", u"Vystavovatelé"_s, Border::Sizable, parent),
      lvwList(
          new ReportList("lvwList",
                         {u"Jméno"_s, u"Ulice"_s, u"Město"_s, u"PSČ"_s, u"Stát"_s, u"Telefon"_s,
                          u"Email"_s, u"Psů"_s, u"Poplatky celkem"_s, u"Zaplaceno"_s, u"Bilance"_s},
                         this)),
      sb(new TotalsBar("sb", this)), Label1(Named(new QLabel(u"Pracuji..."_s, this), u"Label1"_s)),
      pbMain(Named(new QProgressBar(this), u"pbMain"_s)) {
    lvwList->SetColumnWidths({130, 150, 130, 60, 80, 125, 190, 50, 120, 110, 110});
    lvwList->AlignRight({kDogs, kFees, kPaid, kBalance});
    lvwList->SetSorting(true);
    LayOut();
    ConnectList();
}

void frmVystavovatele::LayOut() {
    auto* cmdCancel = Named(new QPushButton(u"Zavřít"_s, this), u"cmdCancel"_s);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(lvwList);
    column->addWidget(Label1);
    column->addWidget(pbMain);
    column->addLayout(ButtonRow({cmdCancel}));
    column->addWidget(sb);
    resize(1300, 620);
    lvwList->setFocus();
}

void frmVystavovatele::ConnectList() {
    Connect(lvwList, &ReportList::DoubleClick, this, &frmVystavovatele::EditOwner);
    Connect(lvwList, &ReportList::DeletePressed, this, &frmVystavovatele::DeleteSelected);
    Connect(lvwList, &ReportList::RightClick, this, &frmVystavovatele::ShowMenu);
}

void frmVystavovatele::Load() {
    {
        const WaitCursor wait = Waiting();
        lvwList->hide();
        FillList();
    }
    Label1->hide();
    pbMain->hide();
    lvwList->show();
}

void frmVystavovatele::FillList() {
    const ReadRun run(TheDataModule().Conn1);
    std::vector<Majitele> owners = OwnersByName();
    const OwnerAccounts accounts;
    const int count = static_cast<int>(owners.size());
    sb->SetPanel(1, u"Celkem %1 vystavovatelů."_s.arg(count));
    pbMain->setRange(0, count + 1);
    std::vector<ReportRow> rows;
    rows.reserve(owners.size());
    AccountTotals totals;
    AmountTexts amounts(AmountText);
    for (Majitele& owner : owners) {
        const AccountTotals account = accounts.Of(owner.ID);
        totals.Add(account);
        rows.push_back(RowOf(std::move(owner), account, amounts));
        ShowProgress(*pbMain, static_cast<int>(rows.size()));
    }
    sb->SetPanel(2, TotalsLine(totals.owed, totals.paid));
    lvwList->SetRows(std::move(rows));
}

void frmVystavovatele::EditOwner(int position) {
    const int ownerID = Module().CurrentOwner = lvwList->Row(position).tag.toInt();
    frmEditMan editor(this);
    OpenModal(editor);
    const Majitele owner = ExistingOwner(ownerID);
    lvwList->SetCell(position, kName, owner.Jmeno);
    lvwList->SetCell(position, kStreet, owner.Ulice);
    lvwList->SetCell(position, kTown, owner.Mesto);
    lvwList->SetCell(position, kPostCode, QString::number(owner.PSC));
    lvwList->SetCell(position, kCountry, owner.Stat.value_or(QString()));
    lvwList->SetCell(position, kTelephone, owner.Telefon);
    lvwList->SetCell(position, kEmail, owner.Email);
}

// Whether an owner may go hangs on the text "0" in the cell of the e-mail address.
// kept: owner-deleted-by-email-zero
void frmVystavovatele::DeleteSelected() {
    const int selected = lvwList->SelectedRow();
    if (selected < 0)
        return;
    const QString email = lvwList->CellText(selected, kEmail);
    if (email != u"0")
        return Refuse(*this, u"Tuto osobu není možno smazat, protože má přihlášené psy ("_s +
                                 email + u')');
    if (Ask(*this, u"Skutečně smazat?"_s, MessageButtons::YesNoCancel) != MessageAnswer::Yes)
        return;
    DeleteOwner(lvwList->Row(selected).tag.toInt());
    lvwList->RemoveRow(QString(lvwList->Row(selected).key));
}

void frmVystavovatele::ShowMenu(int position) {
    if (position < 0)
        return;
    const int chosen = ThePlatform().menus->TrackPopup(MenuOf(lvwList->Row(position).tag.toInt()));
    const QString node = NodeKey::Dog(chosen).ToText();
    if (chosen == kShowPaymentsNumber) {
        ShowPayments(position);
    } else if (chosen > 0 && TheMainWindow().NodeExists(node)) {
        TheMainWindow().SelectNode(node);
        TheMainWindow().MakeNodeVisible(node);
    }
}

// Fills each figure one column to the left of its own: the payments stand under the fees, and what
// they exceed the number of dogs by under the payments, until the list is opened again.
// kept: figures-one-column-left
void frmVystavovatele::ShowPayments(int position) {
    const int ownerID = lvwList->Row(position).tag.toInt();
    Module().PaymentsOwner = ownerID;
    frmUhrady statement(this);
    OpenModal(statement);
    const Currency paid = PaidForDogsOf(ownerID);
    const QString owed =
        lvwList->CellText(position, kDogs).replace(Module().MainCurrency, QString());
    const Currency balance = paid - AmountFromText(owed);
    lvwList->SetCell(position, kFees, AmountText(paid));
    lvwList->SetCell(position, kPaid, AmountText(balance));
    lvwList->SetCellColour(position, kPaid, ColourOf(balance));
}

} // namespace lorvo
