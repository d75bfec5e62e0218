#include "setup/fm_Settings.h"

#include "app/common_routines.h"
#include "app/main_window_services.h"
#include "app/module_values.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "office/numbers/catalogue_numbers.h"
#include "payments/currency_list.h"
#include "office/copies/sweep_copy.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "setup/frmCisteniDB.h"
#include "setup/frmWizard.h"
#include "store/meny.h"
#include "store/ostatni.h"
#include "store/psi.h"
#include "store/vystavy.h"

#include <QCheckBox>
#include <QEvent>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const DateValue kUnknownShowDate = DateValue::FromCalendar(2000, 1, 1);
const DateValue kDesignedDate = DateValue::FromCalendar(2004, 5, 26);

const QString kPreferences = u"Sys"_s;

QLabel* Note(const QString& text, QWidget* parent) {
    auto* note = new QLabel(text, parent);
    note->setWordWrap(true);
    return note;
}

/// Changing the tree's shape by the mouse makes the tree stale at once, before anything is stored.
class ShapeWatcher : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease)
            Module().TreeDirty = true;
        return QObject::eventFilter(watched, event);
    }
};

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

QWidget* fm_Settings::MakeSystemPage() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->addWidget(MakeDatesFrame());
    column->addWidget(MakeNumbersFrame());
    column->addWidget(MakeDatabaseFrame());
    column->addWidget(MakeWizardFrame());
    column->addStretch();
    return page;
}

QWidget* fm_Settings::MakeDatesFrame() {
    auto* frame = new QGroupBox(u"Data"_s, this);
    auto* form = new QFormLayout;
    const auto picker = [&](const char* name, const QString& caption) {
        QDateEdit* made = DatePicker(QString::fromLatin1(name), frame);
        SetPickedDate(*made, kDesignedDate);
        form->addRow(CaptionFor(made, caption, frame), made);
        return made;
    };
    dtMeeting = picker("dtMeeting", u"Datum konání výstavy"_s);
    dtPrvniUzaverka = picker("dtPrvniUzaverka", u"Datum první uzávěrky"_s);
    dtDruhaUzaverka = picker("dtDruhaUzaverka", u"Datum druhé uzávěrky"_s);

    auto* column = new QVBoxLayout(frame);
    column->addLayout(form);
    column->addWidget(Note(u"Datum konání výstavy po nastavení nelze měnit, pokud je už na výstavu "
                           u"přihlášen přinejmenším jeden pes."_s,
                           frame));
    return frame;
}

QWidget* fm_Settings::MakeNumbersFrame() {
    auto* frame = new QGroupBox(u"Pořadová čísla psů"_s, this);
    cmdGenerateNumbers =
        Named(new QPushButton(u"Vygenerovat pořadová čísla"_s, frame), u"cmdGenerateNumbers"_s);
    cmdRemoveNumbers =
        Named(new QPushButton(u"Zrušit pořadová čísla"_s, frame), u"cmdRemoveNumbers"_s);
    auto* row = new QHBoxLayout(frame);
    row->addWidget(cmdGenerateNumbers);
    row->addWidget(cmdRemoveNumbers);
    return frame;
}

QWidget* fm_Settings::MakeDatabaseFrame() {
    auto* frame = new QGroupBox(u"Databáze"_s, this);
    cmdClearDatabase = Named(new QPushButton(u"Smazat data"_s, frame), u"cmdClearDatabase"_s);
    auto* row = new QHBoxLayout(frame);
    row->addWidget(Note(u"Smazáním obsahu databáze přijdete o všechna data. Po stisknutí tlačítka "
                        u"budete dotázáni, zda chcete skutečně data smazat."_s,
                        frame),
                   1);
    row->addWidget(cmdClearDatabase);
    return frame;
}

QWidget* fm_Settings::MakeWizardFrame() {
    auto* frame = new QGroupBox(u"Průvodce"_s, this);
    Command1 = Named(new QPushButton(u"Spustit průvodce"_s, frame), u"Command1"_s);
    auto* row = new QHBoxLayout(frame);
    row->addStretch();
    row->addWidget(Command1);
    return frame;
}

QWidget* fm_Settings::MakeLookPage() {
    auto* page = new QWidget(this);
    auto* frame = new QGroupBox(u"Volby"_s, page);
    auto* column = new QVBoxLayout(frame);
    const auto box = [&](const char* name, const QString& caption) {
        auto* made = Named(new QCheckBox(caption, frame), QString::fromLatin1(name));
        column->addWidget(made);
        return made;
    };
    chkGrids = box("chkGrids", u"Zobrazovat mřížky v seznamech"_s);
    chkRememberItem = box("chkRememberItem", u"Zapamatovat rozbalení hlavního stromečku"_s);
    chkShowClasses = box("chkShowClasses", u"Zobrazit ve stromečku třídy"_s);
    chkSourozenci = box("chkSourozenci", u"Po vybrání psa ve stromečku označit všechny psy "
                                         u"stejného majitele"_s);
    chkShowClasses->installEventFilter(new ShapeWatcher(this));

    auto* pageColumn = new QVBoxLayout(page);
    pageColumn->addWidget(frame);
    pageColumn->addStretch();
    return page;
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
    TickIfPreferred(*chkSourozenci, "ShowSiblings");
    chkRememberItem->setChecked(Module().RememberTreeOn);
}

void fm_Settings::Store() {
    SetShowDate(PickedDate(*dtMeeting));
    StorePreference(*chkGrids, "ShowGrid");
    StorePreference(*chkShowClasses, "ShowClasses");
    StorePreference(*chkSourozenci, "ShowSiblings");
    Module().RememberTreeOn = chkRememberItem->isChecked();
    SetClosingsOfFirstShow(PickedDate(*dtPrvniUzaverka), PickedDate(*dtDruhaUzaverka));
    accept();
}

bool fm_Settings::Confirm(const QString& question) const {
    return Ask(*this, question, MessageButtons::YesNo) == MessageAnswer::Yes;
}

void fm_Settings::GenerateNumbers() {
    if (!Confirm(u"Určitě vygenerovat pořadová čísla psů?"_s))
        return;
    const WaitCursor waiting(*ThePlatform().ui);
    CopyBeforeSweep();
    GenerateCatalogueNumbers(TheMainWindow().Nodes());
    SetNumbered(true);
}

void fm_Settings::RemoveNumbers() {
    if (!Confirm(u"Určitě zrušit pořadová čísla psů?"_s))
        return;
    const WaitCursor waiting(*ThePlatform().ui);
    if (CountDogs() == 0)
        return;
    CopyBeforeSweep();
    RemoveDogNumbers();
    SetNumbered(false);
    TheMainWindow().LoadData();
}

} // namespace lorvo
