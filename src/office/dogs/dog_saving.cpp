#include "office/dogs/dog_saving.h"

#include "app/main_window_services.h"
#include "app/module_values.h"
#include "app/view_preferences.h"
#include "office/texts/dog_texts.h"
#include "office/tree/node_key.h"
#include "platform/values/left_text.h"
#include "store/barvy.h"
#include "store/psi_ve_vystavach.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString kNoColour = u"Nezadáno"_s;

int OwnerOfEntry(const DogEntry& entry) {
    if (!entry.newOwner)
        return entry.dog.MajitelID;
    return InsertOwner(entry.owner);
}

/// Stores the dog; returns the number that its row had before.
int StoreDog(Psi& dog, bool adding) {
    int& current = Module().CurrentDogID;
    if (adding) {
        current = 0;
        current = dog.ID = InsertDog(dog);
        return 0;
    }
    current = dog.ID;
    const auto before = DogByID(dog.ID);
    UpdateDog(dog);
    return before ? before->Cislo.value_or(0) : 0;
}

void AddNode(const Psi& dog) {
    MainWindowServices& window = TheMainWindow();
    const NodeKey parent = window.Look().showClasses ? NodeKey::Class(dog.PlemenoID, dog.Trida)
                                                     : NodeKey::Breed(dog.PlemenoID);
    window.AddDogNode(parent.ToText(), dog.ID, LeftText(dog.Jmeno, kJmenoWidth), dog.PohlaviPes);
}

void PatchNode(const Psi& dog, int cislo) {
    MainWindowServices& window = TheMainWindow();
    const QString node = window.SelectedNode();
    const QString name = LeftText(dog.Jmeno, kJmenoWidth);
    window.ShowNodeInfo(node);
    window.SetItemTitle(FullName(name, dog.ChovnaStanice));
    window.SetNodeText(node, cislo > 0 ? name + u' ' + QString::number(cislo) : name);
}

/// Sees to it that the name in the owner's box stands among the owners.
// kept: second-owner-without-surname
void AddMissingOwner(const Majitele& boxes) {
    if (boxes.Jmeno.isEmpty() || !OwnersNamed(boxes.Jmeno.trimmed()).empty())
        return;
    Majitele owner = boxes;
    owner.Prijmeni.reset();
    InsertOwner(owner);
}

} // namespace

int KeptColour(int barvaID) {
    if (barvaID == 0)
        return 0;
    const auto colour = ColourByID(barvaID);
    return colour && !colour->Nazev.isEmpty() && colour->Nazev != kNoColour ? barvaID : 0;
}

// kept: saving-a-dog-empties-its-shows
void SaveDog(const DogEntry& entry) {
    Psi dog = entry.dog;
    dog.MajitelID = OwnerOfEntry(entry);
    const int cislo = StoreDog(dog, entry.adding);
    if (entry.adding && CountDogsOfOwner(dog.MajitelID) == 1)
        MarkFirstDog(dog.ID);
    if (entry.adding)
        AddNode(dog);
    else
        PatchNode(dog, cislo);
    AddMissingOwner(entry.owner);
    DeleteShowsOfDog(dog.ID);
    TheMainWindow().SelectNode(NodeKey::Dog(dog.ID).ToText());
}

} // namespace lorvo
