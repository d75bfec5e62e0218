#include "mainwindow/node_delegate.h"

#include "forms/cut_text_tip.h"
#include "forms/one_line_box.h"
#include "platform/failure_guard.h"
#include "store/text_width.h"

#include <QLineEdit>

namespace lorvo {

using namespace Qt::StringLiterals;

void NodeDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!selectionBarShown)
        option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
}

QWidget* NodeDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    return GuardedAnswer(static_cast<QWidget*>(nullptr), [&]() -> QWidget* {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* line = qobject_cast<QLineEdit*>(editor)) {
            line->setObjectName(u"tvwMain.editor"_s);
            line->setMaxLength(kLongestText);
            KeepOnOneLine(*line);
        }
        return editor;
    });
}

bool NodeDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
    return GuardedAnswer(false, [&] {
        return ShowCutText(*event, *view, option, index) ||
               QStyledItemDelegate::helpEvent(event, view, option, index);
    });
}

} // namespace lorvo
