#include "forms/wrapped_label.h"

#include <QImage>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class WrappedLabelTest : public ::testing::Test {
  protected:
    /// Rows of the picture that hold ink, counted in runs: the lines of the text.
    static int LinesIn(const QImage& picture) {
        int lines = 0;
        bool within = false;
        for (int y = 0; y < picture.height(); ++y) {
            bool ink = false;
            for (int x = 0; x < picture.width(); ++x)
                ink = ink || picture.pixel(x, y) != picture.pixel(0, 0);
            lines += ink && !within;
            within = ink;
        }
        return lines;
    }
    int WidthOf(const QString& text) const { return label_.fontMetrics().horizontalAdvance(text); }
    void Fit(int width) { label_.resize(width, label_.heightForWidth(width)); }

    WrappedLabel label_{nullptr};
};

TEST_F(WrappedLabelTest, AWordThatIsWiderThanItsPlaceGoesOnOnTheNextLine) {
    label_.setText(u"nnnnnnnnnn"_s);
    Fit(WidthOf(u"nnnnn"_s) + 2);
    EXPECT_EQ(LinesIn(label_.grab().toImage()), 2);
    EXPECT_GE(label_.height(), 2 * label_.fontMetrics().height());
    Fit(WidthOf(u"nnn"_s) + 2);
    EXPECT_EQ(LinesIn(label_.grab().toImage()), 4);
}

TEST_F(WrappedLabelTest, OtherWordsStayWhole) {
    label_.setText(u"nnn nnnnnnnnnn"_s);
    Fit(WidthOf(u"nnnnn"_s) + 2);
    EXPECT_EQ(LinesIn(label_.grab().toImage()), 3);
}

TEST_F(WrappedLabelTest, WithRoomForEachWordItIsAnOrdinaryLabel) {
    label_.setText(u"nnn nnn"_s);
    QLabel ordinary(label_.text());
    ordinary.setWordWrap(true);
    for (const int width : {WidthOf(u"nnnn"_s), WidthOf(u"nnnnnnnnn"_s)}) {
        EXPECT_EQ(label_.heightForWidth(width), ordinary.heightForWidth(width));
        Fit(width);
        ordinary.resize(label_.size());
        EXPECT_EQ(label_.grab().toImage(), ordinary.grab().toImage());
    }
}

TEST_F(WrappedLabelTest, AsksForWhatAnOrdinaryLabelAsksForWhateverItShowedBefore) {
    QLabel ordinary(nullptr);
    ordinary.setWordWrap(true);
    QFont large = label_.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    for (const QFont& font : {label_.font(), large})
        for (const QString& text :
             {u"nnn"_s, u"nnn nnn nnn nnn"_s, QString(), u"nnn\nnnn"_s, u"mmm"_s}) {
            for (QLabel* label : std::initializer_list<QLabel*>{&label_, &ordinary}) {
                label->setFont(font);
                label->setText(text);
            }
            for (int width = WidthOf(u"mmm"_s) + 1; width < 40 * WidthOf(u"n"_s); width += 7)
                EXPECT_EQ(label_.heightForWidth(width), ordinary.heightForWidth(width))
                    << text.toStdString() << " at " << width;
        }
}

TEST_F(WrappedLabelTest, WhatTakesTheWidthItIsGivenKeepsRoomForALine) {
    label_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QLabel ordinary(nullptr);
    ordinary.setWordWrap(true);
    for (const QString& text : {u"nnn"_s, u"nnn nnn nnn nnn nnn nnn"_s}) {
        label_.setText(text);
        ordinary.setText(text);
        for (const int width : {10, 40, 400}) {
            label_.resize(width, label_.height());
            EXPECT_EQ(label_.minimumSizeHint().height(), ordinary.minimumSizeHint().height());
        }
    }
}

} // namespace
} // namespace lorvo
