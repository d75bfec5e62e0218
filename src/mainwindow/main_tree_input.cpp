// The main tree's ways with mouse and keyboard.

#include "forms/keyboard_menu.h"
#include "mainwindow/main_tree.h"
#include "platform/failure_guard.h"

#include <QContextMenuEvent>
#include <QDrag>
#include <QDragMoveEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <algorithm>

namespace lorvo {

namespace {

/// A short name stays an easy target for the mouse.
constexpr int kLeastNodeWidth = 64;

} // namespace

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
    return isKey && nodes_.First() && !SelectedNode() && (!current || current == nodes_.First());
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
    BringCurrentInSight();
    const TreeNode* current = TreeModel::NodeAt(currentIndex());
    // As a press of the right button does, the key selects the node that it means.
    if (current && (SelectedNode() || current != nodes_.First()))
        SelectNode(current);
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
