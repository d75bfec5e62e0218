#include "forms/cut_text_tip.h"

#include "forms/elided_label.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace lorvo {

bool ShowCutText(const QHelpEvent& event, QAbstractItemView& view,
                 const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event.type() != QEvent::ToolTip || !index.isValid())
        return false;
    const int seen = option.rect.intersected(view.viewport()->rect()).width();
    const QString text = index.data(Qt::DisplayRole).toString();
    if (text.isEmpty() || view.sizeHintForIndex(index).width() <= seen)
        return false;
    QToolTip::showText(event.globalPos(), PlainToolTip(text), view.viewport(), option.rect);
    return true;
}

} // namespace lorvo
