#include "setup/breed_tree.h"

#include "app/start_up.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

namespace lorvo {

namespace {
constexpr int kRowAir = 6; ///< pixels that a row is taller than its text
/// The letters that the tree answers to.
constexpr QStringView kJumpLetters = u"qwertzuioplkjhgfdsayxcvbnmůúěščřžýáíé";
} // namespace

/// Opens the in-place editor and hands what it committed to the tree.
class BreedTitleDelegate : public QStyledItemDelegate {
  public:
    explicit BreedTitleDelegate(BreedTree& tree) : QStyledItemDelegate(&tree), tree_(tree) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override {
        bool cancel = false;
        Q_EMIT tree_.BeforeLabelEdit(tree_.Model().NodeAt(index), &cancel);
        if (cancel)
            return nullptr;
        auto* editor = new QLineEdit(parent);
        editor->setObjectName(tree_.objectName() + QStringLiteral(".editor"));
        editor->setFrame(false);
        editor->setMaxLength(255); // as much as a text field of the store takes
        editor->setAutoFillBackground(true);
        return editor;
    }
    void setModelData(QWidget* editor, QAbstractItemModel*,
                      const QModelIndex& index) const override {
        const auto* box = static_cast<QLineEdit*>(editor);
        if (!box->isModified())
            return;
        tree_.editedText_ = box->text();
        tree_.editedID_ = tree_.Model().NodeAt(index)->ID;
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), std::max(size.height(), option.fontMetrics.height() + kRowAir)};
    }

  private:
    BreedTree& tree_;
};

BreedTree::BreedTree(const char* name, std::vector<BreedTreeModel::Column> columns, QWidget* parent)
    : QTreeView(parent), model_(new BreedTreeModel(std::move(columns), this)) {
    setObjectName(QString::fromLatin1(name));
    setModel(model_);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setItemDelegate(new BreedTitleDelegate(*this));
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
    const QString text = event->text().toLower();
    if (event->key() == Qt::Key_Delete)
        Q_EMIT DeletePressed();
    else if (text.size() == 1 && kJumpLetters.contains(text.front()) &&
             !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        JumpToLetter(text.front());
    else
        QTreeView::keyPressEvent(event);
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
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton && indexAt(event->position().toPoint()).isValid())
        Q_EMIT RightClick();
}

void BreedTree::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard && SelectedNode())
        Q_EMIT RightClick();
    event->accept();
}

void BreedTree::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint) {
    QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    // Only now, with the editor gone, may a handler show message boxes.
    if (!editedText_)
        return;
    const QString text = *std::exchange(editedText_, std::nullopt);
    if (BreedNode* node = model_->Find(editedID_))
        Q_EMIT AfterLabelEdit(node, text);
}

void BreedTree::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QTreeView::drawRow(painter, option, index);
    if (!gridLines_)
        return;
    painter->save();
    painter->setPen(palette().color(QPalette::Midlight));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    for (int column = 0; column < header()->count(); ++column) {
        const int right =
            header()->sectionViewportPosition(column) + header()->sectionSize(column) - 1;
        painter->drawLine(right, option.rect.top(), right, option.rect.bottom());
    }
    painter->restore();
}

} // namespace lorvo
