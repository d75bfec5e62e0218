#include "forms/scroll_bar_groove.h"

#include <QPainter>
#include <QPixmapCache>
#include <cmath>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QString KeyOf(const QStyleOptionSlider& bar, double scale) {
    return u"lorvo groove %1 %2 %3 %4 %5 %6"_s.arg(bar.rect.width())
        .arg(bar.rect.height())
        .arg(static_cast<int>(bar.orientation))
        .arg(static_cast<int>(bar.state))
        .arg(bar.palette.cacheKey())
        .arg(scale);
}

bool IsWhole(double length) {
    return length == std::floor(length);
}

} // namespace

QPixmap ScrollBarGroove(const QStyleOptionSlider& bar, double scale,
                        const std::function<void(const QStyleOptionSlider&, QPainter&)>& draw) {
    QPixmap groove;
    const QSizeF pixels = QSizeF(bar.rect.size()) * scale;
    if (pixels.isEmpty() || !IsWhole(pixels.width()) || !IsWhole(pixels.height()))
        return groove;
    const QString key = KeyOf(bar, scale);
    if (QPixmapCache::find(key, &groove))
        return groove;
    groove = QPixmap(pixels.toSize());
    groove.setDevicePixelRatio(scale);
    groove.fill(bar.palette.color(QPalette::Window));
    QStyleOptionSlider alone(bar);
    alone.rect.moveTo(0, 0);
    alone.subControls = QStyle::SC_ScrollBarGroove;
    QPainter painter(&groove);
    draw(alone, painter);
    painter.end();
    QPixmapCache::insert(key, groove);
    return groove;
}

} // namespace lorvo
