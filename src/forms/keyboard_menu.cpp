#include "forms/keyboard_menu.h"

#include "platform/menu_place.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace lorvo {

namespace {

/// A menu stands a little to the right of where the row begins, so that its picture stays seen.
constexpr int kIndent = 24;

} // namespace

bool AsksForMenu(const QKeyEvent& key) {
    return key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier;
}

void OpenMenuByKey(QAbstractItemView& view, const std::function<void(const QModelIndex&)>& open) {
    QModelIndex row = view.currentIndex();
    if (!view.selectionModel()->isSelected(row))
        row = {};
    QPoint place(kIndent, 0);
    if (row.isValid()) {
        view.scrollTo(row);
        const QRect line = view.visualRect(row);
        place = QPoint(line.left() + kIndent, line.bottom());
    }
    const MenuPlace here(view.viewport()->mapToGlobal(place));
    open(row);
}

} // namespace lorvo
