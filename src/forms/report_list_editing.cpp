// How the texts of a report list are edited in place.
#include "forms/label_edit_delegate.h"
#include "forms/report_list_model.h"
#include "platform/failure_guard.h"

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
        return LabelEditView::edit(trigger == EditKeyPressed ? index.siblingAtColumn(0) : index,
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

} // namespace lorvo
