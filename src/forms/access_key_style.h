#pragma once
// Draws the letters that lead to buttons and fields underlined.

#include <QProxyStyle>

namespace lorvo {

/// The desktop's style, with the access keys of a window's controls marked in their texts.
class AccessKeyStyle : public QProxyStyle {
    Q_OBJECT
  public:
    using QProxyStyle::QProxyStyle;

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override;
};

} // namespace lorvo
