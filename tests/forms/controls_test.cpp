#include "forms/controls.h"

#include "platform/values/date_value.h"
#include "support/recording_platform.h"
#include "support/window_walk.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

TEST(NumberStyleTest, RefusesTypedNonDigitsAndTakesPastedText) {
    QLineEdit box;
    SetNumberStyle(box);
    QTest::keyClicks(&box, u"1a2,3-"_s);
    EXPECT_EQ(box.text(), u"123"_s);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QGuiApplication::clipboard()->setText(u"abc"_s);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), u"12abc"_s);
}

TEST(NumberStyleTest, SaysThatADecimalSignWasNotTaken) {
    QLineEdit box;
    SetNumberStyle(box);
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    QTest::keyClicks(&box, u"150"_s);
    EXPECT_EQ(QToolTip::text(), QString());
    QTest::keyClicks(&box, u",50"_s);
    EXPECT_EQ(box.text(), u"15050"_s);
    EXPECT_EQ(QToolTip::text(), u"Píšou se sem jen číslice, bez desetinných míst."_s);
    QToolTip::hideText();
}

TEST(NumberStyleTest, RefusesNonDigitsOfAnInputMethod) {
    QLineEdit box;
    SetNumberStyle(box);
    QInputMethodEvent letter;
    letter.setCommitString(u"é"_s);
    QApplication::sendEvent(&box, &letter);
    EXPECT_EQ(box.text(), QString());
}

TEST(LinkLabelTest, UnderlinesUnderTheMouseAndActsOnClicksAndKeys) {
    LinkLabel link(u"Upravit"_s, nullptr);
    QSignalSpy clicks(&link, &LinkLabel::Clicked);
    link.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&link));
    QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
    QApplication::sendEvent(&link, &enter);
    EXPECT_TRUE(link.font().underline());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&link, &leave);
    EXPECT_FALSE(link.font().underline());
    QTest::mouseClick(&link, Qt::LeftButton);
    QTest::mouseClick(&link, Qt::RightButton);
    QTest::keyClick(&link, Qt::Key_Return);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&link, &held);
    ASSERT_EQ(clicks.count(), 3);
    EXPECT_EQ(clicks[1][0].value<Qt::MouseButton>(), Qt::RightButton);
}

TEST(LinkLabelTest, StandsAndIsReadAsTheCaptionBesideIt) {
    LinkLabel link(QString(), nullptr);
    QLabel caption;
    caption.setTextFormat(Qt::PlainText);
    const auto picture = [](QLabel& label, const QPalette& palette, bool enabled, bool underlined,
                            int more) {
        QFont font;
        font.setUnderline(underlined);
        label.setFont(font);
        label.setPalette(palette);
        label.setEnabled(enabled);
        label.setText(u"Příjem & platby"_s);
        label.resize(160, label.fontMetrics().height() + more);
        return label.grab().toImage();
    };
    const QPalette dark(QColor(53, 53, 53), QColor(35, 35, 35));
    for (const bool enabled : {true, false}) {
        caption.setForegroundRole(enabled ? QPalette::Link : QPalette::Text);
        for (const QPalette& palette : {QPalette(), dark})
            for (const bool underlined : {false, true})
                for (const int more : {0, 9})
                    EXPECT_EQ(picture(link, palette, enabled, underlined, more),
                              picture(caption, palette, enabled, underlined, more))
                        << enabled << underlined << more;
    }
}

TEST(DatePickerTest, ShowsTheSystemsShortDateAndKeepsDates) {
    test::RecordingPlatform platform;
    const std::unique_ptr<QDateEdit> picker(DatePicker(u"dtBorn"_s, nullptr));
    SetPickedDate(*picker, DateValue::FromCalendar(2005, 5, 4));
    EXPECT_EQ(picker->text(), u"4.5.2005"_s);
    EXPECT_EQ(PickedDate(*picker), DateValue::FromCalendar(2005, 5, 4));
    EXPECT_EQ(picker->minimumDate(), QDate(1601, 1, 1));
    EXPECT_EQ(picker->maximumDate(), QDate(9999, 12, 31));
    EXPECT_TRUE(picker->calendarPopup());
}

/// A window that holds what the walk asks for.
class TidyWindow : public QWidget {
  public:
    TidyWindow() {
        setObjectName(u"frmTidy"_s);
        auto* layout = new QFormLayout(this);
        layout->addRow(CaptionFor(txtName, u"Jméno"_s, this), txtName);
        layout->addRow(CaptionFor(txtTown, u"Město"_s, this), txtTown);
        layout->addRow(ButtonRow({cmdOK, cmdCancel}));
    }

    QLineEdit* txtName = Named(new QLineEdit(this), u"txtName"_s);
    QLineEdit* txtTown = Named(new QLineEdit(this), u"txtTown"_s);
    QPushButton* cmdOK = Named(new QPushButton(u"OK"_s, this), u"cmdOK"_s);
    QPushButton* cmdCancel = Named(new QPushButton(u"Storno"_s, this), u"cmdCancel"_s);
};

TEST(WindowWalkTest, PassesATidyWindow) {
    TidyWindow window;
    test::WalkWindow(window);
    EXPECT_TRUE(window.cmdOK->isDefault());
    EXPECT_FALSE(window.cmdCancel->isDefault());
}

TEST(WindowWalkTest, NoticesWhatIsWrong) {
    TidyWindow unnamed;
    unnamed.cmdOK->setObjectName({});
    EXPECT_NONFATAL_FAILURE(test::WalkWindow(unnamed), "has no name");
    TidyWindow uncaptioned;
    uncaptioned.findChild<QLabel*>()->setBuddy(nullptr);
    EXPECT_NONFATAL_FAILURE(test::WalkWindow(uncaptioned), "has no caption");
    TidyWindow cut;
    cut.findChild<QLabel*>()->setFixedWidth(10);
    EXPECT_NONFATAL_FAILURE(test::WalkWindow(cut), "is cut");
    TidyWindow disordered;
    QWidget::setTabOrder(disordered.cmdOK, disordered.cmdCancel);
    QWidget::setTabOrder(disordered.txtTown, disordered.txtName);
    QWidget::setTabOrder(disordered.txtName, disordered.cmdOK);
    EXPECT_NONFATAL_FAILURE(test::WalkWindow(disordered), "Tab goes from");
}

} // namespace
} // namespace lorvo
