#include "setup/fm_Plemena.h"

#include "app/module_values.h"
#include "forms/command_collection.h"
#include "forms/controls.h"
#include "forms/messages.h"
#include "office/texts/dog_texts.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"
#include "setup/breed_register.h"
#include "setup/breed_tree.h"
#include "setup/frmNovePlemeno.h"
#include "store/plemena.h"
#include "store/psi.h"

#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace lorvo {

using namespace Qt::StringLiterals;

fm_Plemena::fm_Plemena(QWidget* parent)
    : Form("fm_Plemena", u"Seznam plemen"_s, Border::Sizable, parent),
      commands_(new CommandCollection(u"PLEMENA"_s, {u"PLEMENA"_s}, this)),
      tvwPlemena(new BreedTree("tvwPlemena",
                               {{kBreedName, u"Název (Původní název)"_s},
                                {kBreedRing, u"V kruhu:"_s},
                                {kBreedFci, u"FCI"_s},
                                {kBreedDogs, u"Počet psů"_s},
                                {kBreedUsed, u"Používat"_s},
                                {kBreedOwn, u"Vlastní"_s}},
                               this)),
      status_(Named(new QLabel(this), u"sbPlemena(1)"_s)) {
    BuildControls();
    BreedTreeModel& model = tvwPlemena->Model();
    model.SetEditable(true);
    Connect(&model, &BreedTreeModel::Ticked, this, &fm_Plemena::Tick);
    Connect(commands_, &CommandCollection::CommandClick, this, &fm_Plemena::CarryOut);
    Connect(tvwPlemena, &BreedTree::DeletePressed, this, &fm_Plemena::DeleteSelected);
    Connect(tvwPlemena, &BreedTree::RightClick, this, &fm_Plemena::ShowMenu);
    Connect(tvwPlemena, &BreedTree::BeforeLabelEdit, this,
            [this](BreedNode* node, bool* cancel) { RefuseBaseBreed(*node, cancel); });
    Connect(tvwPlemena, &BreedTree::AfterLabelEdit, this,
            [this](BreedNode* node, const QString& text, bool* cancel) {
                StoreTitle(*node, text, cancel);
            });
}

void fm_Plemena::BuildControls() {
    auto* sbPlemena = Named(new QStatusBar(this), u"sbPlemena"_s);
    sbPlemena->addWidget(status_, 1);
    sbPlemena->setSizeGripEnabled(false);
    auto* column = new QVBoxLayout(this);
    column->addWidget(commands_->MakeBar(u"PLEMENA"_s, this));
    column->addWidget(tvwPlemena);
    column->addWidget(sbPlemena);
    resize(940, 600);
    tvwPlemena->setFocus();
}

void fm_Plemena::Load() {
    tvwPlemena->FollowGridPreference();
    LoadTree();
}

void fm_Plemena::LoadTree() {
    Module().BreedsDirty = false;
    result_ = {};
    const WaitCursor waiting = Waiting();
    tvwPlemena->Model().SetNodes(ReadRegister(HideUnused));
    ShowStatus();
}

void fm_Plemena::ShowStatus() {
    status_->setText(RegisterStatus(CountBreeds(), CountUsedBreeds()));
}

void fm_Plemena::CarryOut(const QString& command) {
    if (command == u"PLEMENA:ADD") {
        AddSubgroup();
    } else if (command == u"PLEMENA:EDIT") {
        RenameSelected();
    } else if (command == u"PLEMENA:DELETE") {
        DeleteSelected();
    } else if (command == u"PLEMENA:HELP") {
        ShowHelp();
    } else if (command == u"PLEMENA:HIDEUNUSED") {
        HideUnused = !HideUnused;
        LoadTree();
    }
}

QString fm_Plemena::TickRefusal(const BreedNode& node, bool* tickAfterRefusal) const {
    *tickAfterRefusal = false;
    if (node.cells[kBreedDogs].toInt() > 0) {
        *tickAfterRefusal = true;
        return u"Plemeno nelze skrýt, je použito v %1 případech."_s.arg(node.cells[kBreedDogs]);
    }
    if (node.parent && node.parent->checked)
        return u"Nelze použít skupinu, protože je použito nadřazené plemeno."_s;
    for (const auto& subgroup : node.children) {
        if (subgroup->checked)
            return u"Nelze použít plemeno, protože je použita některá z podskupin."_s;
    }
    return {};
}

void fm_Plemena::Tick(int ID) {
    result_.changed = true;
    BreedTreeModel& model = tvwPlemena->Model();
    BreedNode& node = *model.Find(ID);
    bool tickAfterRefusal = false;
    const QString refusal = TickRefusal(node, &tickAfterRefusal);
    if (!refusal.isEmpty()) {
        if (tickAfterRefusal)
            model.SetChecked(node, true);
        Inform(*this, refusal);
        model.SetChecked(node, tickAfterRefusal);
        return;
    }
    if (SetBreedUsed(ID, node.checked)) {
        model.SetCell(node, kBreedUsed, YesNo(node.checked));
        model.SetInUse(node, node.checked);
        Module().BreedsDirty = true;
    }
    ShowStatus();
}

