#include "mainwindow/node_delegate.h"

namespace lorvo {

void NodeDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!selectionBarShown)
        option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
}

} // namespace lorvo
