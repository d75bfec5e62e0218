#include "setup/breed_tree.h"

#include "app/start_up.h"
#include "forms/keyboard_menu.h"
#include "forms/label_edit_delegate.h"
#include "forms/light_palette.h"
#include "forms/scrolled_content.h"
#include "platform/failure_guard.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

namespace lorvo {

namespace {
/// The letters that the tree answers to.
constexpr QStringView kJumpLetters = u"qwertzuioplkjhgfdsayxcvbnmůúěščřžýáíé";
} // namespace

BreedTree::BreedTree(const char* name, std::vector<BreedTreeModel::Column> columns, QWidget* parent)
    : LabelEditView(parent), model_(new BreedTreeModel(std::move(columns), this)),
      delegate_(new LabelEditDelegate(*this)) {
    setObjectName(QString::fromLatin1(name));
    setModel(model_);
    KeepLight(*this);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    delegate_->untouchedEdits = false;
    delegate_->mayEdit = [this](const QModelIndex& index) {
        bool cancel = false;
        Q_EMIT BeforeLabelEdit(model_->NodeAt(index), &cancel);
        RethrowFailure();
        return !cancel;
    };
    setItemDelegate(delegate_);
    setEditTriggers(EditKeyPressed | SelectedClicked);
    setColumnWidth(0, 380);
}

BreedNode* BreedTree::SelectedNode() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr : model_->NodeAt(rows.front());
}

void BreedTree::SelectNode(const BreedNode& node) {
    setCurrentIndex(model_->IndexOf(node));
    scrollTo(currentIndex());
}

void BreedTree::FollowGridPreference() {
    gridLines_ = ShowGridPreferred();
    viewport()->update();
}

void BreedTree::keyPressEvent(QKeyEvent* event) {
    Guarded([&] {
        switch (event->key()) {
        case Qt::Key_Delete:
            Q_EMIT DeletePressed();
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // As a double click does; the default button of a window isn't meant here.
            setExpanded(currentIndex(), !isExpanded(currentIndex()));
            break;
        default:
            if (AsksForMenu(*event))
                AskForMenu();
            else if (!IsTyped(*event))
                QTreeView::keyPressEvent(event);
        }
    });
}

// The blank within a name that is being typed is no tick; a blank of its own is.
bool BreedTree::IsTyped(const QKeyEvent& event) {
    const QString text = event.text().toLower();
    const bool plain = !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    const bool letter = plain && text.size() == 1 && kJumpLetters.contains(text.front());
    const bool blank = event.key() == Qt::Key_Space && lastTyped_.isValid() &&
                       !lastTyped_.hasExpired(QApplication::keyboardInputInterval());
    if (!letter && !blank)
        return false;
    lastTyped_.start();
    if (letter)
        JumpToLetter(text.front());
    return true;
}

void BreedTree::JumpToLetter(QChar letter) {
    std::vector<BreedNode*> nodes = model_->InOrder();
    const auto selected = std::find(nodes.begin(), nodes.end(), SelectedNode());
    // From the node after the selected one round to the selected one itself.
    if (selected != nodes.end())
        std::rotate(nodes.begin(), selected + 1, nodes.end());
    const auto found = std::find_if(nodes.begin(), nodes.end(), [letter](const BreedNode* node) {
        const QString& title = node->cells[kBreedName];
        return !title.isEmpty() && title.front().toLower() == letter;
    });
    if (found != nodes.end())
        SelectNode(**found);
}

void BreedTree::focusInEvent(QFocusEvent* event) {
    Guarded([&] {
        QTreeView::focusInEvent(event);
        // The toolkit makes the first row the current one, which looks like a choice.
        if (!SelectedNode())
            selectionModel()->clearCurrentIndex();
    });
}

void BreedTree::mouseReleaseEvent(QMouseEvent* event) {
    Guarded([&] {
        QTreeView::mouseReleaseEvent(event);
        if (event->button() == Qt::RightButton && indexAt(event->position().toPoint()).isValid())
            Q_EMIT RightClick();
    });
}

void BreedTree::contextMenuEvent(QContextMenuEvent* event) {
    Guarded([&] {
        if (event->reason() == QContextMenuEvent::Keyboard)
            AskForMenu();
        event->accept();
    });
}

void BreedTree::AskForMenu() {
    OpenMenuByKey(*this, [this](const QModelIndex& row) {
        if (row.isValid())
            Q_EMIT RightClick();
    });
}

void BreedTree::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint) {
    Guarded([&] {
        QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
        const LabelEditDelegate::Edited edited = delegate_->TakeEdited();
        if (!edited.text || !edited.index.isValid())
            return;
        bool cancel = false;
        Q_EMIT AfterLabelEdit(model_->NodeAt(edited.index), *edited.text, &cancel);
        RethrowFailure();
        delegate_->SetRefused(cancel);
    });
}

void BreedTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QTreeView::drawRow(painter, option, index);
    if (gridLines_)
        PaintGridLines(*painter, *this, option.rect);
}

void BreedTree::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QTreeView::scrollTo(index, hint);
    ScrollAround(*this, index);
}

} // namespace lorvo
