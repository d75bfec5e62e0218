#include "forms/date_box.h"

#include "forms/controls.h"
#include "support/recording_platform.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QDate kStart(2026, 11, 21);

/// A date box above a text box in a window with a default button.
class DateBoxTest : public testing::Test {
  protected:
    DateBoxTest() {
        platform_.now = DateValue::FromCalendar(2026, 11, 21);
        picker_ = static_cast<DateBox*>(DatePicker(u"dtBorn"_s, &window_, YearWindow::Past));
        auto* layout = new QVBoxLayout(&window_);
        layout->addWidget(before_);
        layout->addWidget(picker_);
        layout->addWidget(after_);
        layout->addWidget(ok_);
        QWidget::setTabOrder(before_, picker_);
        QWidget::setTabOrder(picker_, after_);
        ok_->setDefault(true);
        window_.show();
        if (!QTest::qWaitForWindowActive(&window_))
            ADD_FAILURE() << "no active window";
        Reset();
    }

    void Reset(QDate date = kStart) {
        after_->setFocus();
        picker_->setDate(date);
        before_->setFocus();
    }
    void Tab() { QTest::keyClick(window_.focusWidget(), Qt::Key_Tab); }
    void Type(const QString& text) { QTest::keyClicks(picker_, text); }
    QString Shown() const { return picker_->text(); }

    /// What is typed into the box that Tab has reached, and what stands there once it is left.
    QString AfterTyping(const QString& text) {
        Reset();
        Tab();
        Type(text);
        Tab();
        EXPECT_TRUE(after_->hasFocus()) << qPrintable(text);
        EXPECT_EQ(Shown(), picker_->date().toString(picker_->displayFormat()));
        return picker_->date().toString(Qt::ISODate);
    }

    test::RecordingPlatform platform_;
    QDialog window_;
    QLineEdit* before_ = new QLineEdit(&window_);
    QLineEdit* after_ = new QLineEdit(&window_);
    QPushButton* ok_ = new QPushButton(u"OK"_s, &window_);
    DateBox* picker_ = nullptr;
};

TEST_F(DateBoxTest, TakesEverySpellingThatIsTyped) {
    for (const char* text : {"5.6.2024", "05.06.2024", "5. 6. 2024", "05. 06. 2024", "5.6.24",
                             "05.06.24", "050624", "05062024", "5/6/2024", "5-6-24", "5,6,2024",
                             "5.6.2024 ", " 5.6.2024", "2024-06-05", "5.6.2024."})
        EXPECT_EQ(AfterTyping(QString::fromLatin1(text)), u"2024-06-05"_s) << text;
    EXPECT_EQ(AfterTyping(u"29.2.2004"_s), u"2004-02-29"_s);
    EXPECT_EQ(AfterTyping(u"15.5.2004"_s), u"2004-05-15"_s);
    EXPECT_EQ(AfterTyping(u"31.1.2024"_s), u"2024-01-31"_s);
    EXPECT_EQ(AfterTyping(u"5.6."_s), u"2026-06-05"_s);
    EXPECT_EQ(AfterTyping(u"22.11.26"_s), u"1926-11-22"_s);
}

TEST_F(DateBoxTest, ShowsTheLastGoodDateWhenTheTextIsNone) {
    for (const char* text :
         {"31.4.2024", "29.2.2023", "abc", "5", "5.13.2024", "1.1.1500", "0.0.0"})
        EXPECT_EQ(AfterTyping(QString::fromLatin1(text)), u"2026-11-21"_s) << text;
}

TEST_F(DateBoxTest, TypingOverOnePartGoesOnAtTheSeparators) {
    for (const char* text : {"5.6.2024", "05.06.2024", "5. 6. 2024", "05062024", "050624",
                             "5/6/2024", "5.6.24", "2024-06-05"}) {
        Reset();
        picker_->setFocus();
        picker_->setSelectedSection(QDateTimeEdit::DaySection);
        Type(QString::fromLatin1(text));
        Tab();
        EXPECT_EQ(picker_->date(), QDate(2024, 6, 5)) << text;
    }
}

TEST_F(DateBoxTest, AClickSelectsAllForTypingOver) {
    Reset();
    auto* line = picker_->findChild<QLineEdit*>();
    QTest::mouseClick(line, Qt::LeftButton);
    EXPECT_TRUE(picker_->hasFocus());
    Type(u"5.6.2024"_s);
    EXPECT_EQ(picker_->date(), QDate(2024, 6, 5));
}

TEST_F(DateBoxTest, PartsTypedOneByOneGiveTheDateWithoutLeaving) {
    const std::vector<std::pair<QDate, QDate>> changes = {
        {{2026, 12, 31}, {2026, 2, 5}},  {{2026, 11, 21}, {2024, 2, 29}},
        {{2024, 2, 29}, {1990, 1, 1}},   {{2024, 2, 29}, {2023, 12, 31}},
        {{2026, 1, 31}, {2026, 11, 30}}, {{1990, 1, 1}, {2005, 5, 14}}};
    for (const auto& [from, to] : changes) {
        Reset(from);
        QTest::mouseClick(picker_->findChild<QLineEdit*>(), Qt::LeftButton);
        picker_->setSelectedSection(QDateTimeEdit::YearSection);
        Type(QString::number(to.year()));
        picker_->setSelectedSection(QDateTimeEdit::MonthSection);
        Type(QString::number(to.month()));
        picker_->setSelectedSection(QDateTimeEdit::DaySection);
        Type(QString::number(to.day()));
        EXPECT_EQ(picker_->date(), to) << qPrintable(from.toString(Qt::ISODate));
    }
}

