#pragma once
// The groove of a scroll bar as a picture.

#include <QPixmap>
#include <QStyleOptionSlider>
#include <functional>

namespace lorvo {

/// What `draw` draws of the bar's groove at the bar's size, for a screen of that scale: drawn once
/// for all bars of that size and those colours. Null where the size isn't whole on that screen.
QPixmap ScrollBarGroove(const QStyleOptionSlider& bar, double scale,
                        const std::function<void(const QStyleOptionSlider&, QPainter&)>& draw);

} // namespace lorvo
