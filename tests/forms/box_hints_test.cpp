#include "forms/box_hints.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

namespace lorvo {
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
    QTest::keyClicks(&box_, QStringLiteral("12345"));
    EXPECT_EQ(QToolTip::text(), QString());
    box_.clear();
    QGuiApplication::clipboard()->setText(QStringLiteral("1234567"));
    QTest::keyClick(&box_, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box_.text(), QStringLiteral("12345"));
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Do pole se vejde nejvýš 5 znaků."));
}

TEST_F(BoxHintsTest, SaysWhatIsExpectedAsLongAsTheTextDoesNotFit) {
    TellWhatFits(
        box_, [](const QString& text) { return text == u"12"; }, QStringLiteral("Dvanáct."));
    QTest::keyClicks(&box_, QStringLiteral("1"));
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Dvanáct."));
    QTest::keyClicks(&box_, QStringLiteral("2"));
    QTRY_VERIFY2_WITH_TIMEOUT(!QToolTip::isVisible(), "the hint stays", 2000);
}

} // namespace
} // namespace lorvo
