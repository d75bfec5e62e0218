#include "mainwindow/owner_navigation.h"

#include "app/module_values.h"
#include "mainwindow/main_tree.h"
#include "mainwindow/node_panels.h"
#include "mainwindow/owner_highlight.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "store/psi.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

// Numbers of the menu's entries; a positive one is a dog's ID.
constexpr int kHighlightNumber = -1;
constexpr int kClearNumber = -3;

MenuEntry Entry(int number, const QString& text) {
    MenuEntry entry;
    entry.number = number;
    entry.text = text;
    return entry;
}

/// All dogs of the owner of a dog, which is marked among them.
std::vector<MenuEntry> MenuAround(int psiID) {
    const std::optional<int> owner = OwnerOfDog(psiID);
    if (!owner)
        throw StoreError("V tabulce Psi není řádek s číslem " + std::to_string(psiID) + ".");
    std::vector<MenuEntry> entries;
    for (const Psi& dog : DogsOfOwner(*owner)) {
        entries.push_back(Entry(dog.ID, dog.Jmeno));
        entries.back().checked = dog.ID == psiID;
    }
    entries.push_back(MenuEntry::Separator());
    entries.push_back(Entry(kHighlightNumber, u"Zvýraznit všechny psy tohoto majitele"_s));
    entries.push_back(Entry(kClearNumber, u"Zrušit zvýraznění"_s));
    return entries;
}

} // namespace

OwnerNavigation::OwnerNavigation(MainTree& tree, NodePanels& panels)
    : tree_(tree), panels_(panels) {}

void OwnerNavigation::GoToDog(const QString& key) {
    const TreeNode* node = tree_.Nodes().Find(key);
    if (!node)
        return;
    tree_.SelectNode(node);
    panels_.ShowNodeInfo(*node);
    tree_.setFocus();
    // Taking the keyboard may have moved the selection.
    tree_.SelectNode(node);
}

void OwnerNavigation::ShowDogMenu() {
    CarryOut(ThePlatform().menus->TrackPopup(MenuAround(Module().CurrentDogID)));
    panels_.ShowSelectedNode();
}

void OwnerNavigation::SelectDog(const QString& key) {
    if (const TreeNode* node = tree_.Nodes().Find(key))
        tree_.SelectNode(node);
}

void OwnerNavigation::CarryOut(int number) {
    if (number > 0)
        SelectDog(NodeKey::Dog(number).ToText());
    else if (number == kHighlightNumber)
        HighlightOwnersDogs(tree_);
    else if (number == kClearNumber)
        ClearHighlight(tree_);
}

} // namespace lorvo
