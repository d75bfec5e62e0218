#include "forms/light_palette.h"

#include <QPalette>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

double Luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(const QPalette& palette, QPalette::ColorRole text, QPalette::ColorRole ground) {
    const double a = Luminance(palette.color(text)), b = Luminance(palette.color(ground));
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// The palette of a widget that is kept light on a desktop of that ground.
QPalette KeptLightOn(const QColor& desktop) {
    QWidget outer;
    outer.setPalette(QPalette(desktop));
    QWidget panel(&outer);
    KeepLight(panel);
    return panel.palette();
}

TEST(LightPalette, IsLegibleOnALightDesktopAndOnADarkOne) {
    for (const QColor& desktop : {QColor(239, 239, 239), QColor(40, 40, 40)}) {
        const QPalette palette = KeptLightOn(desktop);
        EXPECT_GE(Contrast(palette, QPalette::Text, QPalette::Base), 4.5);
        EXPECT_GE(Contrast(palette, QPalette::WindowText, QPalette::Window), 4.5);
        EXPECT_GE(Contrast(palette, QPalette::ButtonText, QPalette::Button), 4.5);
        EXPECT_GE(Contrast(palette, QPalette::HighlightedText, QPalette::Highlight), 4.5);
        EXPECT_GE(Contrast(palette, QPalette::Link, QPalette::Window), 4.5);
        EXPECT_GT(Luminance(palette.color(QPalette::Window)), 0.5);
    }
}

TEST(LightPalette, GoesForAllThatLiesInTheWidget) {
    QWidget outer;
    outer.setPalette(QPalette(QColor(40, 40, 40)));
    QWidget panel(&outer);
    QWidget inner(&panel);
    KeepLight(panel);
    EXPECT_EQ(inner.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(outer.palette().color(QPalette::Window), QColor(40, 40, 40));
}

} // namespace
} // namespace lorvo
