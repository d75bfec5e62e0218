#include "forms/light_palette.h"

#include <QPalette>
#include <QWidget>

namespace lorvo {

namespace {

struct Part {
    QPalette::ColorRole role;
    QRgb colour;
};

constexpr Part kLight[] = {
    {QPalette::Window, 0xffefefef},
    {QPalette::WindowText, 0xff000000},
    {QPalette::Base, 0xffffffff},
    {QPalette::AlternateBase, 0xfff7f7f7},
    {QPalette::Text, 0xff000000},
    {QPalette::PlaceholderText, 0xff6b6b6b},
    {QPalette::Button, 0xffefefef},
    {QPalette::ButtonText, 0xff000000},
    {QPalette::BrightText, 0xffffffff},
    {QPalette::Highlight, 0xff1f6fa8},
    {QPalette::HighlightedText, 0xffffffff},
    {QPalette::Link, 0xff0000ff},
    {QPalette::LinkVisited, 0xff800080},
    {QPalette::Light, 0xffffffff},
    {QPalette::Midlight, 0xffcacaca},
    {QPalette::Mid, 0xffb8b8b8},
    {QPalette::Dark, 0xff9f9f9f},
    {QPalette::Shadow, 0xff767676},
    {QPalette::ToolTipBase, 0xffffffdc},
    {QPalette::ToolTipText, 0xff000000},
};
constexpr QRgb kDisabledText = 0xff6b6b6b;

QPalette LightPalette() {
    QPalette palette;
    for (const Part& part : kLight)
        palette.setColor(part.role, QColor::fromRgb(part.colour));
    for (const QPalette::ColorRole text :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, text, QColor::fromRgb(kDisabledText));
    return palette;
}

} // namespace

void KeepLight(QWidget& widget) {
    static const QPalette light = LightPalette();
    widget.setPalette(light);
}

} // namespace lorvo
