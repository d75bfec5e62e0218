#pragma once
// Draws texts so that they can be read, whatever colour they are told to have.

#include <QProxyStyle>

namespace lorvo {

/// The desktop's style, with the colours of texts in lists, trees and labels darkened or lightened
/// where they stand too near to their ground. What a text is told stays as it is for whoever asks.
class LegibleStyle : public QProxyStyle {
    Q_OBJECT
  public:
    using QProxyStyle::QProxyStyle;

    /// Selected text can be read too, whatever colours the desktop has for it.
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override;
};

} // namespace lorvo
