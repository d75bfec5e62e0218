#include "forms/controls.h"

#include <QDir>
#include <QImage>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kScales[] = {1.0, 1.25, 1.5, 2.0, 3.0};

/// The names of all pictures; the first icon asked for loads them.
QStringList AllNames() {
    EXPECT_FALSE(ProgramIcon(u"dog"_s).isNull());
    QStringList names;
    for (const QString& file : QDir(u":/lorvo/icons/16"_s).entryList())
        names.append(file.chopped(4));
    EXPECT_GE(names.size(), 30);
    return names;
}

QImage FileOf(const QString& name, int side) {
    return QImage(u":/lorvo/icons/%1/%2.png"_s.arg(side).arg(name))
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage Shown(const QString& name, int side, double scale) {
    return ProgramIcon(name)
        .pixmap(QSize(side, side), scale)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// The drawing itself, pixel for pixel: nothing was scaled.
void ExpectCrisp(const QString& name, int side, double scale) {
    QImage shown = Shown(name, side, scale);
    shown.setDevicePixelRatio(1);
    EXPECT_TRUE(shown == FileOf(name, qRound(side * scale)))
        << qPrintable(name) << " of " << side << " at " << scale;
}

TEST(ProgramIconTest, EveryPictureIsCrispAtEveryScale) {
    for (const QString& name : AllNames())
        for (const int side : {16, 24, 32})
            for (const double scale : kScales)
                ExpectCrisp(name, side, scale);
}

TEST(ProgramIconTest, TheProgramsOwnPictureFillsAPanelCrisply) {
    for (const double scale : kScales)
        ExpectCrisp(u"lorvo"_s, 256, scale);
}

/// A picture larger than any that was drawn is the largest one, never an empty one.
TEST(ProgramIconTest, ASizeThatWasNotDrawnIsStillAPicture) {
    const QImage picture = Shown(u"dog"_s, 300, 1);
    EXPECT_TRUE(picture == FileOf(u"dog"_s, 96));
}

TEST(ProgramIconTest, EveryPictureButTheBlankOneIsDrawn) {
    for (const QString& name : AllNames()) {
        const QImage picture = FileOf(name, 16);
        QImage nothing(picture.size(), picture.format());
        nothing.fill(Qt::transparent);
        EXPECT_EQ(picture == nothing, name == u"blank"_s) << qPrintable(name);
    }
}

TEST(ProgramIconTest, TellsItsSizesAndStaysWithinWhatIsAskedFor) {
    const QIcon dog = ProgramIcon(u"dog"_s);
    EXPECT_TRUE(dog.availableSizes().contains(QSize(16, 16)));
    EXPECT_TRUE(dog.availableSizes().contains(QSize(96, 96)));
    EXPECT_EQ(dog.actualSize(QSize(16, 16)), QSize(16, 16));
    EXPECT_EQ(dog.actualSize(QSize(17, 17)), QSize(17, 17));
    EXPECT_EQ(dog.actualSize(QSize(300, 300)), QSize(96, 96));
}

TEST(ProgramIconTest, ANameWithoutAPictureIsANullIcon) {
    EXPECT_TRUE(ProgramIcon(u"unicorn"_s).isNull());
}

} // namespace
} // namespace lorvo
