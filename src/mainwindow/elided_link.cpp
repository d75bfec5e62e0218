#include "mainwindow/elided_link.h"

#include <QStyleOption>
#include <QStylePainter>

namespace lorvo {

ElidedLink::ElidedLink(QWidget* parent) : LinkLabel(QString(), parent) {}

QSize ElidedLink::minimumSizeHint() const {
    return Ellipsis::LeastSize(*this, LinkLabel::minimumSizeHint());
}

void ElidedLink::paintEvent(QPaintEvent* event) {
    if (!ellipsis_.Paint(*this))
        return LinkLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

} // namespace lorvo
