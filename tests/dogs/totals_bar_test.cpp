#include "dogs/totals_bar.h"

#include "support/modal_driver.h"

#include <QImage>
#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString kSums = u"Poplatky celkem: 237 640,00 Kč, uhrazeno celkem: 199 395,86 Kč, "
                      "bilance: -38 244,14 Kč"_s;

class TotalsBarTest : public ::testing::Test {
  protected:
    TotalsBarTest() {
        bar_.SetPanel(1, u"V seznamu  je 183 psů a 217 fen, celkem 400."_s);
        bar_.SetPanel(2, kSums);
    }
    QLabel& Sums() { return test::Control<QLabel>(bar_, "stbBar(2)"); }
    int WidthOf(const QString& text) { return Sums().fontMetrics().horizontalAdvance(text); }
    int LinesIn(int width) { return Sums().heightForWidth(width) / LineHeight(); }
    int LineHeight() { return Sums().fontMetrics().lineSpacing(); }
    /// Where the ink of a line ends in a label of that width.
    int EndOfInk(int width, int line) {
        Sums().resize(width, LinesIn(width) * LineHeight());
        const QImage picture = Sums().grab().toImage();
        int end = 0;
        for (int y = line * LineHeight(); y < (line + 1) * LineHeight(); ++y)
            for (int x = end; x < picture.width(); ++x)
                end = picture.pixel(x, y) != picture.pixel(0, 0) ? x : end;
        return end;
    }

    TotalsBar bar_{"stbBar", nullptr};
};

TEST_F(TotalsBarTest, StandsOnOneLineWhereThereIsRoom) {
    bar_.resize(1200, 40);
    bar_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar_));
    EXPECT_GE(Sums().width(), WidthOf(kSums));
    EXPECT_EQ(LinesIn(Sums().width()), 1);
    EXPECT_EQ(Sums().text(), kSums);
}

TEST_F(TotalsBarTest, ANarrowOneBreaksBetweenTheSums) {
    const int width = WidthOf(u"Poplatky celkem: 237 640,00 Kč, uhrazeno"_s);
    EXPECT_EQ(LinesIn(width), 3);
    int line = 0;
    for (const auto& sum : {u"Poplatky celkem: 237 640,00 Kč,"_s,
                            u"uhrazeno celkem: 199 395,86 Kč,"_s, u"bilance: -38 244,14 Kč"_s})
        EXPECT_NEAR(EndOfInk(width, line++), WidthOf(sum), 3) << sum.toStdString();
}

TEST_F(TotalsBarTest, TheNarrowestNeverBreaksWithinANumber) {
    EXPECT_EQ(LinesIn(Sums().minimumSizeHint().width()), 8);
    bar_.resize(1, 40);
    bar_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar_));
    EXPECT_GE(Sums().width(), WidthOf(u"199 395,86 Kč,"_s));
}

} // namespace
} // namespace lorvo
