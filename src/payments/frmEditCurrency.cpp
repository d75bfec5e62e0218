#include "payments/frmEditCurrency.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "forms/box_hints.h"
#include "forms/controls.h"
#include "forms/literal_caption.h"
#include "forms/messages.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "store/meny.h"
#include "store/uhrady.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {
enum Box { kName, kAbbreviation, kRate };

bool IsNumeric(const QString& text) {
    return ThePlatform().locale->IsNumeric(text);
}

} // namespace

QString CurrencyRateCaption() {
    return u"Kurs (x "_s + Module().MainCurrency + u"/ 1 jednotka)"_s;
}

frmEditCurrency::frmEditCurrency(int menaID, std::function<void(bool)> onStored, QWidget* parent)
    : Form("frmEditCurrency", u"Editace měny"_s, Border::Fixed, parent), menaID_(menaID),
      onStored_(std::move(onStored)) {
    BuildControls();
    for (QLineEdit* box : txtEditCurr)
        Connect(box, &QLineEdit::textChanged, this, &frmEditCurrency::EnableOK);
    Connect(chkMainCurr, &QCheckBox::toggled, this, &frmEditCurrency::FollowMainMark);
    Connect(cmdOK, &QPushButton::clicked, this, &frmEditCurrency::Store);
}

void frmEditCurrency::BuildControls() {
    const QString rate = LiteralCaption(CurrencyRateCaption());
    const QString captions[] = {u"Název"_s, u"Zkratka"_s, rate};
    auto* form = new QFormLayout;
    int position = 0;
    for (QLineEdit*& box : txtEditCurr) {
        box = Named(new QLineEdit(this), ElementName("txtEditCurr", position));
        form->addRow(CaptionFor(box, captions[position], this), box);
        ++position;
    }
    txtEditCurr[kName]->setMinimumWidth(220);
    TellWhatFits(*txtEditCurr[kRate], IsNumeric, u"Kurs zapište jako číslo, například 25,50."_s);
    chkMainCurr = Named(new QCheckBox(u"Používat jako hlavní měnu"_s, this), u"chkMainCurr"_s);
    auto* note = new QLabel(
        u"Tuto volbu nelze změnit, pokud již byla přijata alespoň jedna platba."_s, this);
    note->setWordWrap(true);
    cmdOK = Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(chkMainCurr);
    column->addWidget(note);
    column->addLayout(ButtonRow({cmdOK, cmdCancel}));
}

void frmEditCurrency::Load() {
    if (menaID_ != 0)
        LoadCurrency();
    else
        PrepareNewCurrency();
    cmdOK->setEnabled(!txtEditCurr[kName]->text().isEmpty());
    // Past payments are amounts in the main currency: it can't change its meaning under them.
    chkMainCurr->setEnabled(CountPayments() == 0);
}

void frmEditCurrency::LoadCurrency() {
    setWindowTitle(u"Upravit měnu"_s);
    const auto currency = CurrencyByID(menaID_);
    if (!currency)
        return;
    txtEditCurr[kName]->setText(currency->Nazev);
    txtEditCurr[kAbbreviation]->setText(currency->Zkratka);
    txtEditCurr[kRate]->setText(PlainAmount(currency->Kurs));
    chkMainCurr->setChecked(currency->Hlavni);
}

void frmEditCurrency::PrepareNewCurrency() {
    setWindowTitle(u"Přidat měnu"_s);
    if (CountCurrencies() == 0)
        chkMainCurr->setChecked(true);
}

void frmEditCurrency::FollowMainMark(bool main) {
    if (main)
        txtEditCurr[kRate]->setText(u"1"_s);
    txtEditCurr[kRate]->setEnabled(!main);
}

void frmEditCurrency::EnableOK() {
    cmdOK->setEnabled(!txtEditCurr[kName]->text().isEmpty() &&
                      !txtEditCurr[kAbbreviation]->text().isEmpty() &&
                      IsNumeric(txtEditCurr[kRate]->text()));
}

void frmEditCurrency::Store() {
    Meny currency;
    currency.ID = menaID_;
    currency.Nazev = txtEditCurr[kName]->text().trimmed();
    currency.Zkratka = txtEditCurr[kAbbreviation]->text().trimmed();
    currency.Hlavni = chkMainCurr->isChecked();
    try {
        currency.Kurs = AmountFromText(txtEditCurr[kRate]->text());
    } catch (const RangeError& failure) {
        Refuse(*this, u"Kurs: "_s + QString::fromUtf8(failure.what()));
        return;
    }
    if (currency.ID != 0)
        UpdateCurrency(currency);
    else
        InsertCurrency(currency);
    onStored_(currency.Hlavni);
    if (currency.Hlavni)
        ClearMainMarkExceptNamed(currency.Nazev);
    accept();
}

} // namespace lorvo