TEST_F(DateBoxTest, ReportsAWholeDateAtOnceAndNothingBefore) {
    Tab();
    QSignalSpy changes(picker_, &QDateEdit::dateChanged);
    Type(u"5.6.202"_s);
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(picker_->date(), kStart);
    Type(u"4"_s);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toDate(), QDate(2024, 6, 5));
    EXPECT_EQ(Shown(), u"5.6.2024"_s);
    Type(u"5"_s);
    EXPECT_EQ(Shown(), u"5.6.20245"_s);
    Tab();
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(Shown(), u"5.6.2024"_s);
}

TEST_F(DateBoxTest, ASpellingThatStandsForADateIsShownBeforeEnterActs) {
    QSignalSpy clicks(ok_, &QPushButton::clicked);
    Tab();
    Type(u"5.6.24"_s);
    EXPECT_EQ(picker_->date(), kStart);
    QTest::keyClick(picker_, Qt::Key_Return);
    EXPECT_EQ(Shown(), u"5.6.2024"_s);
    EXPECT_EQ(clicks.count(), 0);
    QTest::keyClick(picker_, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(picker_->date(), QDate(2024, 6, 5));
}

TEST_F(DateBoxTest, EnterAndEscOnATextThatIsNoDateShowTheLastGoodOne) {
    QSignalSpy clicks(ok_, &QPushButton::clicked);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        Reset();
        Tab();
        Type(u"31.4.2024"_s);
        QTest::keyClick(picker_, key);
        EXPECT_EQ(Shown(), u"21.11.2026"_s);
        EXPECT_TRUE(window_.isVisible());
    }
    EXPECT_EQ(clicks.count(), 0);
    Type(u"05.06.2024"_s);
    QTest::keyClick(picker_, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(DateBoxTest, ArrowKeysStepThePartThatTheyChose) {
    Tab();
    QTest::keyClick(picker_, Qt::Key_Up);
    EXPECT_EQ(Shown(), u"22.11.2026"_s);
    QTest::keyClick(picker_, Qt::Key_Right);
    QTest::keyClick(picker_, Qt::Key_Down);
    EXPECT_EQ(Shown(), u"22.10.2026"_s);
    QTest::keyClick(picker_, Qt::Key_Right);
    QTest::keyClick(picker_, Qt::Key_PageDown);
    EXPECT_EQ(Shown(), u"22.10.2016"_s);
    QTest::keyClick(picker_, Qt::Key_Left);
    Type(u"12"_s);
    EXPECT_EQ(Shown(), u"22.12.2016"_s);
    QTest::keyClick(picker_, Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(picker_, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_TRUE(picker_->hasFocus());
    EXPECT_EQ(picker_->currentSection(), QDateTimeEdit::DaySection);
    Reset();
    Tab();
    Type(u"5.6.24"_s);
    QTest::keyClick(picker_, Qt::Key_Up);
    EXPECT_EQ(picker_->date().month(), 6);
    EXPECT_EQ(picker_->date().year() + picker_->date().day(), 2024 + 5 + 1);
}

TEST_F(DateBoxTest, ADateIsPastedWholeWhateverIsSelected) {
    QGuiApplication::clipboard()->setText(u"5. 6. 2024\n"_s);
    picker_->setFocus();
    picker_->setSelectedSection(QDateTimeEdit::MonthSection);
    QTest::keyClick(picker_, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(picker_->date(), QDate(2024, 6, 5));
}

TEST_F(DateBoxTest, ARedFrameMarksATextThatIsNoDate) {
    const auto corner = [this] {
        return picker_->grab().toImage().pixelColor(1, 10);
    };
    Tab();
    const QColor calm = corner();
    Type(u"31.4."_s);
    EXPECT_TRUE(picker_->IsDoubtful());
    EXPECT_GT(corner().red(), corner().green() + 100);
    Tab();
    EXPECT_NE(calm.red() > calm.green() + 100, true);
    EXPECT_FALSE(picker_->IsDoubtful());
}

TEST_F(DateBoxTest, LeavesABoxThatNothingWasTypedInto) {
    QSignalSpy changes(picker_, &QDateEdit::dateChanged);
    Tab();
    EXPECT_TRUE(picker_->hasFocus());
    Tab();
    EXPECT_TRUE(after_->hasFocus());
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(DateBoxTest, TheCalendarOpensOnWhatWasTyped) {
    picker_->setFocus();
    Type(u"5.6.24"_s);
    QTest::mouseClick(picker_, Qt::LeftButton, {},
                      QPoint(picker_->width() - 8, picker_->height() / 2));
    QWidget* calendar = QApplication::activePopupWidget();
    ASSERT_TRUE(calendar);
    EXPECT_EQ(calendar->findChild<QCalendarWidget*>()->selectedDate(), QDate(2024, 6, 5));
    calendar->close();
}

TEST_F(DateBoxTest, WhatTheMouseSelectsOfAHalfTypedDateStaysSelected) {
    Tab();
    Type(u"5.6"_s);
    auto* line = picker_->findChild<QLineEdit*>();
    QTest::mouseDClick(line, Qt::LeftButton, {}, QPoint(8, line->height() / 2));
    ASSERT_TRUE(line->hasSelectedText());
    EXPECT_EQ(line->text(), u"5.6"_s);
    const QString typedOver =
        QString(line->text()).replace(line->selectionStart(), line->selectionLength(), u"7"_s);
    Type(u"7"_s);
    EXPECT_EQ(line->text(), typedOver);
}

} // namespace
} // namespace lorvo
