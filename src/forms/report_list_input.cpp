// What the clerk does with a report list by keyboard and mouse, and the lines between its cells.
#include "forms/report_list_model.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

namespace lorvo {

/// Pixels that a row is higher than its text.
constexpr int kRowAir = 5;

/// Gives rows their height, opens the in-place editor and hands what it committed to the list.
class ReportListDelegate : public QStyledItemDelegate {
  public:
    explicit ReportListDelegate(ReportList& list) : QStyledItemDelegate(&list), list_(list) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override {
        bool cancel = false;
        Q_EMIT list_.BeforeLabelEdit(index.row(), &cancel);
        if (cancel)
            return nullptr;
        auto* editor = new QLineEdit(parent);
        editor->setObjectName(list_.objectName() + QStringLiteral(".editor"));
        editor->setFrame(false);
        editor->setMaxLength(255); // as much as a text field of the store takes
        editor->setAutoFillBackground(true);
        list_.editor_ = editor;
        return editor;
    }

    void setModelData(QWidget* editor, QAbstractItemModel*,
                      const QModelIndex& index) const override {
        const auto* box = static_cast<QLineEdit*>(editor);
        if (!box->isModified() && !list_.untouchedEdits_)
            return;
        list_.editedText_ = box->text();
        list_.editedRow_ = index.row();
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), std::max(size.height(), option.fontMetrics.height() + kRowAir)};
    }

  private:
    ReportList& list_;
};

void ReportList::InstallEditing() {
    setItemDelegate(new ReportListDelegate(*this));
}

void ReportList::SetLabelEdit(bool allowed) {
    model_->editable = allowed;
    setEditTriggers(allowed ? EditKeyPressed | SelectedClicked : NoEditTriggers);
}

void ReportList::StartLabelEdit(int position) {
    SelectRow(position);
    const bool allowed = std::exchange(model_->editable, true);
    QTreeView::edit(model_->index(position, 0));
    model_->editable = allowed;
}

void ReportList::EndLabelEdit() {
    if (state() != EditingState || !editor_)
        return;
    commitData(editor_);
    closeEditor(editor_, QAbstractItemDelegate::NoHint);
}

bool ReportList::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    // F2 renames the row wherever in it the keyboard stands.
    return QTreeView::edit(trigger == EditKeyPressed ? index.siblingAtColumn(0) : index, trigger,
                           event);
}

void ReportList::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint) {
    // Tab ends an edit as any loss of focus does and opens no other row.
    QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    // Only now, with the editor gone, may a handler show message boxes or take the row away.
    if (editedText_)
        DeliverEditedText(*std::exchange(editedText_, std::nullopt));
}

void ReportList::DeliverEditedText(const QString& text) {
    const QPersistentModelIndex row(model_->index(editedRow_, 0));
    bool cancel = false;
    Q_EMIT AfterLabelEdit(row.row(), text, &cancel);
    if (!cancel && row.isValid())
        SetCell(row.row(), 0, text);
}

void ReportList::keyPressEvent(QKeyEvent* event) {
    const QModelIndex row = currentIndex().siblingAtColumn(0);
    if (event->key() == Qt::Key_Delete)
        Q_EMIT DeletePressed();
    else if (event->key() == Qt::Key_Space && model_->checkBoxes && row.isValid())
        model_->setData(row, Row(row.row()).checked ? Qt::Unchecked : Qt::Checked,
                        Qt::CheckStateRole);
    else
        QTreeView::keyPressEvent(event);
}

void ReportList::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton)
        Q_EMIT RightClick(indexAt(event->position().toPoint()).row());
}

void ReportList::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT RightClick(SelectedRow());
    event->accept();
}

void ReportList::selectionChanged(const QItemSelection& selected,
                                  const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    Q_EMIT SelectionChanged();
}

void ReportList::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QTreeView::drawRow(painter, option, index);
    if (!gridLines_)
        return;
    painter->save();
    painter->setPen(palette().color(QPalette::Midlight));
    const QRect row = option.rect;
    painter->drawLine(row.left(), row.bottom(), header()->length() - header()->offset() - 1,
                      row.bottom());
    for (int column = 0; column < header()->count(); ++column) {
        const int right =
            header()->sectionViewportPosition(column) + header()->sectionSize(column) - 1;
        painter->drawLine(right, row.top(), right, row.bottom());
    }
    painter->restore();
}

void ReportList::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QTreeView::scrollTo(index, hint);
    const QRect row = visualRect(index) & viewport()->rect();
    for (QWidget* above = parentWidget(); above; above = above->parentWidget()) {
        auto* area = qobject_cast<QScrollArea*>(above);
        if (!area || !area->widget()->isAncestorOf(this))
            continue;
        const QPoint place = viewport()->mapTo(area->widget(), row.center());
        area->ensureVisible(place.x(), place.y(), 0, row.height());
    }
}

} // namespace lorvo
