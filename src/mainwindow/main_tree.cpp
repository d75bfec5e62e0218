#include "mainwindow/main_tree.h"

#include "app/common_routines.h"
#include "app/view_preferences.h"
#include "forms/controls.h"
#include "forms/light_palette.h"
#include "mainwindow/node_delegate.h"
#include "office/tree/tree_loader.h"
#include "platform/failure_guard.h"

#include <QSignalBlocker>
#include <utility>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPictureSize = 16;

TreeModel::Icons NodeIcons() {
    return {ProgramIcon(u"ring"_s), ProgramIcon(u"breed"_s), ProgramIcon(u"class"_s),
            ProgramIcon(u"dog"_s), ProgramIcon(u"root"_s)};
}

} // namespace

MainTree::MainTree(TreeNodes& nodes, const ViewPreferences& look, QWidget* parent)
    : QTreeView(parent), nodes_(nodes), model_(new TreeModel(nodes, this)),
      delegate_(new NodeDelegate(this)), look_(look) {
    setObjectName(u"tvwMain"_s);
    setAccessibleName(u"Kruhy, plemena a psi"_s);
    model_->SetIcons(NodeIcons());
    setModel(model_);
    setItemDelegate(delegate_);
    KeepLight(*this);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setIconSize({kPictureSize, kPictureSize});
    setExpandsOnDoubleClick(false);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setDragDropMode(DragDrop);
    setDragDropOverwriteMode(true); // a drop lands on a node, never between two

    Connect(this, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT NodeClick(TreeModel::NodeAt(index)); });
    Connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.isValid())
            Q_EMIT NodeDoubleClick(TreeModel::NodeAt(index));
    });
    Connect(this, &QTreeView::collapsed, this,
            [this](const QModelIndex& index) { Q_EMIT NodeCollapse(TreeModel::NodeAt(index)); });
    Connect(model_, &TreeModel::LabelEdited, this, &MainTree::LabelEdited);
}

void MainTree::LoadData() {
    const TreeNode* current = TreeModel::NodeAt(currentIndex());
    const QString key = current ? current->Key() : QString();
    LoadTree(nodes_, look_);
    SetCurrent(nodes_.Find(key));
    if (!look_.showClasses)
        return;
    const QString expanded = ReadRegValue(u"Sys"_s, u"ExpandedItems"_s);
    for (const TreeNode* node : NodesToExpand(nodes_, expanded))
        expand(model_->IndexOf(node));
}

TreeNode* MainTree::SelectedNode() const {
    return TreeModel::NodeAt(selectionModel()->selectedIndexes().value(0));
}

void MainTree::SelectNode(const TreeNode* node) {
    selectionModel()->setCurrentIndex(model_->IndexOf(node), QItemSelectionModel::ClearAndSelect);
    EnsureVisible(node);
}

void MainTree::EnsureVisible(const TreeNode* node) {
    for (const TreeNode* above = node->parent; above; above = above->parent)
        expand(model_->IndexOf(above));
    scrollTo(model_->IndexOf(node));
}

void MainTree::ExpandEveryNode() {
    // The view's own expandAll would note each dog as expanded too, and every such note is looked
    // through whenever a node goes. With a layout pending, all is laid out once at the end.
    scheduleDelayedItemsLayout();
    for (const TreeNode* node = nodes_.First(); node; node = nodes_.Next(node))
        if (!node->children.empty())
            expand(model_->IndexOf(node));
}

void MainTree::CollapseEveryNode() {
    // The view tells of each node, leaves among them, in an order that means nothing.
    const QSignalBlocker quiet(this);
    collapseAll();
}

QStringList MainTree::ExpandedKeys() const {
    QStringList keys;
    for (const TreeNode* node = nodes_.First(); node; node = nodes_.Next(node))
        if (!node->children.empty() && isExpanded(model_->IndexOf(node)))
            keys.append(node->Key());
    return keys;
}

void MainTree::StartLabelEdit(const TreeNode* node) {
    QTreeView::edit(model_->IndexOf(node), AllEditTriggers, nullptr);
}

bool MainTree::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        return trigger != AllEditTriggers && QTreeView::edit(index, trigger, event);
    });
}

void MainTree::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    Guarded([&] {
        QTreeView::closeEditor(editor, hint);
        Q_EMIT LabelEditEnded();
    });
}

void MainTree::SetSelectionBarShown(bool shown) {
    delegate_->selectionBarShown = shown;
    viewport()->update();
}

bool MainTree::IsSelectionBarShown() const {
    return delegate_->selectionBarShown;
}

void MainTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
    // The bar left of a node is the row's, not the delegate's.
    QStyleOptionViewItem row(option);
    if (!IsSelectionBarShown())
        row.palette.setBrush(QPalette::Highlight, Qt::transparent);
    QTreeView::drawRow(painter, row, index);
}

} // namespace lorvo
