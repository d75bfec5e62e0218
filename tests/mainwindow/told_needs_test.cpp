#include "mainwindow/told_needs.h"

#include <QResizeEvent>
#include <QStyle>
#include <QWidget>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

/// As high as told wherever it is narrower than its limit, one pixel elsewhere.
class Needy : public QWidget {
  public:
    QSize minimumSizeHint() const override { return {least, 1}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return width < limit ? high : 1; }
    int least = 10;
    int limit = 0;
    int high = 50;
};

class ToldNeedsTest : public ::testing::Test {
  protected:
    ToldNeedsTest() {
        widget_.resize(200, 20);
        EXPECT_TRUE(told_.ToTell(widget_));
        EXPECT_FALSE(told_.ToTell(widget_));
    }
    bool Resized(QSize to) {
        const QResizeEvent resize(to, widget_.size());
        widget_.resize(to);
        return told_.ToTell(resize);
    }
    Needy widget_;
    const int bar_ = widget_.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    ToldNeeds told_;
};

TEST_F(ToldNeedsTest, AnotherHeightIsToldOnce) {
    widget_.limit = 300;
    EXPECT_TRUE(told_.ToTell(widget_));
    EXPECT_FALSE(told_.ToTell(widget_));
    widget_.high = 60;
    EXPECT_TRUE(told_.ToTell(widget_));
}

TEST_F(ToldNeedsTest, SoIsAnotherLeastWidth) {
    widget_.least = 11;
    EXPECT_TRUE(told_.ToTell(widget_));
}

TEST_F(ToldNeedsTest, SoIsAHeightInTheWidthThatAScrollBarWouldLeaveOrGiveBack) {
    widget_.limit = 200 - bar_ + 1;
    EXPECT_TRUE(told_.ToTell(widget_));
    widget_.limit = 200 + bar_ + 1;
    EXPECT_TRUE(told_.ToTell(widget_));
}

TEST_F(ToldNeedsTest, WhatWasKeptBackIsToldWhenTheWidthChanges) {
    widget_.limit = 100;
    EXPECT_FALSE(told_.ToTell(widget_));
    EXPECT_FALSE(Resized({200, 90}));
    EXPECT_TRUE(Resized({90, 90}));
    EXPECT_FALSE(Resized({80, 90}));
}

TEST_F(ToldNeedsTest, AfterOthersHaveToldAllIsToldAnew) {
    told_.Forget();
    EXPECT_TRUE(told_.ToTell(widget_));
}

} // namespace
} // namespace lorvo
