#include "forms/wheel_guard.h"

#include "forms/controls.h"
#include "support/recording_platform.h"

#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

/// A combo box, a number and a date in a page that is higher than its window.
class WheelGuardTest : public testing::Test {
  protected:
    WheelGuardTest() {
        qApp->installEventFilter(&guard_);
        auto* page = new QWidget;
        page->setMinimumHeight(900);
        auto* layout = new QVBoxLayout(page);
        layout->addWidget(other_ = new QLineEdit);
        layout->addWidget(combo_ = new QComboBox);
        layout->addWidget(number_ = new QSpinBox);
        layout->addWidget(date_ = DatePicker(QStringLiteral("dtBorn"), page));
        combo_->addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
        combo_->setCurrentIndex(1);
        number_->setValue(50);
        date_->setDate({2024, 6, 5});
        area_.setWidget(page);
        area_.resize(300, 200);
        area_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&area_));
        other_->setFocus();
    }

    void Turn(QWidget& widget) {
        const QPointF middle = widget.rect().center();
        QWheelEvent wheel(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &wheel);
    }

    test::RecordingPlatform platform_;
    WheelGuard guard_;
    QScrollArea area_;
    QLineEdit* other_;
    QComboBox* combo_;
    QSpinBox* number_;
    QDateEdit* date_;
};

TEST_F(WheelGuardTest, ABoxWithoutTheFocusKeepsItsValueAndThePageScrolls) {
    for (QWidget* box :
         {static_cast<QWidget*>(combo_), static_cast<QWidget*>(number_),
          static_cast<QWidget*>(date_), static_cast<QWidget*>(date_->findChild<QLineEdit*>())}) {
        area_.verticalScrollBar()->setValue(0);
        Turn(*box);
        EXPECT_GT(area_.verticalScrollBar()->value(), 0);
    }
    EXPECT_EQ(combo_->currentIndex(), 1);
    EXPECT_EQ(number_->value(), 50);
    EXPECT_EQ(date_->date(), QDate(2024, 6, 5));
}

TEST_F(WheelGuardTest, ABoxWithTheFocusFollowsTheWheel) {
    combo_->setFocus();
    Turn(*combo_);
    EXPECT_EQ(combo_->currentIndex(), 2);
    number_->setFocus();
    Turn(*number_);
    EXPECT_EQ(number_->value(), 49);
}

} // namespace
} // namespace lorvo
