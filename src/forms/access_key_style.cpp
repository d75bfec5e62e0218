#include "forms/access_key_style.h"

#include "forms/access_keys.h"

#include <QLabel>
#include <QPainter>
#include <QStyleOption>

namespace lorvo {

namespace {

/// The option with the letter marked in its text.
template<typename Option> Option Marked(const QStyleOption* option, const QWidget& widget) {
    Option marked(*static_cast<const Option*>(option));
    marked.text = WithAccessKey(marked.text, AccessKeyOf(widget));
    return marked;
}

/// Where the line under a letter runs, for a text of one line in that place.
QRect BelowLetter(const QPainter& painter, const QRect& place, const QString& text,
                  qsizetype letter) {
    const QFontMetrics metrics = painter.fontMetrics();
    const int left = place.left() + metrics.horizontalAdvance(text.left(letter));
    const int top = place.top() + metrics.ascent() + 1;
    return {left, top, metrics.horizontalAdvance(text.at(letter)), metrics.descent()};
}

/// Where the label's letter stands in the text that is painted for it, the whole one or as much of
/// it as there is room for; -1 for nowhere.
qsizetype PlaceOfLetter(const QLabel& label, const QString& painted) {
    const QString whole = label.text();
    const qsizetype letter = PlaceOfAccessKey(whole, AccessKeyOf(label));
    const qsizetype kept = painted == whole ? whole.size() : painted.size() - 1; // an ellipsis
    const bool isLeft = letter < kept && kept <= whole.size() &&
                        QStringView(whole).first(kept) == QStringView(painted).first(kept);
    return isLeft ? letter : -1;
}

} // namespace

void AccessKeyStyle::drawControl(ControlElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    // The rows of lists and trees come here too, far more of them than buttons.
    const bool bearsText = element == CE_PushButtonLabel || element == CE_CheckBoxLabel ||
                           element == CE_RadioButtonLabel || element == CE_ToolButtonLabel;
    if (!bearsText || !widget || AccessKeyOf(*widget).isNull())
        return QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_ToolButtonLabel) {
        const auto marked = Marked<QStyleOptionToolButton>(option, *widget);
        return QProxyStyle::drawControl(element, &marked, painter, widget);
    }
    const auto marked = Marked<QStyleOptionButton>(option, *widget);
    QProxyStyle::drawControl(element, &marked, painter, widget);
}

void AccessKeyStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                                  const QPalette& palette, bool enabled, const QString& text,
                                  QPalette::ColorRole role) const {
    // Labels hand over their text alone; what is painted on tells whose it is.
    const auto* label =
        painter->device() && painter->device()->devType() == QInternal::Widget
            ? qobject_cast<const QLabel*>(static_cast<const QWidget*>(painter->device()))
            : nullptr;
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    const qsizetype letter = label ? PlaceOfLetter(*label, text) : -1;
    if (letter < 0)
        return;
    // A letter that is marked in the text stands alone for the toolkit, farther from its neighbour
    // than in the text that the label has been measured by, and the text's end would be cut.
    painter->save();
    painter->setClipRect(
        BelowLetter(*painter, itemTextRect(painter->fontMetrics(), rect, flags, enabled, text),
                    text, letter),
        Qt::IntersectClip);
    QFont underlined = painter->font();
    underlined.setUnderline(true);
    painter->setFont(underlined);
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    painter->restore();
}

} // namespace lorvo
