#include "dogs/frmDogListFilter.h"

#include "dogs/dog_filter_choices.h"
#include "forms/controls.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Entries of the menu over the breeds, as they are numbered.
enum BreedMenu { kCheckAll = 1, kCheckOwn, kUncheckAll, kUncheckOwn };

/// Blue tells that something is chosen.
void ShowChosen(QLabel& label, bool chosen) {
    QPalette palette;
    if (chosen)
        palette.setColor(QPalette::WindowText, QColor(0, 0, 255));
    label.setPalette(palette);
}

bool AnyChecked(const ReportList& list) {
    for (int position = 0; position < list.RowCount(); ++position)
        if (list.Row(position).checked)
            return true;
    return false;
}

/// A field that turns its caption blue while there is a text in it.
QLineEdit* AddTextRow(QFormLayout& form, const char* name, const QString& caption,
                      QWidget* parent) {
    auto* box = Named(new QLineEdit(parent), QString::fromLatin1(name));
    QLabel* label = CaptionFor(box, caption, parent);
    form.addRow(label, box);
    Connect(box, &QLineEdit::textChanged, label,
            [label](const QString& text) { ShowChosen(*label, !text.isEmpty()); });
    return box;
}

QGroupBox* Frame(const char* name, const QString& caption, QWidget* parent) {
    return Named(new QGroupBox(caption, parent), QString::fromLatin1(name));
}

} // namespace

// kept: filter-without-effect
frmDogListFilter::frmDogListFilter(QWidget* parent)
    : Form("frmDogListFilter", u"Filtr"_s, Border::Sizable, parent),
      XTab(Named(new QTabWidget(this), u"XTab"_s)) {
    XTab->addTab(MakeDogPage(), u"Pes"_s);
    XTab->addTab(MakeOwnerPage(), u"Majitel"_s);
    lvwTridy = AddListPage("lvwTridy", u"Třídy"_s, {u"Název"_s});
    lvwKruhy = AddListPage("lvwKruhy", u"Kruhy"_s, {u"Název"_s});
    XTab->addTab(MakeBreedPage(), u"Plemena"_s);
    lvwVystavy = AddListPage("lvwVystavy", u"Výstavy a soutěže"_s, {u"Název"_s});
    lvwOceneni = AddListPage("lvwOceneni", u"Ocenění"_s, {u"Název"_s});

    auto* cmd_OK = Named(new QPushButton(u"O&K"_s, this), u"cmd_OK"_s);
    auto* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
    auto* column = new QVBoxLayout(this);
    column->addWidget(XTab);
    column->addLayout(ButtonRow({cmd_OK, cmdCancel}));
    resize(560, 420);
    txtJmeno->setFocus();

    Connect(cmd_OK, &QPushButton::clicked, this, &QDialog::accept);
    Connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    Connect(cmdMenu, &QPushButton::clicked, this, &frmDogListFilter::ShowBreedMenu);
}

QWidget* frmDogListFilter::MakeDogPage() {
    auto* page = new QWidget(this);
    auto* form = new QFormLayout;
    txtJmeno = AddTextRow(*form, "txtJmeno", u"Jméno"_s, page);
    auto* column = new QVBoxLayout(page);
    column->addLayout(form);
    column->addWidget(MakeGenderFrame());
    column->addWidget(MakeDateFrame());
    column->addStretch();
    return page;
}

QWidget* frmDogListFilter::MakeOwnerPage() {
    auto* page = new QWidget(this);
    auto* form = new QFormLayout;
    txtMajitel = AddTextRow(*form, "txtMajitel", u"Majitel"_s, page);
    auto* column = new QVBoxLayout(page);
    column->addLayout(form);
    column->addWidget(MakeFinanceFrame());
    column->addStretch();
    return page;
}

QWidget* frmDogListFilter::MakeGenderFrame() {
    auto* frame = Frame("fraPohlavi", u"Pohlaví"_s, this);
    auto* row = new QHBoxLayout(frame);
    const QStringList captions = {u"Pes"_s, u"Fena"_s};
    for (int index = 0; index < captions.size(); ++index) {
        auto* option = new QRadioButton(captions[index], frame);
        row->addWidget(Named(option, ElementName("optGender", index)));
        optGender.at(static_cast<std::size_t>(index)) = option;
    }
    row->addStretch();
    return frame;
}

