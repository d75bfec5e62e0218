// What other windows and the command bar ask of the main window.
#include "mainwindow/about_panel.h"
#include "mainwindow/fm_main.h"
#include "mainwindow/main_tree.h"
#include "mainwindow/node_panels.h"
#include "mainwindow/tree_commands.h"

namespace lorvo {

using namespace Qt::StringLiterals;

// What other windows ask --------------------------------------------------------------------------

QString fm_main::SelectedNode() const {
    const TreeNode* node = tvwMain->SelectedNode();
    return node ? node->Key() : QString();
}

bool fm_main::NodeExists(const QString& key) const {
    return nodes_.Find(key) != nullptr;
}

QString fm_main::NodeText(const QString& key) const {
    return nodes_.Get(key).text;
}

void fm_main::SelectNode(const QString& key) {
    tvwMain->SelectNode(&nodes_.Get(key));
}

void fm_main::MakeNodeVisible(const QString& key) {
    tvwMain->EnsureVisible(&nodes_.Get(key));
}

void fm_main::AddDogNode(const QString& parentKey, int psiID, const QString& text, bool male) {
    nodes_.AddDog(&nodes_.Get(parentKey), psiID, text, male);
}

void fm_main::SetNodeText(const QString& key, const QString& text) {
    nodes_.SetText(&nodes_.Get(key), text);
}

void fm_main::LoadData() {
    tvwMain->LoadData();
}

void fm_main::ShowNodeInfo(const QString& key) {
    picDetails->ShowNodeInfo(key);
}

void fm_main::SetItemTitle(const QString& text) {
    picDetails->SetTitle(text);
}

QString fm_main::Caption() const {
    return windowTitle();
}

// What commands ask -------------------------------------------------------------------------------

void fm_main::AddRing() {
    treeCommands_->AddRing();
}

void fm_main::AddDog() {
    treeCommands_->AddDogToSelected();
}

void fm_main::ShowAbout() {
    picDetails->SetTitle(u"O programu"_s);
    picDetails->BringToFront(picAbout);
    picAbout->ShowVersion();
    picDetails->SetPicture(QIcon());
}

void fm_main::FocusTree() {
    tvwMain->setFocus();
}

void fm_main::RefreshNodeOnShow() {
    const TreeNode* node = picDetails->NodeOnShow();
    if (!node)
        return;
    tvwMain->EnsureVisible(node);
    picDetails->Refresh();
}

void fm_main::SetHelpPointer(bool on) {
    if (on)
        setCursor(Qt::WhatsThisCursor);
    else
        unsetCursor();
}

} // namespace lorvo
