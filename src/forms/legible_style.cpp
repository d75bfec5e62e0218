#include "forms/legible_style.h"

#include "forms/legible_colour.h"
#include "forms/scroll_bar_groove.h"

#include <QPainter>
#include <QStyleOption>
#include <optional>

namespace lorvo {

namespace {

/// What a row's text is drawn on while the row isn't selected.
QColor GroundOf(const QStyleOptionViewItem& item) {
    return item.backgroundBrush.style() == Qt::NoBrush ? item.palette.color(QPalette::Base)
                                                       : item.backgroundBrush.color();
}

/// The colour that texts of the role stand on; nullopt for roles that other texts have.
std::optional<QColor> GroundOf(QPalette::ColorRole role, const QPalette& palette) {
    switch (role) {
    case QPalette::WindowText:
    case QPalette::Link:
        return palette.color(QPalette::Window);
    case QPalette::ButtonText:
        return palette.color(QPalette::Button);
    case QPalette::ToolTipText:
        return palette.color(QPalette::ToolTipBase);
    default:
        return std::nullopt;
    }
}

/// Changes nothing, and so copies nothing, where the role can be read as it is.
void MakeLegible(QPalette& palette, QPalette::ColorGroup group, QPalette::ColorRole role,
                 const QColor& ground) {
    const QColor ink = palette.color(group, role);
    if (const QColor legible = LegibleOn(ground, ink); legible != ink)
        palette.setColor(group, role, legible);
}

/// The palette of a row with texts that can be read.
QPalette LegibleRow(const QStyleOptionViewItem& item) {
    QPalette palette = item.palette;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
        MakeLegible(palette, group, QPalette::Text, GroundOf(item));
    return palette;
}

/// The selection bar's colour, darkened where text couldn't be read on it or on the lighter one
/// that it has under the mouse.
QColor BarFor(const QColor& text, QColor bar) {
    constexpr int kUnderMouse = 110;
    bar = LegibleOn(text, bar);
    while (bar.value() > 0 && Contrast(text, bar) > Contrast(text, bar.lighter(kUnderMouse)) &&
           Contrast(text, bar.lighter(kUnderMouse)) < kLegibleContrast)
        bar = bar.darker(105);
    return bar;
}

/// Stands out from the window and from what is raised in it, pages and buttons.
QColor OutlineColour(const QPalette& palette) {
    constexpr int kRaised = 150;
    const QColor window = palette.color(QPalette::Window);
    const QColor raised = palette.color(QPalette::Button).lighter(kRaised);
    return LegibleOn(window, LegibleOn(raised, window.darker(140), kOutlineContrast),
                     kOutlineContrast);
}

/// Draws what `draw` draws along the edge of the option's place. What has the keyboard has the
/// desktop's own mark of it.
template<class Draw> void Outline(QPainter& painter, const QStyleOption& option, const Draw& draw) {
    if (!(option.state & QStyle::State_Enabled) || (option.state & QStyle::State_HasFocus))
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(OutlineColour(option.palette));
    draw(painter, QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

void DrawField(QPainter& painter, const QRectF& box) {
    constexpr double kCorner = 2;
    painter.drawRoundedRect(box, kCorner, kCorner);
}

} // namespace

void LegibleStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, QPalette::Highlight,
                         BarFor(palette.color(group, QPalette::HighlightedText),
                                palette.color(group, QPalette::Highlight)));
}

void LegibleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorCheckBox)
        Outline(*painter, *option, [](QPainter& p, const QRectF& box) { p.drawRect(box); });
    else if (element == PE_IndicatorRadioButton)
        Outline(*painter, *option, [](QPainter& p, const QRectF& box) { p.drawEllipse(box); });
    else if (element == PE_FrameLineEdit)
        Outline(*painter, *option, DrawField);
}

void LegibleStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    if (control == CC_ScrollBar && DrawScrollBar(*option, *painter, widget))
        return;
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if ((control == CC_ComboBox || control == CC_SpinBox) &&
        option->rect.size() == (widget ? widget->size() : QSize()))
        Outline(*painter, *option, DrawField);
}

// The groove shades from edge to edge, and the toolkit gives so large a shade to several threads,
// each time that a list scrolls: to wake them takes longer than all rows of the list.
bool LegibleStyle::DrawScrollBar(const QStyleOptionComplex& option, QPainter& painter,
                                 const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(&option);
    if (!bar || !(bar->subControls & SC_ScrollBarGroove))
        return false;
    const auto draw = [&](const QStyleOptionSlider& part, QPainter& on) {
        QProxyStyle::drawComplexControl(CC_ScrollBar, &part, &on, widget);
    };
    const QPixmap groove = ScrollBarGroove(*bar, painter.device()->devicePixelRatioF(), draw);
    if (groove.isNull())
        return false;
    painter.drawPixmap(bar->rect.topLeft(), groove);
    QStyleOptionSlider rest(*bar);
    rest.subControls &= ~SC_ScrollBarGroove;
    draw(rest, painter);
    return true;
}

void LegibleStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element != CE_ItemViewItem || !item)
        return QProxyStyle::drawControl(element, option, painter, widget);
    const QPalette palette = LegibleRow(*item);
    if (palette.isCopyOf(item->palette))
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionViewItem legible(*item);
    legible.palette = palette;
    QProxyStyle::drawControl(element, &legible, painter, widget);
}

void LegibleStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                                const QPalette& palette, bool enabled, const QString& text,
                                QPalette::ColorRole role) const {
    const std::optional<QColor> ground = enabled ? GroundOf(role, palette) : std::nullopt;
    if (!ground)
        return QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    QPalette legible(palette);
    MakeLegible(legible, legible.currentColorGroup(), role, *ground);
    QProxyStyle::drawItemText(painter, rect, flags, legible, enabled, text, role);
}

} // namespace lorvo
