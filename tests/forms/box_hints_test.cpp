#include "forms/box_hints.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class BoxHintsTest : public testing::Test {
  protected:
    BoxHintsTest() {
        box_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&box_));
    }
    ~BoxHintsTest() override { QToolTip::hideText(); }

    QLineEdit box_;
};

TEST_F(BoxHintsTest, ALongerPastedTextIsCutAndToldOf) {
    box_.setMaxLength(5);
    TellItsLimit(box_);
    QTest::keyClicks(&box_, u"12345"_s);
    EXPECT_EQ(QToolTip::text(), QString());
    box_.clear();
    QGuiApplication::clipboard()->setText(u"1234567"_s);
    QTest::keyClick(&box_, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box_.text(), u"12345"_s);
    EXPECT_EQ(QToolTip::text(), u"Do pole se vejde nejvýš 5 znaků."_s);
}

TEST_F(BoxHintsTest, SaysWhatIsExpectedAsLongAsTheTextDoesNotFit) {
    TellWhatFits(
        box_, [](const QString& text) { return text == u"12"; }, u"Dvanáct."_s);
    QTest::keyClicks(&box_, u"1"_s);
    EXPECT_EQ(QToolTip::text(), u"Dvanáct."_s);
    QTest::keyClicks(&box_, u"2"_s);
    QTRY_VERIFY2_WITH_TIMEOUT(!QToolTip::isVisible(), "the hint stays", 2000);
}

} // namespace
} // namespace lorvo
