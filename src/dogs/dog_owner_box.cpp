#include "dogs/dog_owner_box.h"

#include "app/common_routines.h"
#include "dogs/owner_list_model.h"
#include "forms/controls.h"
#include "platform/failure_guard.h"

#include <QComboBox>
#include <QGridLayout>

namespace lorvo {

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
    {u"PSČ", 9, 4, 0, 1},      {u"Město", 10, 4, 2, 1},   {u"Telefon", 6, 5, 0, 1},
    {u"&E-mail", 11, 5, 2, 1},
};
/// The boxes that a chosen owner fills; the surname isn't among them.
constexpr int kSurname = 4;

} // namespace

DogOwnerBox::DogOwnerBox(QWidget* parent)
    : QGroupBox(QStringLiteral("Majitel"), parent), owners_(new OwnerListModel(this)),
      cmbOwners(Named(new QComboBox(this), QStringLiteral("cmbOwners"))),
      cmdAddName(Named(new QPushButton(QStringLiteral("Přidat &nového"), this),
                       QStringLiteral("cmdAddName"))),
      cmdAddNameCancel(Named(new QPushButton(QStringLiteral("Zpě&t"), this),
                             QStringLiteral("cmdAddNameCancel"))) {
    setObjectName(QStringLiteral("fraOwner"));
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
    txtbox[kSurname]->setText(owner->Prijmeni.value_or(QString()));
    for (const int index : {7, kSurname, 8, 10, 9})
        txtbox[index]->setEnabled(false);
    cmbOwners->setCurrentIndex(owners_->FindOwner(majitelID));
    FillBoxes();
}

void DogOwnerBox::FillBoxes() {
    const auto owner = OwnerByID(SelectedOwnerID());
    if (!owner)
        return;
    txtbox[7]->setText(owner->Jmeno);
    txtbox[8]->setText(owner->Ulice);
    txtbox[9]->setText(PostCodeText(owner->PSC));
    txtbox[10]->setText(owner->Mesto);
    txtbox[6]->setText(owner->Telefon);
    txtbox[11]->setText(owner->Email);
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
        box->clear();
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
        box->clear();
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
