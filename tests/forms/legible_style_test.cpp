// Told colours on the screen: what is painted, and what is told to whoever asks.

#include "forms/legible_colour.h"
#include "forms/legible_style.h"
#include "forms/report_list.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor kGrey(190, 190, 190);

/// How far the farthest of the colours painted stands from white.
double FarthestFromWhite(const QWidget& widget, const QRect& place) {
    QImage picture(place.size() * 3, QImage::Format_RGB32);
    picture.setDevicePixelRatio(3);
    const_cast<QWidget&>(widget).render(&picture, {}, place);
    double farthest = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            farthest = std::max(farthest, Contrast(picture.pixelColor(x, y), Qt::white));
    return farthest;
}

TEST(LegibleStyle, APaleCellIsPaintedLegiblyAndKeepsItsToldColour) {
    ReportList list("lvwCells", {u"Cena"_s}, nullptr);
    list.SetRows({{u"C1"_s, {}, {{u"1 234 Kč"_s, kGrey}}}});
    list.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    const QModelIndex cell = list.model()->index(0, 0);
    EXPECT_EQ(cell.data(Qt::ForegroundRole).value<QColor>(), kGrey);
    const double contrast =
        FarthestFromWhite(*list.viewport(), list.visualRect(cell).adjusted(2, 2, -2, -2));
    EXPECT_GE(contrast, kLegibleContrast - 0.05);
    EXPECT_LT(contrast, 6) << "still a grey";
}

/// How far the outline stands from the window's ground in a dark desktop.
template<class Box> double OutlineInTheDark() {
    Box box;
    QPalette dark(QColor(53, 53, 53), QColor(35, 35, 35));
    dark.setColor(QPalette::Base, QColor(42, 42, 42));
    box.setPalette(dark);
    box.resize(60, 24);
    QImage picture(box.size() * 3, QImage::Format_RGB32);
    picture.setDevicePixelRatio(3);
    picture.fill(dark.color(QPalette::Window));
    box.render(&picture);
    double farthest = 1;
    for (int x = 0; x < 20; ++x)
        farthest = std::max(farthest, Contrast(picture.pixelColor(x, picture.height() / 2),
                                               dark.color(QPalette::Window)));
    return farthest;
}

TEST(LegibleStyle, EmptyBoxesStandOutInTheDark) {
    EXPECT_GE(OutlineInTheDark<QCheckBox>(), kOutlineContrast - 0.05);
    EXPECT_GE(OutlineInTheDark<QRadioButton>(), kOutlineContrast - 0.05);
    EXPECT_GE(OutlineInTheDark<QLineEdit>(), kOutlineContrast - 0.05);
    EXPECT_GE(OutlineInTheDark<QDateEdit>(), kOutlineContrast - 0.05);
    EXPECT_GE(OutlineInTheDark<QComboBox>(), kOutlineContrast - 0.05);
}

/// The bar's picture at half its way, in the program's style or another.
QImage PictureOf(QScrollBar& bar, QStyle* style) {
    bar.setStyle(style);
    const QSize asked = bar.sizeHint();
    bar.resize(asked.expandedTo(bar.orientation() == Qt::Vertical ? QSize(0, 300) : QSize(300, 0)));
    bar.setRange(0, 1000);
    bar.setPageStep(200);
    bar.setValue(500);
    return bar.grab().toImage();
}

TEST(LegibleStyle, AScrollBarLooksAsTheDesktopDrawsItThoughItsGrooveIsKept) {
    const std::unique_ptr<QStyle> desktop(QStyleFactory::create(u"Fusion"_s));
    LegibleStyle style(u"Fusion"_s);
    for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal})
        for (const QColor& ground : {QColor(239, 239, 239), QColor(53, 53, 53)}) {
            QScrollBar bar(orientation);
            bar.setPalette(QPalette(ground, ground));
            const QImage wanted = PictureOf(bar, desktop.get());
            EXPECT_EQ(PictureOf(bar, &style), wanted);
            EXPECT_EQ(PictureOf(bar, &style), wanted) << "from the groove that was kept";
            bar.setStyle(nullptr);
        }
}

TEST(LegibleStyle, SoIsALabel) {
    QLabel label(u"1 234 Kč"_s);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, QColor(0, 255, 0));
    label.setPalette(palette);
    label.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&label));
    EXPECT_EQ(label.palette().color(label.foregroundRole()), QColor(0, 255, 0));
    EXPECT_GE(FarthestFromWhite(label, label.rect()), kLegibleContrast - 0.05);
}

TEST(LegibleStyle, SelectedTextCanBeReadWithTheDesktopsOwnColours) {
    const QPalette palette = QApplication::palette();
    EXPECT_GE(
        Contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)),
        kLegibleContrast);
}

} // namespace
} // namespace lorvo
