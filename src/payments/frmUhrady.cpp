#include "payments/frmUhrady.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "office/payments/payment_lookups.h"
#include "office/texts/dog_texts.h"
#include "payments/frmPlatba.h"
#include "payments/price_box.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "store/data_module.h"
#include "store/majitele.h"
#include "store/uhrady.h"

#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDogColumn = 1;
/// Where the amount in the main currency stands as long as there is no column of dogs.
constexpr int kMainCurrencyColumn = 2;

const QString kWidthsKey = u"ColWidths\\frmUhrady\\lvwUhrady"_s;
const QString kDogColumnWidth = u"ColWidth pesx"_s;
constexpr int kWidestColumn = 10'000;

/// The dog of an owner that a payment is for: the only one, or the one that the clerk picks. 0 for
/// none.
int PickDog(int ownerID) {
    const std::vector<Psi> dogs = DogsOfOwner(ownerID);
    if (dogs.empty())
        return 0;
    if (dogs.size() == 1)
        return dogs.front().ID;
    std::vector<MenuEntry> menu;
    for (const Psi& dog : dogs) {
        MenuEntry& entry = menu.emplace_back();
        entry.number = dog.ID;
        entry.text = dog.Jmeno;
    }
    return ThePlatform().menus->TrackPopup(menu);
}

} // namespace

frmUhrady::frmUhrady(QWidget* parent)
    : Form("frmUhrady", u"Seznam plateb"_s, Border::Sizable, parent),
      owner_(Module().PaymentsOwner),
      lvwUhrady(new ReportList(
          "lvwUhrady",
          {u"Částka"_s, u"Datum"_s, u"Částka v Kč"_s, u"Způsob úhrady"_s, u"Číslo účtu"_s}, this)) {
    lvwUhrady->SetColumnWidths({150, 150, 130, 120, 150});
    lvwUhrady->AlignRight({kMainCurrencyColumn});
    lvwUhrady->SetIcons({ProgramIcon(u"payment"_s)});
    Connect(lvwUhrady, &ReportList::DeletePressed, this, &frmUhrady::DeleteSelected);
    LayOut();
}

void frmUhrady::LayOut() {
    auto* cmdPlatba = Named(new QPushButton(u"Příjem platby"_s, this), u"cmdPlatba"_s);
    auto* cmdDelete = Named(new QPushButton(u"Smazat"_s, this), u"cmdDelete"_s);
    auto* cmdClose = Named(new QPushButton(u"Zavřít"_s, this), u"cmdClose"_s);
    Connect(cmdPlatba, &QPushButton::clicked, this, &frmUhrady::TakePayment);
    Connect(cmdDelete, &QPushButton::clicked, this, &frmUhrady::DeleteSelected);
    Connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);

    QGroupBox* price = PriceBox(this);
    price->hide();
    auto* column = new QVBoxLayout(this);
    column->addWidget(lvwUhrady);
    column->addWidget(price);
    column->addLayout(ButtonRow({cmdPlatba, cmdDelete, cmdClose}));
    setMinimumSize(420, 240);
    resize(850, 380);
    lvwUhrady->setFocus();
}

void frmUhrady::Load() {
    SetMainCurrencyHeading(Module().MainCurrency);
}

bool frmUhrady::QueryUnload() {
    SetMainCurrencyHeading(u"Kč"_s);
    RemoveDogColumn();
    return true;
}

void frmUhrady::SetMainCurrencyHeading(const QString& currency) {
    lvwUhrady->SetHeading(kMainCurrencyColumn + (hasDogColumn_ ? 1 : 0), u"Částka v "_s + currency);
}

void frmUhrady::Activated() {
    const ReadRun run(TheDataModule().Conn1);
    if (IsOwnersStatement())
        FillForOwner();
    else
        FillForDog();
}

void frmUhrady::FillForDog() {
    const Psi dog = CurrentDog();
    setWindowTitle(u"Seznam plateb za psa "_s + dog.Jmeno);
    std::vector<ReportRow> rows;
    AddPaymentsOf(dog, CurrencyAbbreviations(), rows);
    lvwUhrady->SetRows(std::move(rows));
}

void frmUhrady::FillForOwner() {
    InsertDogColumn();
    std::vector<ReportRow> rows;
    // kept: statement-names-the-owner-under-work
    if (const auto owner = OwnerByID(Module().CurrentOwner))
        setWindowTitle(u"Seznam plateb vystavovatele "_s + owner->Jmeno);
    const CurrencyAbbreviations currencies;
    for (const Psi& dog : DogsOfOwner(owner_, DogOrder::ByID))
        SkipFailure([&] { AddPaymentsOf(dog, currencies, rows); });
    lvwUhrady->SetRows(std::move(rows));
}

void frmUhrady::InsertDogColumn() {
    if (hasDogColumn_)
        return;
    lvwUhrady->InsertColumn(kDogColumn, u"Pes"_s);
    hasDogColumn_ = true;
    bool stored = false;
    const int width = ReadRegValue(kWidthsKey, kDogColumnWidth).toInt(&stored);
    if (stored && width >= 0 && width <= kWidestColumn)
        lvwUhrady->setColumnWidth(kDogColumn, width);
}

// The stored widths and places go by the number of the column. Both kinds of statement share them,
// so that the column of dogs, which one of them lacks, is gone before they are stored; its own
// width is kept apart.
void frmUhrady::RemoveDogColumn() {
    if (!hasDogColumn_)
        return;
    WriteRegValue(kWidthsKey, kDogColumnWidth, QString::number(lvwUhrady->columnWidth(kDogColumn)));
    lvwUhrady->RemoveColumn(kDogColumn);
    hasDogColumn_ = false;
}

void frmUhrady::AddPaymentsOf(const Psi& dog, const CurrencyAbbreviations& currencies,
                              std::vector<ReportRow>& rows) const {
    for (const Uhrady& payment : PaymentsOfDog(dog.ID))
        rows.push_back(RowOf(payment, dog, currencies));
}

ReportRow frmUhrady::RowOf(const Uhrady& payment, const Psi& dog,
                           const CurrencyAbbreviations& currencies) const {
    const auto looked = [this](auto lookUp) {
        if (!IsOwnersStatement())
            return QString(lookUp());
        QString text;
        SkipFailure([&] { text = lookUp(); });
        return text;
    };
    const QString id = QString::number(payment.ID);
    ReportRow row{u"K"_s + id, id, {}};
    row.cells = {
        {PlainAmount(payment.Castka) + u' ' + looked([&] { return currencies.Of(payment.Mena); }),
         {},
         0},
        {DateOrEmpty(payment.Datum)},
        {AmountText(payment.Kc)},
        {looked([&] { return PaymentModeText(payment.Uhrada); })},
        {payment.Ucet}};
    if (hasDogColumn_)
        row.cells.insert(row.cells.begin() + kDogColumn, {dog.Jmeno});
    return row;
}

void frmUhrady::TakePayment() {
    if (IsOwnersStatement()) {
        const int dogID = PickDog(owner_);
        if (dogID <= 0)
            return;
        Module().CurrentDogID = dogID;
    }
    frmPlatba window(this);
    OpenModal(window);
}

void frmUhrady::DeleteSelected() {
    const int selected = lvwUhrady->SelectedRow();
    if (selected < 0 ||
        Ask(*this, u"Skutečně smazat platbu?"_s, MessageButtons::OkCancel) != MessageAnswer::Ok)
        return;
    DeletePayment(lvwUhrady->Row(selected).tag.toInt());
    lvwUhrady->RemoveRow(QString(lvwUhrady->Row(selected).key));
}

} // namespace lorvo
