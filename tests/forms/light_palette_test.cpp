#include "forms/light_palette.h"

#include "forms/legible_colour.h"

#include <QPalette>
#include <QWidget>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

double ContrastOf(const QPalette& palette, QPalette::ColorRole text, QPalette::ColorRole ground) {
    return Contrast(palette.color(text), palette.color(ground));
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
        EXPECT_GE(ContrastOf(palette, QPalette::Text, QPalette::Base), 4.5);
        EXPECT_GE(ContrastOf(palette, QPalette::WindowText, QPalette::Window), 4.5);
        EXPECT_GE(ContrastOf(palette, QPalette::ButtonText, QPalette::Button), 4.5);
        EXPECT_GE(ContrastOf(palette, QPalette::HighlightedText, QPalette::Highlight), 4.5);
        EXPECT_GE(ContrastOf(palette, QPalette::Link, QPalette::Window), 4.5);
        EXPECT_GT(Contrast(palette.color(QPalette::Window), Qt::black), 11);
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
