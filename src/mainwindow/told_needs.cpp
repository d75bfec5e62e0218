#include "mainwindow/told_needs.h"

#include <QResizeEvent>
#include <QStyle>
#include <QWidget>
#include <utility>

namespace lorvo {

bool ToldNeeds::ToTell(const QWidget& widget) {
    const int width = widget.width();
    const int bar = widget.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    Needs now{widget.minimumSizeHint(), width, {}};
    if (widget.hasHeightForWidth())
        now.heights = {widget.heightForWidth(width), widget.heightForWidth(width - bar),
                       widget.heightForWidth(width + bar)};
    const bool differ = told_ != now;
    told_ = now;
    keptBack_ = keptBack_ || !differ;
    return differ;
}

bool ToldNeeds::ToTell(const QResizeEvent& resize) {
    return resize.size().width() != resize.oldSize().width() && std::exchange(keptBack_, false);
}

} // namespace lorvo
