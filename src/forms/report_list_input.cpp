// What the clerk does with a report list by keyboard and mouse.
#include "forms/keyboard_menu.h"
#include "forms/label_edit_delegate.h"
#include "forms/report_list_model.h"
#include "forms/scrolled_content.h"
#include "platform/failure_guard.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace lorvo {

void ReportList::keyPressEvent(QKeyEvent* event) {
    Guarded([&] {
        if (state() == EditingState)
            event->accept(); // Enter ends the edit and nothing else
        else if (!TakeKey(*event))
            QTreeView::keyPressEvent(event);
    });
}

/// Whether the key is one that the list has a meaning of its own for.
bool ReportList::TakeKey(QKeyEvent& key) {
    const QModelIndex row = currentIndex().siblingAtColumn(0);
    if (key.key() == Qt::Key_Delete)
        Q_EMIT DeletePressed();
    else if (key.key() == Qt::Key_Space && model_->checkBoxes && row.isValid())
        model_->setData(row, Row(row.row()).checked ? Qt::Unchecked : Qt::Checked,
                        Qt::CheckStateRole);
    else if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)
        OpenSelected();
    else if (AsksForMenu(key))
        AskForMenu();
    else if (key.matches(QKeySequence::Copy))
        CopyRows();
    else
        return false;
    key.accept();
    return true;
}

/// Enter does what a double click does, and never what the window's default button would.
void ReportList::OpenSelected() {
    if (const int position = SelectedRow(); position >= 0)
        Q_EMIT DoubleClick(position);
}

void ReportList::AskForMenu() {
    OpenMenuByKey(*this, [this](const QModelIndex& row) { Q_EMIT RightClick(row.row()); });
}

void ReportList::focusInEvent(QFocusEvent* event) {
    Guarded([&] {
        QTreeView::focusInEvent(event);
        // The toolkit makes the first row the current one, which looks like a choice.
        if (!selectionModel()->hasSelection())
            selectionModel()->clearCurrentIndex();
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
            AskForMenu();
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
    ScrollAround(*this, index);
}

} // namespace lorvo
