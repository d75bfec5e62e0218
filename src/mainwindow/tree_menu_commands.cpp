// The pop-up menus' part of the tree's commands: which menu a node has, and what each entry does.

#include "app/module_values.h"
#include "mainwindow/main_tree.h"
#include "mainwindow/owner_highlight.h"
#include "mainwindow/tree_commands.h"
#include "mainwindow/tree_edits.h"
#include "mainwindow/tree_menus.h"
#include "mainwindow/window_opener.h"
#include "platform/platform.h"
#include "store/plemena.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

int Choose(const std::vector<MenuEntry>& menu) {
    return ThePlatform().menus->TrackPopup(menu);
}

} // namespace

void TreeCommands::ShowMenu(TreeNode* node) {
    if (!node)
        return ShowRootMenu();
    switch (node->Kind()) {
    case NodeKind::UnassignedRoot:
    case NodeKind::Ring:
        return ShowRingMenu(node);
    case NodeKind::Breed:
        return ShowBreedMenu(node);
    case NodeKind::Dog:
        return ShowDogMenu(node);
    case NodeKind::Class:
        return;
    }
}

void TreeCommands::ShowRootMenu() {
    using namespace root_menu;
    switch (Choose(RootMenu())) {
    case kAddRing:
        return AddRing();
    case kHideEmpty:
        return HideEmpty();
    case kShowAll:
        return ShowAll();
    case kClearColours:
        return nodes_.ClearAllColours();
    case kExpandAll:
        return tree_.ExpandEveryNode();
    case kCollapseAll:
        return tree_.CollapseEveryNode();
    case kFind:
        return Find();
    case kToggleDetail:
        return ToggleDetail();
    }
}

void TreeCommands::ShowRingMenu(TreeNode* ring) {
    using namespace ring_menu;
    switch (Choose(RingMenu(*ring))) {
    case kRename:
        return RenameInWindow(ring);
    case kRemove:
        if (edits_->Remove(ring))
            ShowSelected();
        return;
    }
}

void TreeCommands::ShowBreedMenu(TreeNode* breed) {
    using namespace breed_menu;
    const int chosen = Choose(BreedMenu(*breed));
    if (chosen == kAddDog)
        return AddDogToBreed(breed->Id());
    if (chosen >= kFciNone && chosen <= kFciLast) {
        SetBreedFci(breed->Id(), chosen - kFciNone);
        ShowSelected();
    }
}

void TreeCommands::ShowPaymentsOf(const TreeNode& dog) {
    ModuleValues& shared = Module();
    shared.CurrentDogID = dog.Id();
    shared.PaymentsOwner = 0;
    Open(u"frmUhrady"_s);
    ShowSelected();
}

void TreeCommands::ShowDogMenu(TreeNode* dog) {
    using namespace dog_menu;
    switch (Choose(DogMenu())) {
    case kRemove:
        if (edits_->Remove(dog))
            ShowSelected();
        return;
    case kTakePayment:
        Module().CurrentDogID = dog->Id();
        Open(u"frmPlatba"_s);
        return ShowSelected();
    case kPayments:
        return ShowPaymentsOf(*dog);
    case kHighlightOwner:
        return HighlightOwnersDogs(tree_);
    case kClearHighlight:
        return ClearHighlight(tree_);
    case kFirstClosing:
        edits_->SetFirstClosing(true);
        return ShowSelected();
    case kSecondClosing:
        edits_->SetFirstClosing(false);
        return ShowSelected();
    case kFirstDog:
        edits_->MakeFirstDog();
        return ShowSelected();
    }
}

} // namespace lorvo
