#include "support/desktop_look.h"

#include <QApplication>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

constexpr double kLargeLetters = 1.37;

QPalette DarkPalette() {
    QPalette dark(QColor(53, 53, 53), QColor(35, 35, 35));
    dark.setColor(QPalette::Base, QColor(42, 42, 42));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::ButtonText, Qt::white);
    dark.setColor(QPalette::Button, QColor(53, 53, 53));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::black);
    dark.setColor(QPalette::Link, QColor(42, 130, 218));
    for (const QPalette::ColorRole text :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, text, QColor(128, 128, 128));
    return dark;
}

} // namespace

QString NameOf(DesktopLook look) {
    switch (look) {
    case DesktopLook::Light:
        return u"light"_s;
    case DesktopLook::Dark:
        return u"dark"_s;
    case DesktopLook::LightAndLarge:
        return u"light_large"_s;
    case DesktopLook::DarkAndLarge:
        break;
    }
    return u"dark_large"_s;
}

WithDesktopLook::WithDesktopLook(DesktopLook look)
    : palette_(QApplication::palette()), font_(QApplication::font()) {
    if (look == DesktopLook::Dark || look == DesktopLook::DarkAndLarge)
        QApplication::setPalette(DarkPalette());
    if (look == DesktopLook::Light || look == DesktopLook::Dark)
        return;
    QFont large = font_;
    large.setPointSizeF(font_.pointSizeF() * kLargeLetters);
    QApplication::setFont(large);
}

WithDesktopLook::~WithDesktopLook() {
    QApplication::setPalette(palette_);
    QApplication::setFont(font_);
}

} // namespace lorvo::test
