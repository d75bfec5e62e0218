#include "forms/one_line.h"

namespace lorvo {

QSize OneLine::Of(const QLabel& label) const {
    if (!measured_ && label.text().isEmpty())
        return {label.fontMetrics().averageCharWidth(), label.fontMetrics().lineSpacing()};
    if (!measured_ || measured_->text != label.text() || measured_->font != label.font()) {
        const QRect anyPlace(0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        const QFontMetrics metrics = label.fontMetrics();
        measured_ = {
            label.text(), label.font(),
            metrics.boundingRect(anyPlace, Qt::AlignLeft | Qt::AlignTop, label.text()).size()};
    }
    return measured_->size;
}

} // namespace lorvo
