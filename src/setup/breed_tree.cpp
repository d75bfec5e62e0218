#include "setup/breed_tree.h"

#include "app/start_up.h"
#include "forms/label_edit_delegate.h"
#include "platform/failure_guard.h"

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
    : QTreeView(parent), model_(new BreedTreeModel(std::move(columns), this)),
      delegate_(new LabelEditDelegate(*this)) {
    setObjectName(QString::fromLatin1(name));
    setModel(model_);
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
        const QString text = event->text().toLower();
        if (event->key() == Qt::Key_Delete)
            Q_EMIT DeletePressed();
        else if (text.size() == 1 && kJumpLetters.contains(text.front()) &&
                 !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
            JumpToLetter(text.front());
        else
            QTreeView::keyPressEvent(event);
    });
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

void BreedTree::mouseReleaseEvent(QMouseEvent* event) {
    Guarded([&] {
        QTreeView::mouseReleaseEvent(event);
        if (event->button() == Qt::RightButton && indexAt(event->position().toPoint()).isValid())
            Q_EMIT RightClick();
    });
}

void BreedTree::contextMenuEvent(QContextMenuEvent* event) {
    Guarded([&] {
        if (event->reason() == QContextMenuEvent::Keyboard && SelectedNode())
            Q_EMIT RightClick();
        event->accept();
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

} // namespace lorvo
