#include "forms/page_keys.h"

#include "forms/controls.h"
#include "support/recording_platform.h"

#include <QComboBox>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class PageKeysTest : public ::testing::Test {
  protected:
    PageKeysTest() {
        auto* column = new QVBoxLayout(&window_);
        column->addWidget(pages_);
        column->addWidget(below_);
        for (int page = 0; page < 3; ++page)
            pages_->addTab(PageWithFields(), QString::number(page));
        ChangePagesByKeys(*pages_);
        window_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    }
    static QWidget* PageWithFields() {
        auto* page = new QWidget;
        auto* column = new QVBoxLayout(page);
        column->addWidget(new QLineEdit);
        column->addWidget(new QComboBox);
        column->addWidget(DatePicker(u"dtDatum"_s, page));
        return page;
    }
    /// Presses the keys as the desktop hands them over, in that field.
    int PageAfter(QWidget& field, Qt::Key key, Qt::KeyboardModifiers with) {
        field.setFocus();
        QTest::keyClick(window_.windowHandle(), key, with);
        return pages_->currentIndex();
    }

    test::RecordingPlatform platform_;
    QWidget window_;
    QTabWidget* pages_ = new QTabWidget(&window_);
    QPushButton* below_ = new QPushButton(u"OK"_s, &window_);
};

TEST_F(PageKeysTest, CtrlTabGoesOnFromWhateverFieldAndRound) {
    for (int field = 0; field < 3; ++field) {
        pages_->setCurrentIndex(0);
        QWidget& from = *pages_->currentWidget()->layout()->itemAt(field)->widget();
        EXPECT_EQ(PageAfter(from, Qt::Key_Tab, Qt::ControlModifier), 1) << field;
    }
    pages_->setCurrentIndex(2);
    EXPECT_EQ(PageAfter(*below_, Qt::Key_Tab, Qt::ControlModifier), 0);
}

TEST_F(PageKeysTest, WithShiftItGoesBackWhicheverTabTheDesktopTells) {
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        pages_->setCurrentIndex(0);
        EXPECT_EQ(PageAfter(*below_, key, Qt::ControlModifier | Qt::ShiftModifier), 2) << key;
    }
}

} // namespace
} // namespace lorvo
