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

} // namespace

void AccessKeyStyle::drawControl(ControlElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    if (!widget || AccessKeyOf(*widget).isNull())
        return QProxyStyle::drawControl(element, option, painter, widget);
    switch (element) {
    case CE_PushButtonLabel:
    case CE_CheckBoxLabel:
    case CE_RadioButtonLabel: {
        const auto marked = Marked<QStyleOptionButton>(option, *widget);
        return QProxyStyle::drawControl(element, &marked, painter, widget);
    }
    case CE_ToolButtonLabel: {
        const auto marked = Marked<QStyleOptionToolButton>(option, *widget);
        return QProxyStyle::drawControl(element, &marked, painter, widget);
    }
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void AccessKeyStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                                  const QPalette& palette, bool enabled, const QString& text,
                                  QPalette::ColorRole role) const {
    // Labels hand over their text alone; what is painted on tells whose it is.
    const auto* label =
        painter->device() && painter->device()->devType() == QInternal::Widget
            ? qobject_cast<const QLabel*>(static_cast<const QWidget*>(painter->device()))
            : nullptr;
    const QChar key = label && text == label->text() ? AccessKeyOf(*label) : QChar();
    const QString marked = WithAccessKey(text, key);
    QProxyStyle::drawItemText(painter, rect, marked == text ? flags : flags | Qt::TextShowMnemonic,
                              palette, enabled, marked, role);
}

} // namespace lorvo
