#include "forms/elided_label.h"

#include "support/print_qt.h"

#include <QLabel>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class ElidedLabelTest : public ::testing::Test {
  protected:
    ElidedLabelTest() { label_.setText(name_); }
    static int WidthOf(const QString& text) { return QLabel(text).sizeHint().width(); }

    const QString name_ = u"Chovatelská stanice Na Kopečku u Dlouhé Lhoty"_s;
    ElidedLabel label_{nullptr};
};

TEST_F(ElidedLabelTest, TellsTheWholeTextWhereItIsCut) {
    label_.setToolTip(u"Majitel"_s);
    label_.resize(WidthOf(name_) / 2, 30);
    label_.grab();
    EXPECT_EQ(label_.toolTip(), name_);
    EXPECT_EQ(label_.text(), name_);
    label_.resize(WidthOf(name_) + 20, 30);
    label_.grab();
    EXPECT_EQ(label_.toolTip(), u"Majitel"_s);
}

TEST_F(ElidedLabelTest, EndsInAnEllipsisAtItsEdge) {
    label_.resize(WidthOf(name_) / 2, 30);
    const QImage cut = label_.grab().toImage();
    QLabel shortened(label_.fontMetrics().elidedText(name_, Qt::ElideRight, label_.width()));
    shortened.resize(label_.size());
    EXPECT_EQ(cut, shortened.grab().toImage());
}

TEST_F(ElidedLabelTest, GetsNarrowWhateverItsText) {
    EXPECT_LT(label_.minimumSizeHint().width(), WidthOf(u"Chovatel"_s));
    EXPECT_EQ(label_.sizeHint().width(), WidthOf(name_));
}

TEST_F(ElidedLabelTest, AToolTipShowsMarkupAsItIs) {
    EXPECT_EQ(PlainToolTip(u"Rex z Lhoty"_s), u"Rex z Lhoty"_s);
    EXPECT_EQ(PlainToolTip(u"A & B < C"_s), u"A & B < C"_s);
    const QString tip = PlainToolTip(u"<b>Rex</b>"_s);
    EXPECT_TRUE(Qt::mightBeRichText(tip));
    EXPECT_EQ(tip, u"&lt;b&gt;Rex&lt;/b&gt;"_s);
}

} // namespace
} // namespace lorvo