QWidget* frmDogListFilter::MakeDateFrame() {
    auto* frame = Frame("fraDatum", u"Datum narození"_s, this);
    auto* row = new QHBoxLayout(frame);
    dtBorn = DatePicker(u"dtBorn"_s, frame, YearWindow::Past);
    DTPicker1 = DatePicker(u"DTPicker1"_s, frame, YearWindow::Past);
    const DateValue today = ThePlatform().clock->Now().DateOnly();
    for (const auto& [picker, caption] : {std::pair(dtBorn, u"&Od"_s), {DTPicker1, u"&do"_s}}) {
        SetPickedDate(*picker, today);
        row->addWidget(CaptionFor(picker, caption, frame));
        row->addWidget(picker);
    }
    row->addStretch();
    return frame;
}

QWidget* frmDogListFilter::MakeFinanceFrame() {
    auto* frame = Frame("fraFinance", u"Finance"_s, this);
    auto* row = new QHBoxLayout(frame);
    const QStringList captions = {u"Nedoplatek"_s, u"Přeplatek"_s, u"Vyrovnáno"_s};
    for (int index = 0; index < captions.size(); ++index) {
        auto* box = new QCheckBox(captions[index], frame);
        row->addWidget(Named(box, ElementName("chkFinance", index)));
        chkFinance.at(static_cast<std::size_t>(index)) = box;
    }
    row->addStretch();
    return frame;
}

QWidget* frmDogListFilter::MakeBreedPage() {
    auto* page = new QWidget(this);
    lblPlemena = new QLabel(u"Plemena"_s, page);
    cmdMenu = Named(new QPushButton(u"Výběr"_s, page), u"cmdMenu"_s);
    cmdMenu->setAutoDefault(false);
    lvwPlemena = MakeCheckList("lvwPlemena", {u"Český název"_s, u"Původní název"_s}, lblPlemena);
    lvwPlemena->SetColumnWidths({240, 240});
    auto* row = new QHBoxLayout;
    row->addWidget(lblPlemena, 1);
    row->addWidget(cmdMenu);
    auto* column = new QVBoxLayout(page);
    column->addLayout(row);
    column->addWidget(lvwPlemena);
    return page;
}

ReportList* frmDogListFilter::AddListPage(const char* name, const QString& caption,
                                          const QStringList& headings) {
    auto* page = new QWidget(this);
    auto* label = new QLabel(caption, page);
    ReportList* list = MakeCheckList(name, headings, label);
    list->SetColumnWidths({420});
    auto* column = new QVBoxLayout(page);
    column->addWidget(label);
    column->addWidget(list);
    XTab->addTab(page, caption);
    return list;
}

ReportList* frmDogListFilter::MakeCheckList(const char* name, const QStringList& headings,
                                            QLabel* label) {
    auto* list = new ReportList(name, headings, label->parentWidget());
    list->SetCheckBoxes(true);
    label->setBuddy(list);
    Connect(list, &ReportList::ItemCheck, label,
            [list, label] { ShowChosen(*label, AnyChecked(*list)); });
    return list;
}

void frmDogListFilter::Load() {
    lvwTridy->SetRows(ClassChoices());
    lvwKruhy->SetRows(RingChoices());
    lvwPlemena->SetRows(BreedChoices());
    lvwVystavy->SetRows(ShowChoices());
    lvwOceneni->SetRows(AwardChoices());
}

void frmDogListFilter::ShowBreedMenu() {
    const QStringList texts = {u"Vybrat všechna plemena"_s, u"Vybrat všechna vlastní plemena"_s,
                               u"Zrušit výběr všech plemen"_s, u"Zrušit výběr vlastních plemen"_s};
    std::vector<MenuEntry> menu;
    for (const QString& text : texts) {
        MenuEntry& entry = menu.emplace_back();
        entry.number = static_cast<int>(menu.size());
        entry.text = text;
    }
    if (const int chosen = ThePlatform().menus->TrackPopup(menu))
        CheckBreeds(chosen == kCheckAll || chosen == kCheckOwn,
                    chosen == kCheckOwn || chosen == kUncheckOwn);
}

void frmDogListFilter::CheckBreeds(bool checked, bool ownOnly) {
    for (int position = 0; position < lvwPlemena->RowCount(); ++position)
        if (!ownOnly || lvwPlemena->Row(position).tag == kOwnBreedTag)
            lvwPlemena->SetChecked(position, checked);
    ShowChosen(*lblPlemena, AnyChecked(*lvwPlemena));
}

} // namespace lorvo
