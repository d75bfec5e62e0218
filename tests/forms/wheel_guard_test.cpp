#include "forms/wheel_guard.h"

#include "forms/controls.h"
#include "support/recording_platform.h"

#include <QComboBox>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// A combo box, a number and a date beside a text box.
class WheelGuardTest : public testing::Test {
  protected:
    WheelGuardTest() {
        qApp->installEventFilter(&guard_);
        auto* layout = new QVBoxLayout(&page_);
        layout->addWidget(other_ = new QLineEdit);
        layout->addWidget(combo_ = new QComboBox);
        layout->addWidget(number_ = new QSpinBox);
        layout->addWidget(date_ = DatePicker(u"dtBorn"_s, &page_));
        combo_->addItems({u"1"_s, u"2"_s, u"3"_s});
        combo_->setCurrentIndex(1);
        number_->setValue(50);
        date_->setDate({2024, 6, 5});
        page_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&page_));
        other_->setFocus();
    }

    /// Turns the wheel over the widget; false when it leaves the turn to what it lies in.
    bool Turn(QWidget& widget) {
        const QPointF middle = widget.rect().center();
        QWheelEvent wheel(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wheel); // as from a real mouse
        qApp->notify(&widget, &wheel);
        return wheel.isAccepted();
    }

    test::RecordingPlatform platform_;
    WheelGuard guard_;
    QWidget page_;
    QLineEdit* other_;
    QComboBox* combo_;
    QSpinBox* number_;
    QDateEdit* date_;
};

TEST_F(WheelGuardTest, ABoxWithoutTheFocusKeepsItsValueAndPassesTheTurnOn) {
    EXPECT_FALSE(Turn(*combo_));
    EXPECT_FALSE(Turn(*number_));
    EXPECT_FALSE(Turn(*date_));
    EXPECT_FALSE(Turn(*date_->findChild<QLineEdit*>()));
    EXPECT_EQ(combo_->currentIndex(), 1);
    EXPECT_EQ(number_->value(), 50);
    EXPECT_EQ(date_->date(), QDate(2024, 6, 5));
    EXPECT_TRUE(other_->hasFocus());
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
