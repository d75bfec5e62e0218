#include "setup/fm_Settings.h"

#include "app/common_routines.h"
#include "app/main_window_services.h"
#include "app/module_values.h"
#include "app/view_preferences.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "office/copies/sweep_copy.h"
#include "office/numbers/catalogue_numbers.h"
#include "payments/currency_list.h"
#include "platform/failure_guard.h"
#include "setup/frmCisteniDB.h"
#include "setup/frmWizard.h"
#include "store/meny.h"
#include "store/ostatni.h"
#include "store/psi.h"
#include "store/vystavy.h"

#include <QCheckBox>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const DateValue kUnknownShowDate = DateValue::FromCalendar(2000, 1, 1);

const QString kPreferences = u"Sys"_s;

// kept: settings-never-untick
void TickIfPreferred(QCheckBox& box, const char* name) {
    if (ReadRegValue(kPreferences, QString::fromLatin1(name)) == u"1")
        box.setChecked(true);
}

void StorePreference(const QCheckBox& box, const char* name) {
    WriteRegValue(kPreferences, QString::fromLatin1(name), box.isChecked() ? u"1"_s : u"0"_s);
}

void ReadMainCurrency() {
    const std::vector<Meny> marked = MainCurrencies();
    Module().MainCurrency = marked.empty() ? u"Kč"_s : marked.front().Zkratka;
}

} // namespace

fm_Settings::fm_Settings(QWidget* parent)
    : Form("fm_Settings", u"Nastavení"_s, Border::Fixed, parent) {
    XTab = Named(new QTabWidget(this), u"XTab"_s);
    XTab->addTab(MakeSystemPage(), u" Systém "_s);
    XTab->addTab(currencies_ = new CurrencyList(XTab), u" Měny "_s);
    XTab->addTab(MakeLookPage(), u" Vzhled "_s);

    cmdOK = Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    auto* column = new QVBoxLayout(this);
    column->addWidget(XTab);
    column->addLayout(ButtonRow({cmdOK, cmdCancel}));

    Connect(cmdOK, &QPushButton::clicked, this, &fm_Settings::Store);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    Connect(cmdGenerateNumbers, &QPushButton::clicked, this, &fm_Settings::GenerateNumbers);
    Connect(cmdRemoveNumbers, &QPushButton::clicked, this, &fm_Settings::RemoveNumbers);
    Connect(cmdClearDatabase, &QPushButton::clicked, this, [this] {
        frmCisteniDB window(this);
        OpenModal(window);
    });
    Connect(Command1, &QPushButton::clicked, this, [this] {
        frmWizard window(this);
        OpenModal(window);
    });
}

// Only in the window's own font is it known which page is the highest; without this the window
// would follow the page on top.
void fm_Settings::Load() {
    XTab->setMinimumHeight(
        std::max(XTab->sizeHint().height(), XTab->heightForWidth(XTab->sizeHint().width())));
}

void fm_Settings::Activated() {
    LoadSettings();
    ReadMainCurrency();
    currencies_->Refill();
}

void fm_Settings::LoadSettings() {
    LoadDates();
    EnableNumberButtons();
    LoadLooks();
}

void fm_Settings::LoadDates() {
    // The date decides the classes of the dogs already entered.
    dtMeeting->setEnabled(CountDogs() == 0);
    const std::optional<Ostatni> values = ShowWideValues();
    if (!values)
        SetShowDate(kUnknownShowDate);
    const DateValue stored = values ? values->DatumVystavy.value_or(DateValue()) : kUnknownShowDate;
    SetPickedDate(*dtMeeting, stored.IsZero() ? kUnknownShowDate : stored);

    const std::vector<Vystavy> shows = Shows();
    if (shows.empty())
        return;
    if (shows.front().Uzaverka1)
        SetPickedDate(*dtPrvniUzaverka, *shows.front().Uzaverka1);
    if (shows.front().Uzaverka2)
        SetPickedDate(*dtDruhaUzaverka, *shows.front().Uzaverka2);
}

void fm_Settings::EnableNumberButtons() {
    const bool numbered = CountNumberedDogs() > 0;
    cmdRemoveNumbers->setEnabled(numbered);
    cmdGenerateNumbers->setEnabled(!numbered);
}

void fm_Settings::SetNumbered(bool numbered) {
    // A button that is greyed hands the keyboard to the next one, which clears the database.
    cmdOK->setFocus();
    cmdGenerateNumbers->setEnabled(!numbered);
    cmdRemoveNumbers->setEnabled(numbered);
}

void fm_Settings::LoadLooks() {
    TickIfPreferred(*chkGrids, "ShowGrid");
    TickIfPreferred(*chkShowClasses, "ShowClasses");
    // kept: siblings-option-unread
    TickIfPreferred(*chkSourozenci, "ShowSiblings");
    chkRememberItem->setChecked(TheMainWindow().Look().rememberTree);
}

void fm_Settings::Store() {
    SetShowDate(PickedDate(*dtMeeting));
    StorePreference(*chkGrids, "ShowGrid");
    StorePreference(*chkShowClasses, "ShowClasses");
    StorePreference(*chkSourozenci, "ShowSiblings");
    TheMainWindow().Look().rememberTree = chkRememberItem->isChecked();
    SetClosingsOfFirstShow(PickedDate(*dtPrvniUzaverka), PickedDate(*dtDruhaUzaverka));
    accept();
}

bool fm_Settings::Confirm(const QString& question) const {
    return Ask(*this, question, MessageButtons::YesNo) == MessageAnswer::Yes;
}

void fm_Settings::GenerateNumbers() {
    if (!Confirm(u"Určitě vygenerovat pořadová čísla psů?"_s))
        return;
    const WaitCursor waiting = Waiting();
    CopyBeforeSweep();
    GenerateCatalogueNumbers(TheMainWindow().Nodes());
    SetNumbered(true);
}

void fm_Settings::RemoveNumbers() {
    if (!Confirm(u"Určitě zrušit pořadová čísla psů?"_s))
        return;
    const WaitCursor waiting = Waiting();
    if (CountDogs() == 0)
        return;
    CopyBeforeSweep();
    RemoveDogNumbers();
    SetNumbered(false);
    TheMainWindow().LoadData();
}

} // namespace lorvo
