#include "setup/frmVystava.h"

#include "app/common_routines.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "setup/fee_grid.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

// Whether prices depend on the class is one setting of the installation, not of a show.
const QString kSection = u"Main"_s;
const QString kIgnoreClasses = u"Ignorovat tridy"_s;

QString IniPath() {
    return ThePlatform().programFolder + u"/Lorvosys.ini"_s;
}

bool IgnoresClasses() {
    return ReadIniValue(kSection, kIgnoreClasses, IniPath()) == u"1";
}

/// False when the file could not be written and holds the other choice.
bool StoreChoice(bool byClass) {
    return ThePlatform().iniFiles->Write(kSection, kIgnoreClasses, byClass ? u"0"_s : u"1"_s,
                                         IniPath()) ||
           IgnoresClasses() != byClass;
}

} // namespace

frmVystava::frmVystava(int vystavaID, QWidget* parent)
    : Form("frmVystava", u"Výstava"_s, Border::Fixed, parent), vystavaID_(vystavaID),
      txtName(Named(new QLineEdit(this), u"txtName"_s)), fees_(new FeeGrid(this)),
      chkRozliseni(Named(new QCheckBox(u"Rozlišovat ceny podle tříd"_s, this), u"chkRozliseni"_s)) {
    BuildControls();
    Connect(chkRozliseni, &QCheckBox::toggled, this, &frmVystava::ChooseGrid);
}

void frmVystava::BuildControls() {
    auto* name = new QGroupBox(u"Název"_s, this);
    txtName->setAccessibleName(u"Název"_s);
    (new QVBoxLayout(name))->addWidget(txtName);

    auto* prices = new QGroupBox(u"Poplatky v Kč"_s, this);
    auto* rows = new QVBoxLayout(prices);
    rows->addWidget(fees_);
    rows->addWidget(chkRozliseni);

    auto* cmdOK = Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    Connect(cmdOK, &QPushButton::clicked, this, &frmVystava::Store);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addWidget(name);
    column->addWidget(prices);
    column->addLayout(ButtonRow({cmdOK, cmdCancel}));
}

void frmVystava::Load() {
    Loading = true;
    fees_->SetFees(ShowFees(vystavaID_));
    if (const auto show = ShowByID(vystavaID_))
        txtName->setText(show->Nazev);
    const bool ignoreClasses = IgnoresClasses();
    if (ignoreClasses)
        fees_->CopyFirstClassToSimple();
    fees_->ShowSimple(ignoreClasses);
    chkRozliseni->setChecked(!ignoreClasses);
    Loading = false;
}

void frmVystava::ChooseGrid(bool byClass) {
    if (Loading)
        return;
    fees_->ShowSimple(!byClass);
    if (byClass)
        fees_->SpreadSimple();
    else
        fees_->CopyFirstClassToSimple();
}

std::array<Currency, kFeeColumns> frmVystava::Fees() const {
    const auto texts = fees_->Texts();
    std::array<Currency, kFeeColumns> fees;
    for (std::size_t column = 0; column < fees.size(); ++column) {
        try {
            if (!texts[column].isEmpty())
                fees[column] = AmountFromText(texts[column]);
        } catch (const RangeError& failure) {
            const QString box = fees_->BoxCaption(static_cast<int>(column));
            throw RangeError(box.toStdString() + ": " + failure.what());
        }
    }
    return fees;
}

void frmVystava::Store() {
    if (txtName->text().isEmpty())
        return Refuse(*this, u"Neplatný název výstavy"_s);
    const bool byClass = chkRozliseni->isChecked();
    if (!byClass)
        fees_->SpreadSimple();
    std::array<Currency, kFeeColumns> fees;
    try {
        fees = Fees();
    } catch (const RangeError& failure) {
        return Refuse(*this, QString::fromUtf8(failure.what()));
    }
    const bool chosen = StoreChoice(byClass);
    const QString name = txtName->text().trimmed();
    UpdateShow(vystavaID_, name, fees);
    stored_ = name;
    if (!chosen)
        TellChoiceNotStored();
    accept();
}

void frmVystava::TellChoiceNotStored() const {
    Warn(
        *this,
        u"Výstava je uložena, ale volbu „"_s + chkRozliseni->text() +
            u"“ se nepodařilo zapsat do souboru "_s + IniPath() +
            u". Zkontrolujte, zda do složky programu smíte zapisovat a zda na disku zbývá místo."_s);
}

} // namespace lorvo
