#include "payments/frmPlatba.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "office/payments/conversion.h"
#include "office/payments/payment_lookups.h"
#include "office/texts/dog_texts.h"
#include "payments/auto_complete_box.h"
#include "payments/price_box.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "store/meny.h"
#include "store/uhrady.h"

#include <QComboBox>
#include <QEvent>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// The way of payment that goes through an account.
constexpr int kTransfer = 0;

/// The longest text that is worked out while it is typed.
constexpr int kLongestConverted = 9;

const QString kNothingConverted = u"..."_s;

} // namespace

frmPlatba::frmPlatba(QWidget* parent)
    : Form("frmPlatba", u"Příjem platby"_s, Border::Fixed, parent),
      cmbMena(Named(new QComboBox(this), u"cmbMena"_s)),
      txtCastka(Named(new QLineEdit(u"0"_s, this), u"txtCastka"_s)),
      lblPrepocteno(Named(new QLabel(kNothingConverted, this), u"lblPrepocteno"_s)),
      cmbZpusob(Named(new QComboBox(this), u"cmbZpusob"_s)),
      acUcet(Named(new AutoCompleteBox(this), u"acUcet"_s)),
      dtPrijata(DatePicker(u"dtPrijata"_s, this)),
      cmdOK(Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s)) {
    SetNumberStyle(*txtCastka);
    txtCastka->setAlignment(Qt::AlignRight);
    lblPrepocteno->setTextFormat(Qt::PlainText);
    lblPrepocteno->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblPrepocteno->setMinimumWidth(fontMetrics().horizontalAdvance(u"9999 999 999,00 Kč"_s));
    acUcet->setMinimumWidth(260);
    LayOut();
    ConnectControls();
    txtCastka->setFocus();
}

void frmPlatba::LayOut() {
    auto* amount = new QHBoxLayout;
    amount->addWidget(txtCastka);
    amount->addWidget(lblPrepocteno);
    auto* form = new QFormLayout;
    form->addRow(CaptionFor(cmbMena, u"&Měna"_s, this), cmbMena);
    form->addRow(CaptionFor(txtCastka, u"Čá&stka"_s, this), amount);
    form->addRow(CaptionFor(cmbZpusob, u"&Způsob úhrady"_s, this), cmbZpusob);
    form->addRow(CaptionFor(acUcet, u"Číslo ú&čtu"_s, this), acUcet);
    form->addRow(CaptionFor(dtPrijata, u"&Přijato"_s, this), dtPrijata);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(PriceBox(this));
    column->addLayout(ButtonRow({cmdOK, cmdCancel}));
}

void frmPlatba::ConnectControls() {
    txtCastka->installEventFilter(this);
    Connect(txtCastka, &QLineEdit::textChanged, this, &frmPlatba::FollowAmount);
    Connect(cmbMena, &QComboBox::currentIndexChanged, this, &frmPlatba::ShowConverted);
    Connect(cmbZpusob, &QComboBox::currentIndexChanged, this,
            [this](int mode) { acUcet->setEnabled(mode == kTransfer); });
    // Enter in the account box takes the suggestion, it doesn't store the payment yet.
    Connect(acUcet, &AutoCompleteBox::FocusEntered, this, [this] { cmdOK->setDefault(false); });
    Connect(acUcet, &AutoCompleteBox::FocusLeft, this, [this] { cmdOK->setDefault(true); });
    Connect(cmdOK, &QPushButton::clicked, this, &frmPlatba::Store);
}

void frmPlatba::Load() {
    const Psi dog = CurrentDog();
    setWindowTitle(windowTitle() + u" - "_s + FullName(dog));
    for (const QString& mode : Tables().PaymentModes)
        cmbZpusob->addItem(mode);
    const DateValue last = Module().LastPaymentDate;
    SetPickedDate(*dtPrijata, last.IsZero() ? ThePlatform().clock->Now() : last);
    FillCurrencies();
    acUcet->ClearSuggestions();
    acUcet->AddSuggestions(AccountsOfOwner(dog.MajitelID));
}

void frmPlatba::FillCurrencies() {
    for (const Meny& currency : Currencies()) {
        cmbMena->addItem(currency.Nazev + u" ("_s + currency.Zkratka + u')', currency.ID);
        if (currency.Hlavni)
            cmbMena->setCurrentIndex(cmbMena->count() - 1);
    }
    cmdOK->setEnabled(cmbMena->count() > 0);
}

bool frmPlatba::eventFilter(QObject* watched, QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        if (watched == txtCastka && event->type() == QEvent::FocusIn) {
            txtCastka->selectAll();
            // A click sets the cursor only after the focus has come.
            Later(txtCastka, [this] { txtCastka->selectAll(); });
        }
        return Form::eventFilter(watched, event);
    });
}

Meny frmPlatba::ChosenCurrency() const {
    return ExistingCurrency(cmbMena->currentData().toInt());
}

void frmPlatba::ShowConverted() {
    try {
        lblPrepocteno->setText(
            AmountText(InMainCurrency(AmountFromText(txtCastka->text()), ChosenCurrency())));
    } catch (const RangeError&) {
        lblPrepocteno->setText(kNothingConverted);
    }
}

void frmPlatba::FollowAmount(const QString& text) {
    if (!text.isEmpty() && text.size() <= kLongestConverted && cmbMena->count() > 0)
        ShowConverted();
    else
        lblPrepocteno->setText(kNothingConverted);
}

// kept: two-zeros-are-an-amount
void frmPlatba::Store() {
    if (txtCastka->text().isEmpty() || txtCastka->text() == u"0") {
        Inform(*this, u"Částka nesprávně zadána"_s);
        return;
    }
    try {
        InsertPayment(Payment());
    } catch (const RangeError& failure) {
        Refuse(*this, u"Částka: "_s + QString::fromUtf8(failure.what()));
        return;
    }
    Module().LastPaymentDate = PickedDate(*dtPrijata);
    accept();
}

Uhrady frmPlatba::Payment() const {
    Uhrady payment;
    // The moment of the entry puts payments of one day in their order.
    payment.Datum =
        PickedDate(*dtPrijata).WithSecondOfDay(ThePlatform().clock->Now().SecondOfDay());
    SetPaid(payment, AmountFromText(txtCastka->text()), ChosenCurrency());
    payment.Uhrada = cmbZpusob->currentIndex();
    payment.ID_Psa = Module().CurrentDogID;
    // kept: account-of-cash
    payment.Ucet = acUcet->text();
    return payment;
}

} // namespace lorvo
