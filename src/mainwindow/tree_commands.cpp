#include "mainwindow/tree_commands.h"

#include "app/main_window_services.h"
#include "app/module_values.h"
#include "app/view_preferences.h"
#include "mainwindow/main_tree.h"
#include "mainwindow/tree_edits.h"
#include "mainwindow/tree_search.h"
#include "mainwindow/window_opener.h"
#include "office/tree/tree_loader.h"
#include "platform/failure_guard.h"
#include "store/kruhy.h"

namespace lorvo {

using namespace Qt::StringLiterals;

TreeCommands::TreeCommands(MainTree& tree, MainWindowServices& window, TreeSearch& search,
                           QObject* parent)
    : QObject(parent), tree_(tree), nodes_(tree.Nodes()), window_(window), search_(search),
      edits_(std::make_unique<TreeEdits>(nodes_, window)) {
    const auto show = [this](TreeNode* node) {
        window_.ShowNodeInfo(node->Key());
    };
    Connect(&tree_, &MainTree::NodeClick, this, show);
    Connect(&tree_, &MainTree::NodeCollapse, this, show);
    Connect(&tree_, &MainTree::NodeDoubleClick, this, &TreeCommands::EditDog);
    Connect(&tree_, &MainTree::RightClick, this, &TreeCommands::ShowMenu);
    Connect(&tree_, &MainTree::DeletePressed, this, [this] {
        if (TreeNode* node = tree_.SelectedNode())
            edits_->Remove(node);
    });
    Connect(&tree_, &MainTree::RenamePressed, this, &TreeCommands::RenameSelected);
    Connect(&tree_, &MainTree::FindPressed, this, &TreeCommands::Find);
    Connect(&tree_, &MainTree::FindNextPressed, this, &TreeCommands::FindNext);
    Connect(&tree_, &MainTree::HomePressed, this, [this] { search_.start = 1; });
    Connect(&tree_, &MainTree::KeyDone, this, &TreeCommands::ShowSelected);
    Connect(&tree_, &MainTree::LabelEdited, this, &TreeCommands::StoreEditedText);
    // After the pending events, when the edit box has gone.
    Connect(&tree_, &MainTree::LabelEditEnded, this, &TreeCommands::ShowSelected,
            Qt::QueuedConnection);
    Connect(&tree_, &MainTree::NodeDropped, this,
            [this](TreeNode* dragged, TreeNode* target) { edits_->Drop(dragged, target); });
}

TreeCommands::~TreeCommands() = default;

// kept: new-ring-not-bold
void TreeCommands::AddRing() {
    const QString name = u"Nový kruh"_s;
    TreeNode* ring = nodes_.AddRingWithoutKey(name);
    nodes_.GiveKey(ring, InsertRing(name));
    tree_.SelectNode(ring);
    tree_.StartLabelEdit(ring);
}

void TreeCommands::StoreEditedText(TreeNode* node, const QString& text) {
    if (text.isEmpty())
        return;
    const QString name = text.trimmed();
    edits_->Rename(node, name);
    window_.SetItemTitle(name);
}

void TreeCommands::RenameSelected() {
    TreeNode* node = tree_.SelectedNode();
    if (node && node->Kind() == NodeKind::Ring)
        RenameInWindow(node);
}

void TreeCommands::RenameInWindow(TreeNode* ring) {
    tree_.SelectNode(ring);
    if (ring->text != UnassignedRootText())
        Open(u"frmNazevKruhu"_s);
}

void TreeCommands::HideEmpty() {
    const TreeNode* selected = tree_.SelectedNode();
    // Backwards, so that a breed emptied of its classes goes too, and then its ring.
    for (TreeNode* node = nodes_.Last(); node;) {
        TreeNode* previous = nodes_.Previous(node);
        if (node->children.empty() && !node->IsDog())
            nodes_.Remove(node);
        node = previous;
    }
    if (selected != tree_.SelectedNode())
        ShowSelected();
}

void TreeCommands::ShowAll() {
    const TreeNode* selected = tree_.SelectedNode();
    const QString key = selected ? selected->Key() : QString();
    window_.LoadData();
    if (const TreeNode* node = nodes_.Find(key))
        tree_.EnsureVisible(node);
}

// kept: detail-without-entry
void TreeCommands::ToggleDetail() {
    bool& detail = window_.Look().dogDetailInTree;
    detail = !detail;
    window_.LoadData();
}

void TreeCommands::Find() {
    Open(u"frmFind"_s, &search_);
}

void TreeCommands::FindNext() {
    if (search_.text.isEmpty())
        return Find();
    SelectNextMatch(search_, window_);
}

void TreeCommands::AddDogToBreed(int breedID) {
    if (edits_->MayAddDog())
        OpenDogWindow({true, breedID});
}

// kept: add-dog-asks-less
void TreeCommands::AddDogToSelected() {
    const TreeNode* node = tree_.SelectedNode();
    if (node && node->IsDog())
        node = node->parent->Kind() == NodeKind::Class ? node->parent->parent : node->parent;
    if (!node || node->Kind() != NodeKind::Breed)
        return edits_->Exclaim(u"Není vybráno plemeno, do kterého se má pes přidat"_s);
    if (edits_->HasShowDateRow())
        OpenDogWindow({true, node->Id()});
}

void TreeCommands::EditDog(const TreeNode* dog) {
    // The parent bears the breed's number, be it the breed or one of its classes.
    if (dog->IsDog())
        OpenDogWindow({false, dog->parent->Id()});
}

void TreeCommands::OpenDogWindow(const DogTask& task) {
    Module().CurrentBreedID = task.breedID;
    Open(u"fm_Dog"_s, task);
}

void TreeCommands::ShowSelected() {
    if (const TreeNode* node = tree_.SelectedNode())
        window_.ShowNodeInfo(node->Key());
}

} // namespace lorvo
