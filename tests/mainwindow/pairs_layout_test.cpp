#include "mainwindow/pairs_layout.h"

#include "support/print_qt.h"

#include <QLabel>
#include <QTest>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class PairsLayoutTest : public ::testing::Test {
  protected:
    PairsLayoutTest() {
        for (int column = 0; column < 2; ++column)
            for (int line = 0; line < 2; ++line) {
                auto* value = new QLabel(u"hodnota"_s);
                value->setWordWrap(true);
                layout_->AddLine(column, new QLabel(u"Popis:"_s), value, Qt::AlignTop);
                values_.push_back(value);
            }
        window_.setLayout(layout_);
        window_.show();
    }
    void Resize(int width) {
        window_.resize(width, 300);
        layout_->activate();
    }
    QPoint PlaceOf(int value) const { return values_[static_cast<std::size_t>(value)]->pos(); }

    QWidget window_;
    PairsLayout* layout_ = new PairsLayout({60, 60}, 80);
    std::vector<QLabel*> values_; ///< two of the first column, two of the second
};

TEST_F(PairsLayoutTest, ColumnsStandSideBySideWithTheirLinesInLine) {
    Resize(600);
    EXPECT_EQ(PlaceOf(0).y(), PlaceOf(2).y());
    EXPECT_EQ(PlaceOf(1).y(), PlaceOf(3).y());
    EXPECT_EQ(PlaceOf(0).x(), PlaceOf(1).x());
    EXPECT_GT(PlaceOf(2).x(), 300);
    values_[0]->setText(u"slovo slovo slovo slovo slovo slovo slovo slovo slovo slovo slovo"_s);
    layout_->activate();
    EXPECT_EQ(PlaceOf(1).y(), PlaceOf(3).y());
}

TEST_F(PairsLayoutTest, ANarrowPlaceHasThemOneBelowTheOther) {
    Resize(600);
    const int wide = layout_->minimumSize().height();
    Resize(layout_->minimumSize().width());
    for (int value = 1; value < 4; ++value) {
        EXPECT_EQ(PlaceOf(value).x(), PlaceOf(0).x()) << value;
        EXPECT_GT(PlaceOf(value).y(), PlaceOf(value - 1).y()) << value;
    }
    EXPECT_GE(layout_->minimumSize().height(), 2 * wide);
    EXPECT_EQ(layout_->heightForWidth(window_.width()), layout_->minimumSize().height());
}

TEST_F(PairsLayoutTest, CaptionsAndValuesKeepTheirLeastWidth) {
    Resize(1);
    EXPECT_GE(PlaceOf(0).x(), 60);
    EXPECT_GE(values_[0]->width(), 80);
    EXPECT_LT(layout_->minimumSize().width(), 200);
}

} // namespace
} // namespace lorvo
