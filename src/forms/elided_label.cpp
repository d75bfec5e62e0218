#include "forms/elided_label.h"

#include <QStyleOption>
#include <QStylePainter>
#include <algorithm>

namespace lorvo {

namespace {
/// Letters that a label keeps room for.
constexpr int kLeastLetters = 4;

QRect PlaceOfText(const QLabel& label) {
    const int margin = label.margin();
    return label.contentsRect().adjusted(margin + std::max(0, label.indent()), margin, -margin,
                                         -margin);
}

} // namespace

QString PlainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

void PaintFocusFrame(QWidget& widget) {
    if (!widget.hasFocus())
        return;
    QStylePainter painter(&widget);
    QStyleOptionFocusRect option;
    option.initFrom(&widget);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

QSize Ellipsis::LeastSize(const QLabel& label, QSize uncut) {
    const int least = kLeastLetters * label.fontMetrics().averageCharWidth();
    return {std::min(uncut.width(), least), uncut.height()};
}

void Ellipsis::TellWhole(QLabel& label, bool cut) {
    if (cut && !cut_)
        givenToolTip_ = label.toolTip();
    if (cut || cut_)
        label.setToolTip(cut ? PlainToolTip(label.text()) : givenToolTip_);
    cut_ = cut;
}

bool Ellipsis::Paint(QLabel& label) {
    const QRect place = PlaceOfText(label);
    const QFontMetrics metrics = label.fontMetrics();
    const bool cut = metrics.horizontalAdvance(label.text()) > place.width();
    TellWhole(label, cut);
    if (!cut)
        return false;
    QStylePainter painter(&label);
    painter.drawItemText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         label.palette(), label.isEnabled(),
                         metrics.elidedText(label.text(), Qt::ElideRight, place.width()),
                         label.foregroundRole());
    PaintFocusFrame(label);
    return true;
}

ElidedLabel::ElidedLabel(QWidget* parent) : Elided(parent) {
    setTextFormat(Qt::PlainText);
}

} // namespace lorvo
