#include "mainwindow/tree_edits.h"

#include "app/main_window_services.h"
#include "app/module_values.h"
#include "app/start_up.h"
#include "office/tree/tree_nodes.h"
#include "platform/platform.h"
#include "store/data_module.h"
#include "store/kruhy.h"
#include "store/meny.h"
#include "store/ostatni.h"
#include "store/plemena.h"
#include "store/psi.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString kNoShowDate = u"Psa nelze přidat. Datum výstavy nebylo určeno"_s;

} // namespace

bool TreeEdits::Remove(TreeNode* node) {
    switch (node->Kind()) {
    case NodeKind::UnassignedRoot:
    case NodeKind::Ring:
        return RemoveRing(node);
    case NodeKind::Breed:
        return RemoveBreed(node);
    case NodeKind::Dog:
        return RemoveDog(node);
    case NodeKind::Class:
        break;
    }
    return false;
}

bool TreeEdits::RemoveRing(TreeNode* ring) {
    if (CountBreedsOfRing(ring->Id()) != 0) {
        Stop(u"Tento kruh nelze odstranit, obsahuje položky"_s);
        return false;
    }
    if (!Confirm(u"Určitě chcete odstranit kruh %1?"_s.arg(ring->text)))
        return false;
    DeleteRing(ring->Id());
    nodes_.Remove(ring);
    return true;
}

bool TreeEdits::RemoveBreed(TreeNode* breed) {
    if (CountDogsOfBreed(breed->Id()) != 0) {
        Stop(u"Toto plemeno nelze odstranit"_s);
        return false;
    }
    if (!Confirm(u"Určitě chcete odstranit plemeno %1?"_s.arg(breed->text)))
        return false;
    DeleteBreed(breed->Id());
    nodes_.Remove(breed);
    return true;
}

bool TreeEdits::RemoveDog(TreeNode* dog) {
    if (!Confirm(u"Určitě chcete ze seznamu odstranit psa %1?"_s.arg(dog->text)))
        return false;
    DeleteDog(dog->Id());
    nodes_.Remove(dog);
    return true;
}

void TreeEdits::Rename(TreeNode* node, const QString& name) {
    if (node->Kind() == NodeKind::Breed)
        RenameBreed(node->Id(), name);
    else if (node->Kind() == NodeKind::Ring)
        RenameRing(node->Id(), name);
    nodes_.SetText(node, name);
}

// kept: drop-moves-before-it-stores
void TreeEdits::Drop(TreeNode* dragged, TreeNode* target) {
    const bool onRing =
        target->Kind() == NodeKind::Ring || target->Kind() == NodeKind::UnassignedRoot;
    if (dragged->Kind() == NodeKind::Breed && onRing) {
        nodes_.Move(dragged, target);
        nodes_.SetBold(dragged, true);
        MoveBreedToRing(dragged->Id(), target->Id());
    } else if (dragged->IsDog() && target->Kind() == NodeKind::Breed) {
        nodes_.Move(dragged, target);
        MoveDogToBreed(dragged->Id(), target->Id());
    }
}

void TreeEdits::SetFirstClosing(bool first) {
    lorvo::SetFirstClosing(Module().CurrentDogID, first);
}

void TreeEdits::MakeFirstDog() {
    EditRun run(TheDataModule().Conn1); // the mark before must not go alone
    const ModuleValues& shared = Module();
    ClearFirstDogs(shared.CurrentOwner);
    MarkFirstDog(shared.CurrentDogID);
    run.Finish();
}

// kept: numbers-block-by-first-row
bool TreeEdits::MayAddDog() {
    if (MainCurrencies().empty()) {
        Exclaim(u"Psa nelze přidat. V seznamu měn není zadána hlavní měna"_s);
        return false;
    }
    if (NumberOfFirstRow().value_or(0) > 0) {
        Exclaim(u"Psa nelze přidat. Psi mají přiřazena čísla"_s);
        return false;
    }
    EnsureShow();
    // A date never given (Null) passes: only the value 0, which a cleared database holds, is none.
    const std::optional<Ostatni> values = ShowWideValues();
    if (!values || (values->DatumVystavy && values->DatumVystavy->IsZero())) {
        Exclaim(kNoShowDate);
        return false;
    }
    return true;
}

bool TreeEdits::HasShowDateRow() {
    if (ShowWideValues())
        return true;
    Exclaim(kNoShowDate);
    return false;
}

bool TreeEdits::Confirm(const QString& question) {
    return Show(question, MessageIcon::Question, MessageButtons::YesNoCancel) == MessageAnswer::Yes;
}

void TreeEdits::Stop(const QString& text) {
    Show(text, MessageIcon::Stop);
}

void TreeEdits::Exclaim(const QString& text) {
    Show(text, MessageIcon::Exclamation);
}

MessageAnswer TreeEdits::Show(const QString& text, MessageIcon icon, MessageButtons buttons) {
    return ThePlatform().messages->Show(text, icon, buttons, window_.Caption());
}

} // namespace lorvo
