// What the clerk does with a report list by keyboard and mouse.
#include "forms/label_edit_delegate.h"
#include "forms/report_list_model.h"
#include "platform/failure_guard.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollArea>
#include <utility>

namespace lorvo {

void ReportList::InstallEditing() {
    delegate_ = new LabelEditDelegate(*this);
    delegate_->mayEdit = [this](const QModelIndex& index) {
        bool cancel = false;
        Q_EMIT BeforeLabelEdit(index.row(), &cancel);
        RethrowFailure();
        return !cancel;
    };
    setItemDelegate(delegate_);
}

void ReportList::SetUntouchedEdits(bool count) {
    delegate_->untouchedEdits = count;
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

bool ReportList::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    return GuardedAnswer(false, [&]() -> bool {
        // F2 renames the row wherever in it the keyboard stands.
        return QTreeView::edit(trigger == EditKeyPressed ? index.siblingAtColumn(0) : index,
                               trigger, event);
    });
}

void ReportList::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint) {
    Guarded([&] {
        // Tab ends an edit as any loss of focus does and opens no other row.
        QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
        const LabelEditDelegate::Edited edited = delegate_->TakeEdited();
        if (edited.text && edited.index.isValid())
            DeliverEditedText(edited.index, *edited.text);
        else if (edited.index.isValid())
            Q_EMIT LabelEditGivenUp(edited.index.row());
    });
}

void ReportList::DeliverEditedText(const QPersistentModelIndex& row, const QString& text) {
    bool cancel = false;
    Q_EMIT AfterLabelEdit(row.row(), text, &cancel);
    RethrowFailure();
    delegate_->SetRefused(cancel);
    if (!cancel && row.isValid())
        SetCell(row.row(), 0, text);
}

void ReportList::keyPressEvent(QKeyEvent* event) {
    Guarded([&] {
        const QModelIndex row = currentIndex().siblingAtColumn(0);
        if (event->key() == Qt::Key_Delete)
            Q_EMIT DeletePressed();
        else if (event->key() == Qt::Key_Space && model_->checkBoxes && row.isValid())
            model_->setData(row, Row(row.row()).checked ? Qt::Unchecked : Qt::Checked,
                            Qt::CheckStateRole);
        else
            QTreeView::keyPressEvent(event);
    });
}

void ReportList::mouseReleaseEvent(QMouseEvent* event) {
    Guarded([&] {
        QTreeView::mouseReleaseEvent(event);
        if (event->button() == Qt::RightButton)
            Q_EMIT RightClick(indexAt(event->position().toPoint()).row());
    });
}

void ReportList::contextMenuEvent(QContextMenuEvent* event) {
    Guarded([&] {
        if (event->reason() == QContextMenuEvent::Keyboard)
            Q_EMIT RightClick(SelectedRow());
        event->accept();
    });
}

void ReportList::selectionChanged(const QItemSelection& selected,
                                  const QItemSelection& deselected) {
    Guarded([&] {
        QTreeView::selectionChanged(selected, deselected);
        Q_EMIT SelectionChanged();
    });
}

void ReportList::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QTreeView::drawRow(painter, option, index);
    if (gridLines_)
        PaintGridLines(*painter, *this, option.rect);
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
