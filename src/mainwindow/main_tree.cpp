#include "mainwindow/main_tree.h"

#include "app/common_routines.h"
#include "app/module_values.h"
#include "forms/controls.h"
#include "forms/keyboard_menu.h"
#include "mainwindow/node_delegate.h"
#include "office/tree/tree_loader.h"
#include "platform/failure_guard.h"

#include <QDrag>
#include <QDragMoveEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

namespace lorvo {

namespace {

constexpr int kPictureSize = 16;
/// A short name stays an easy target for the mouse.
constexpr int kLeastNodeWidth = 64;

TreeModel::Icons NodeIcons() {
    return {ProgramIcon(QStringLiteral("ring")), ProgramIcon(QStringLiteral("breed")),
            ProgramIcon(QStringLiteral("class")), ProgramIcon(QStringLiteral("dog")),
            ProgramIcon(QStringLiteral("root"))};
}

/// The colours of the nodes carry meaning and are made for black on white.
QPalette LightPalette(QPalette palette) {
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

} // namespace

MainTree::MainTree(TreeNodes& nodes, QWidget* parent)
    : QTreeView(parent), nodes_(nodes), model_(new TreeModel(nodes, this)),
      delegate_(new NodeDelegate(this)) {
    setObjectName(QStringLiteral("tvwMain"));
    setAccessibleName(QStringLiteral("Kruhy, plemena a psi"));
    model_->SetIcons(NodeIcons());
    setModel(model_);
    setItemDelegate(delegate_);
    setPalette(LightPalette(palette()));
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
    LoadTree(nodes_);
    SetCurrent(nodes_.Find(key));
    if (!Module().ShowClassesOn)
        return;
    const QString expanded = ReadRegValue(QStringLiteral("Sys"), QStringLiteral("ExpandedItems"));
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

// Where the keyboard stands; nothing is selected, opened or scrolled by it.
void MainTree::SetCurrent(const TreeNode* node) {
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(model_->IndexOf(node), QItemSelectionModel::NoUpdate);
    setAutoScroll(true);
}

void MainTree::BringCurrentInSight() {
    const TreeNode* inSight = TreeModel::NodeAt(currentIndex());
    for (const TreeNode* above = inSight; above; above = above->parent)
        if (above->parent && !isExpanded(model_->IndexOf(above->parent)))
            inSight = above->parent;
    if (inSight != TreeModel::NodeAt(currentIndex()))
        SetCurrent(inSight);
}

// The view takes the first node for the current one as soon as it has the keyboard, so that these
// keys would find nothing to do on it or pass it by.
bool MainTree::GoesToFirstNode(const QKeyEvent& event) const {
    const TreeNode* current = TreeModel::NodeAt(currentIndex());
    const bool isKey = event.key() == Qt::Key_Home || event.key() == Qt::Key_Down;
    return isKey && !SelectedNode() && (!current || current == nodes_.First());
}

QStringList MainTree::ExpandedKeys() const {
    QStringList keys;
    for (const TreeNode* node = nodes_.First(); node; node = nodes_.Next(node))
        if (!node->children.empty() && isExpanded(model_->IndexOf(node)))
            keys.append(node->Key());
    return keys;
}

void MainTree::StartLabelEdit(const TreeNode* node) {
    edit(model_->IndexOf(node), AllEditTriggers, nullptr);
}

bool MainTree::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        if (trigger == AllEditTriggers && !std::exchange(Module().LabelEditAllowed, false))
            return false;
        return QTreeView::edit(index, trigger, event);
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

QModelIndex MainTree::indexAt(const QPoint& point) const {
    const QModelIndex index = QTreeView::indexAt(point);
    if (!index.isValid())
        return {};
    const int width = std::max(sizeHintForIndex(index).width(), kLeastNodeWidth);
    return point.x() < visualRect(index).left() + width ? index : QModelIndex();
}

void MainTree::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
    // The base asks indexAt for the corners; at the left edge each row has its node.
    QTreeView::setSelection({QPoint(0, rect.top()), QPoint(0, rect.bottom())}, command);
}

QItemSelectionModel::SelectionFlags MainTree::selectionCommand(const QModelIndex& index,
                                                               const QEvent* event) const {
    // Neither a click beside the nodes nor one with Ctrl leaves the tree without a selection.
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate;
    const auto command = QTreeView::selectionCommand(index, event);
    return command & QItemSelectionModel::Deselect ? QItemSelectionModel::NoUpdate : command;
}

TreeNode* MainTree::NodeUnder(const QPoint& point) const {
    return TreeModel::NodeAt(indexAt(point));
}

MainTree::Signal MainTree::SignalOf(const QKeyEvent& event) {
    struct Binding {
        int key;
        Qt::KeyboardModifiers modifiers;
        Signal signal;
    };
    static constexpr Binding kBindings[] = {
        {Qt::Key_Delete, Qt::NoModifier, &MainTree::DeletePressed},
        {Qt::Key_F2, Qt::NoModifier, &MainTree::RenamePressed},
        {Qt::Key_F3, Qt::NoModifier, &MainTree::FindNextPressed},
        {Qt::Key_Home, Qt::NoModifier, &MainTree::HomePressed},
        {Qt::Key_F, Qt::ControlModifier, &MainTree::FindPressed},
    };
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    for (const Binding& binding : kBindings)
        if (binding.key == event.key() && binding.modifiers == modifiers)
            return binding.signal;
    return nullptr;
}

void MainTree::keyPressEvent(QKeyEvent* event) {
    Guarded([&] {
        if (state() == EditingState)
            return QTreeView::keyPressEvent(event);
        const Signal signal = SignalOf(*event);
        BringCurrentInSight();
        if (GoesToFirstNode(*event))
            SelectNode(nodes_.First());
        else if (AsksForMenu(*event))
            AskForMenu();
        else if (!signal || event->key() == Qt::Key_Home)
            QTreeView::keyPressEvent(event);
        if (signal)
            Q_EMIT(this->*signal)();
        Q_EMIT KeyDone();
    });
}

void MainTree::contextMenuEvent(QContextMenuEvent* event) {
    Guarded([&] {
        if (event->reason() == QContextMenuEvent::Keyboard)
            AskForMenu();
        event->accept();
    });
}

void MainTree::AskForMenu() {
    OpenMenuByKey(*this,
                  [this](const QModelIndex& row) { Q_EMIT RightClick(TreeModel::NodeAt(row)); });
}

void MainTree::mousePressEvent(QMouseEvent* event) {
    Guarded([&] {
        const TreeNode* node = NodeUnder(event->position().toPoint());
        QTreeView::mousePressEvent(event);
        // The view itself leaves the selection alone on the opening sign. Nothing may scroll here,
        // or the release would hit another node.
        if (node && node != SelectedNode())
            selectionModel()->setCurrentIndex(model_->IndexOf(node),
                                              QItemSelectionModel::ClearAndSelect);
    });
}

void MainTree::mouseMoveEvent(QMouseEvent* event) {
    Guarded([&] {
        // A pressed button drags a breed or a dog; it never moves the selection.
        const TreeNode* node = SelectedNode();
        const bool draggable = node && model_->flags(model_->IndexOf(node)) & Qt::ItemIsDragEnabled;
        if (event->buttons() == Qt::NoButton || draggable)
            QTreeView::mouseMoveEvent(event);
    });
}

void MainTree::mouseReleaseEvent(QMouseEvent* event) {
    Guarded([&] {
        QTreeView::mouseReleaseEvent(event);
        if (event->button() == Qt::RightButton)
            Q_EMIT RightClick(NodeUnder(event->position().toPoint()));
    });
}

void MainTree::startDrag(Qt::DropActions) {
    Guarded([&] {
        const TreeNode* node = SelectedNode();
        if (!node)
            return;
        auto* drag = new QDrag(this);
        drag->setMimeData(model_->mimeData({model_->IndexOf(node)}));
        drag->setPixmap(IconOf(*node).pixmap(iconSize()));
        drag->exec(Qt::MoveAction);
    });
}

void MainTree::dropEvent(QDropEvent* event) {
    Guarded([&] {
        const bool own = model_->IsOwn(*event->mimeData());
        TreeNode* dragged = own ? nodes_.Find(event->mimeData()->text()) : nullptr;
        TreeNode* target = NodeUnder(event->position().toPoint());
        stopAutoScroll();
        setState(NoState);
        viewport()->update();
        event->setDropAction(Qt::IgnoreAction);
        event->accept();
        if (dragged && target)
            Q_EMIT NodeDropped(dragged, target);
    });
}

} // namespace lorvo
