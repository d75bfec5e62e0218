#include "dogs/fm_Dog.h"

#include "app/main_window_services.h"
#include "app/module_values.h"
#include "dogs/dog_class_box.h"
#include "dogs/dog_owner_box.h"
#include "dogs/stored_texts_combo.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "office/dogs/dog_saving.h"
#include "office/texts/post_code.h"
#include "office/tree/node_key.h"
#include "platform/failure_guard.h"

#include <QComboBox>
#include <QRadioButton>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// ID of the dog whose node is selected in the tree; 0 when no node or none of a dog is.
int SelectedDog() {
    return NodeKey::IdIn(TheMainWindow().SelectedNode(), NodeKind::Dog).value_or(0);
}

} // namespace

void fm_Dog::Load() {
    classes_->NameClasses();
    icStanice->SetTexts(DistinctKennels());
    icOtec->SetTexts(DistinctFathers());
    icMatka->SetTexts(DistinctMothers());
    owner_->LoadMajitele();
    if (!task_.adding) {
        setWindowTitle(u"Upravit psa"_s);
        const int selected = Module().CurrentDogID = SelectedDog();
        if (selected == 0)
            return;
        const Psi dog = ExistingDog(selected);
        ShowDog(dog);
        owner_->ShowOwnerOfDog(dog.MajitelID);
    }
    UpdateClasses();
    Connect(dtBorn, &QDateEdit::dateChanged, this, &fm_Dog::UpdateClasses);
    Connect(dtBorn, &QDateEdit::editingFinished, classes_, &DogClassBox::SettleChoice);
}

void fm_Dog::ShowDog(const Psi& dog) {
    txtbox[0]->setText(dog.Jmeno);
    colour_ = KeptColour(dog.BarvaID);
    optGender[dog.PohlaviPes ? 0 : 1]->setChecked(true);
    if (dog.DatumNar)
        SetPickedDate(*dtBorn, *dog.DatumNar);
    classes_->Choose(dog.Trida);
    icStanice->setEditText(dog.ChovnaStanice);
    icOtec->setEditText(dog.Otec);
    icMatka->setEditText(dog.Matka);
    txtbox[1]->setText(dog.Chovatel);
    txtbox[2]->setText(dog.PK);
    txtbox[3]->setText(dog.Poznamka);
    firstClosing_ = dog.PrvniUzaverka;
}

void fm_Dog::UpdateClasses() {
    classes_->UpdateClassButtons(PickedDate(*dtBorn));
    if (!dtBorn->hasFocus())
        classes_->SettleChoice();
    UpdateOKButton();
}

void fm_Dog::UpdateOKButton() {
    cmd_OK->setEnabled(classes_->Chosen() > 0 && !txtbox[0]->text().isEmpty());
}

bool fm_Dog::Refuse(const QString& reason) const {
    lorvo::Refuse(*this, reason);
    return false;
}

bool fm_Dog::CheckPostCode() {
    const QString cleaned = CleanedPostCode(owner_->PostCodeBox().text());
    owner_->PostCodeBox().setText(cleaned);
    return PostCodeFromText(cleaned).has_value() || Refuse(u"Chyba v zadání PSČ"_s);
}

bool fm_Dog::CheckOwner() {
    if (owner_->NameBox().text().isEmpty())
        return Refuse(u"Jméno  majitele musí být vyplněno"_s);
    // A name typed over the boxes of nobody would leave the dog without an owner.
    return owner_->HasOwner() ||
           Refuse(u"Pes nemá majitele. Vyberte ho v seznamu, nebo ho zadejte po "
                  "stisku tlačítka „Přidat nového“."_s);
}

Psi fm_Dog::DogFromBoxes() const {
    Psi dog;
    dog.ID = SelectedDog();
    dog.PlemenoID = task_.breedID;
    dog.Jmeno = txtbox[0]->text();
    dog.BarvaID = colour_;
    dog.PohlaviPes = optGender[0]->isChecked();
    dog.DatumNar = PickedDate(*dtBorn);
    dog.ChovnaStanice = icStanice->currentText();
    dog.Otec = icOtec->currentText();
    dog.Matka = icMatka->currentText();
    dog.PK = txtbox[2]->text();
    dog.Poznamka = txtbox[3]->text();
    dog.Chovatel = txtbox[1]->text();
    dog.PrvniUzaverka = firstClosing_;
    dog.MajitelID = owner_->SelectedOwnerID();
    dog.Trida = classes_->Chosen();
    return dog;
}

void fm_Dog::OK() {
    if (!CheckPostCode() || !CheckOwner())
        return;
    SaveDog({task_.adding, DogFromBoxes(), owner_->Boxes(), owner_->IsNewOwner()});
    accept();
}

} // namespace lorvo
