#include "dogs/dog_owner_box.h"

#include "app/common_routines.h"
#include "dogs/owner_list_model.h"
#include "dogs/type_search_combo.h"
#include "forms/controls.h"
#include "platform/failure_guard.h"

#include <QComboBox>
#include <QGridLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// A box of the owner with its place in the grid, in reading order.
struct OwnerField {
    const char16_t* caption;
    int index;
    int row;
    int column; ///< of the caption; the box stands beside it
    int span;
};
constexpr OwnerField kFields[] = {
    {u"Jméno", 7, 2, 0, 1},    {u"Příjmení", 4, 2, 2, 1}, {u"&Ulice", 8, 3, 0, 3},
    {u"PSČ", 9, 4, 0, 1},      {u"Město", 10, 4, 2, 1},   {u"Telefon", 6, 5, 0, 3},
    {u"&E-mail", 11, 6, 0, 3},
};
/// The boxes that a chosen owner fills; the surname isn't among them.
constexpr int kSurname = 4;

/// What is only shown is read as well as what can be typed.
void KeepLegible(QLineEdit& box) {
    QPalette palette = box.palette();
    palette.setColor(QPalette::Disabled, QPalette::Text,
                     palette.color(QPalette::Active, QPalette::Text));
    box.setPalette(palette);
}

/// From its beginning; what doesn't fit stands in the tool tip, for a closed box can't be scrolled.
void ShowText(QLineEdit& box, const QString& text) {
    box.setText(text);
    box.setCursorPosition(0);
    // As markup of one paragraph, or a name could pass for markup of its own.
    box.setToolTip(text.isEmpty() ? text : u"<p>"_s + text.toHtmlEscaped() + u"</p>"_s);
}

} // namespace

DogOwnerBox::DogOwnerBox(QWidget* parent)
    : QGroupBox(u"Majitel"_s, parent), owners_(new OwnerListModel(this)),
      cmbOwners(Named(new TypeSearchCombo(this), u"cmbOwners"_s)),
      cmdAddName(Named(new QPushButton(u"Přidat &nového"_s, this), u"cmdAddName"_s)),
      cmdAddNameCancel(Named(new QPushButton(u"Zpě&t"_s, this), u"cmdAddNameCancel"_s)) {
    setObjectName(u"fraOwner"_s);
    cmbOwners->setAccessibleName(title());
    cmbOwners->setModel(owners_);
    PrepareForLongList(*cmbOwners);
    cmdAddNameCancel->setEnabled(false);
    LayOut();
    Connect(cmbOwners, &QComboBox::activated, this, &DogOwnerBox::FillBoxes);
    Connect(cmdAddName, &QPushButton::clicked, this, &DogOwnerBox::AddName);
    Connect(cmdAddNameCancel, &QPushButton::clicked, this, &DogOwnerBox::CancelName);
}

void DogOwnerBox::LayOut() {
    auto* grid = new QGridLayout(this);
    grid->addWidget(cmbOwners, 0, 0, 1, 4);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdAddName);
    buttons->addWidget(cmdAddNameCancel);
    buttons->addStretch();
    grid->addLayout(buttons, 1, 0, 1, 4);
    for (const OwnerField& field : kFields) {
        auto* box = Named(new QLineEdit(this), ElementName("txtbox", field.index));
        box->setEnabled(false);
        KeepLegible(*box);
        grid->addWidget(CaptionFor(box, QString::fromUtf16(field.caption), this), field.row,
                        field.column);
        grid->addWidget(box, field.row, field.column + 1, 1, field.span);
        txtbox[field.index] = box;
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
}

void DogOwnerBox::LoadMajitele() {
    owners_->SetOwners(OwnerNamesByName());
    cmbOwners->setCurrentIndex(-1);
}

void DogOwnerBox::ShowOwnerOfDog(int majitelID) {
    const auto owner = OwnerByID(majitelID);
    if (!owner)
        return;
    ShowText(*txtbox[kSurname], owner->Prijmeni.value_or(QString()));
    for (const int index : {7, kSurname, 8, 10, 9})
        txtbox[index]->setEnabled(false);
    cmbOwners->setCurrentIndex(owners_->FindOwner(majitelID));
    FillBoxes();
}

// kept: surname-of-the-first-owner
void DogOwnerBox::FillBoxes() {
    const auto owner = OwnerByID(SelectedOwnerID());
    if (!owner)
        return;
    ShowText(*txtbox[7], owner->Jmeno);
    ShowText(*txtbox[8], owner->Ulice);
    ShowText(*txtbox[9], PostCodeText(owner->PSC));
    ShowText(*txtbox[10], owner->Mesto);
    ShowText(*txtbox[6], owner->Telefon);
    ShowText(*txtbox[11], owner->Email);
}

void DogOwnerBox::SetNewOwner(bool on) {
    cmbOwners->setEnabled(!on);
    cmdAddName->setEnabled(!on);
    cmdAddNameCancel->setEnabled(on);
}

void DogOwnerBox::AddName() {
    SavedOwnerIndex = cmbOwners->currentIndex();
    owners_->AddEmpty();
    cmbOwners->setCurrentIndex(cmbOwners->count() - 1);
    for (const auto& [index, box] : txtbox) {
        box->setEnabled(true);
        ShowText(*box, {});
    }
    txtbox[7]->setFocus();
    SetNewOwner(true);
}

void DogOwnerBox::CancelName() {
    owners_->RemoveLast();
    SetNewOwner(false);
    cmbOwners->setCurrentIndex(SavedOwnerIndex);
    cmbOwners->setFocus();
    if (SavedOwnerIndex >= 0)
        return FillBoxes();
    // Nobody was chosen before: a typed name must not pass for an owner's.
    for (const auto& [index, box] : txtbox)
        ShowText(*box, {});
}

bool DogOwnerBox::IsNewOwner() const {
    return cmdAddNameCancel->isEnabled();
}

int DogOwnerBox::SelectedOwnerID() const {
    return cmbOwners->currentData().toInt();
}

Majitele DogOwnerBox::Boxes() const {
    Majitele owner;
    owner.Jmeno = txtbox.at(7)->text();
    owner.Prijmeni = txtbox.at(kSurname)->text();
    owner.Ulice = txtbox.at(8)->text();
    owner.PSC = txtbox.at(9)->text().toInt();
    owner.Mesto = txtbox.at(10)->text();
    owner.Telefon = txtbox.at(6)->text();
    owner.Email = txtbox.at(11)->text();
    return owner;
}

} // namespace lorvo
