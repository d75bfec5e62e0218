#pragma once
// Draws texts so that they can be read, whatever colour they are told to have, and boxes so that
// they can be seen.

#include <QProxyStyle>

namespace lorvo {

/// The desktop's style, with the colours of texts in lists, trees and labels darkened or lightened
/// where they stand too near to their ground. What a text is told stays as it is for whoever asks.
/// Empty boxes, ticks and their like have outlines that stand out, in a dark desktop too.
class LegibleStyle : public QProxyStyle {
    Q_OBJECT
  public:
    using QProxyStyle::QProxyStyle;

    /// Selected text can be read too, whatever colours the desktop has for it.
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override;

  private:
    /// False where the scroll bar is left to the desktop's style.
    bool DrawScrollBar(const QStyleOptionComplex& option, QPainter& painter,
                       const QWidget* widget) const;
};

} // namespace lorvo