// kept: storno-leaves-the-new-breed
void fm_Plemena::AddSubgroup() {
    BreedNode* breed = tvwPlemena->SelectedNode();
    if (!breed || breed->parent)
        return;
    const QString name = u"Nové plemeno"_s;
    auto node = std::make_unique<BreedNode>();
    node->ID = InsertSubgroup(breed->ID, name);
    node->cells[kBreedName] = name;
    node->cells[kBreedRing] = UnassignedText();
    node->cells[kBreedFci] = QString::number(ExistingBreed(node->ID).FCI);
    node->cells[kBreedDogs] = u"0"_s;
    node->blue = true;
    const BreedNode& added = *tvwPlemena->Model().AddChild(*breed, std::move(node));
    tvwPlemena->SelectNode(added);
    ThePlatform().ui->ProcessEvents();
    OpenNaming(added.ID);
}

void fm_Plemena::RenameSelected() {
    const BreedNode* node = tvwPlemena->SelectedNode();
    if (!node)
        return;
    if (!node->blue)
        return Inform(*this, u"Základní plemena nelze přejmenovat"_s);
    OpenNaming(node->ID);
}

void fm_Plemena::OpenNaming(int ID) {
    frmNovePlemeno window(ID, this);
    OpenModal(window);
    if (!window.Result())
        return;
    Module().BreedsDirty = true;
    if (BreedNode* node = tvwPlemena->Model().Find(ID))
        tvwPlemena->Model().SetCell(*node, kBreedName, *window.Result());
}

void fm_Plemena::DeleteSelected() {
    BreedNode* node = tvwPlemena->SelectedNode();
    if (!node)
        return;
    if (!node->blue)
        return Inform(*this, u"Základní plemena nelze mazat"_s);
    if (const int dogs = CountDogsOfBreed(node->ID))
        return Refuse(*this,
                      u"Toto plemeno není možno smazat, protože je použito (%1x)"_s.arg(dogs));
    if (Ask(*this, u"Skutečně smazat?"_s, MessageButtons::YesNoCancel) != MessageAnswer::Yes)
        return;
    DeleteBreed(node->ID);
    tvwPlemena->Model().Remove(*node);
    // The toolkit goes on to the next breed, which a second Delete would then be about.
    tvwPlemena->clearSelection();
    Module().BreedsDirty = true;
}

void fm_Plemena::ShowHelp() {
    Inform(*this,
           u"V seznamu jsou všechna plemena podle oficiálního seznamu FCI.\n"
           u"Zatrhněte ta plemena, která chcete vystavovat.\n"
           u"Pro každé z plemen můžete vytvořit libovolný počet podskupin - např. Pudl černý, Pudl "
           u"hnědý, z nichž každá bude v hlavním stromu zobrazena jako nezávislý uzel. To může být "
           u"užitečné, pokud děláte výstavy jednoho nebo jen několika málo plemen.\n"
           u"Pozor! Nelze používat zároveň plemeno a jeho podskupiny."_s);
}

void fm_Plemena::RefuseBaseBreed(const BreedNode& node, bool* cancel) {
    if (node.cells[kBreedOwn] != YesNo(false))
        return;
    *cancel = true;
    Inform(*this, u"Toto plemeno nelze přejmenovat, název je převzat z FCI."_s);
}

void fm_Plemena::StoreTitle(BreedNode& node, const QString& text, bool* cancel) {
    *cancel = text.isEmpty() || CountBreedsNamed(text) > 0;
    if (*cancel)
        return Refuse(*this, text.isEmpty() ? u"Název musí být zadán!"_s
                                            : u"Tento název plemene již existuje!"_s);
    RenameBreed(node.ID, text);
    tvwPlemena->Model().SetCell(node, kBreedName, text);
    Module().BreedsDirty = true;
    status_->setText(u"Celkem %1 plemen."_s.arg(CountBreeds()));
}

void fm_Plemena::ShowMenu() {
    const BreedNode* selected = tvwPlemena->SelectedNode();
    if (!selected)
        return;
    const int number = ThePlatform().menus->TrackPopup(RegisterMenu(*selected));
    if (number != 0)
        CarryOutMenu(*tvwPlemena->SelectedNode(), number);
}

void fm_Plemena::CarryOutMenu(BreedNode& node, int number) {
    if (number >= kMenuFci && number <= kMenuFci + kFciGroups) {
        AssignFci(node, number - kMenuFci);
    } else if (number >= kMenuRing && number < kMenuFci) {
        AssignRing(node, number - kMenuRing);
    } else if (number == kMenuDelete) {
        result_.changed = true;
        DeleteSelected();
    } else if (number == kMenuJump) {
        result_.jumpTo = node.ID;
        accept();
    }
}

// kept: unassigned-word-in-wrong-cell
void fm_Plemena::AssignFci(BreedNode& node, int fci) {
    result_.changed = true;
    SetBreedFci(node.ID, fci);
    // Meant so: taking a group away writes its word into the column "Používat" and leaves
    // the old number standing until the tree is read again.
    if (fci == 0)
        tvwPlemena->Model().SetCell(node, kBreedUsed, FciText(0));
    else
        tvwPlemena->Model().SetCell(node, kBreedFci, QString::number(fci));
}

void fm_Plemena::AssignRing(BreedNode& node, int kruhID) {
    result_.changed = true;
    MoveBreedToRing(node.ID, kruhID);
    tvwPlemena->Model().SetCell(node, kBreedRing, RingName(kruhID));
}

} // namespace lorvo
