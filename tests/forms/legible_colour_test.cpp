#include "forms/legible_colour.h"

#include <gtest/gtest.h>

namespace lorvo {
namespace {

TEST(LegibleColour, ContrastIsMeasuredAsTheEyeSees) {
    EXPECT_DOUBLE_EQ(Contrast(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(Contrast(Qt::white, Qt::black), 21);
    EXPECT_DOUBLE_EQ(Contrast(Qt::red, Qt::red), 1);
    EXPECT_NEAR(Contrast(QColor(190, 190, 190), Qt::white), 1.85, 0.01);
    EXPECT_NEAR(Contrast(Qt::red, Qt::white), 4.0, 0.01);
}

TEST(LegibleColour, AnInkThatCanBeReadStaysAsItIs) {
    EXPECT_EQ(LegibleOn(Qt::white, QColor(0, 0, 255)), QColor(0, 0, 255));
    EXPECT_EQ(LegibleOn(QColor(40, 40, 40), QColor(255, 128, 128)), QColor(255, 128, 128));
}

TEST(LegibleColour, APaleInkIsDarkenedJustEnough) {
    for (const QColor& ink :
         {QColor(190, 190, 190), QColor(0, 255, 0), QColor(255, 0, 0), QColor(0, 160, 0)}) {
        const QColor legible = LegibleOn(Qt::white, ink);
        EXPECT_GE(Contrast(legible, Qt::white), kLegibleContrast);
        EXPECT_LT(Contrast(legible, Qt::white), kLegibleContrast + 0.5);
    }
    const QColor red = LegibleOn(Qt::white, Qt::red);
    EXPECT_EQ(red.green(), 0);
    EXPECT_GT(red.red(), 200) << "it stays a red";
}

TEST(LegibleColour, AnOutlineNeedsLessThanTextOfTheSameColour) {
    const QColor ink(190, 190, 190);
    const QColor text = LegibleOn(Qt::white, ink);
    const QColor outline = LegibleOn(Qt::white, ink, kOutlineContrast);
    EXPECT_GT(outline.lightness(), text.lightness());
    EXPECT_EQ(LegibleOn(Qt::white, ink), text);
    EXPECT_NE(LegibleOn(Qt::black, ink), text);
}

TEST(LegibleColour, ADarkInkOnADarkGroundIsLightened) {
    const QColor ground(42, 42, 42);
    const QColor legible = LegibleOn(ground, QColor(0, 0, 255));
    EXPECT_GE(Contrast(legible, ground), kLegibleContrast);
    EXPECT_EQ(legible.blue(), 255);
}

} // namespace
} // namespace lorvo
