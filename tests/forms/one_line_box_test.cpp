#include "forms/one_line_box.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class OneLineBoxTest : public testing::Test {
  protected:
    OneLineBoxTest() {
        QObject::connect(&box_, &QLineEdit::textChanged, [this](const QString& t) { told_ = t; });
        KeepOnOneLine(box_);
        box_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&box_));
    }
    void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(&box_, Qt::Key_V, Qt::ControlModifier);
    }
    void TakeBack() { QTest::keyClick(&box_, Qt::Key_Z, Qt::ControlModifier); }

    QString told_; ///< what a listener was told last
    QLineEdit box_;
};

TEST_F(OneLineBoxTest, ACellOfASpreadsheetComesWithoutItsBreak) {
    Paste(u"Novák\r\n"_s);
    EXPECT_EQ(box_.text(), u"Novák"_s);
    EXPECT_TRUE(box_.isModified());
    EXPECT_EQ(told_, u"Novák"_s);
    QTest::keyClicks(&box_, u" ml"_s);
    EXPECT_EQ(box_.text(), u"Novák ml"_s);
}

TEST_F(OneLineBoxTest, APasteIsTakenBackWhole) {
    QTest::keyClicks(&box_, u"Jan  Novy"_s);
    box_.setCursorPosition(4);
    Paste(u"z\nHory"_s);
    EXPECT_EQ(box_.text(), u"Jan z Hory Novy"_s);
    EXPECT_EQ(box_.cursorPosition(), 10);
    TakeBack();
    EXPECT_EQ(box_.text(), u"Jan  Novy"_s);
}

TEST_F(OneLineBoxTest, BreaksAloneChangeNothing) {
    QTest::keyClicks(&box_, u"Rek"_s);
    Paste(u"\n\n"_s);
    EXPECT_EQ(box_.text(), u"Rek"_s);
    EXPECT_EQ(told_, u"Rek"_s);
    box_.selectAll();
    Paste(u"Max\n"_s);
    EXPECT_EQ(box_.text(), u"Max"_s);
    TakeBack();
    EXPECT_EQ(box_.text(), u"Rek"_s);
}

TEST_F(OneLineBoxTest, AStoredTextWithBreaksIsLeftAloneUntilItIsEdited) {
    box_.setText(u"a\nb"_s);
    EXPECT_EQ(box_.text(), u"a\nb"_s);
    QTest::keyClicks(&box_, u"c"_s);
    EXPECT_EQ(box_.text(), u"a bc"_s);
}

} // namespace
} // namespace lorvo
