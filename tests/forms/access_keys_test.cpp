#include "forms/access_keys.h"

#include "forms/access_key_style.h"
#include "forms/controls.h"
#include "forms/elided_label.h"
#include "support/recording_platform.h"

#include <QImage>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class AccessKeysTest : public ::testing::Test {
  protected:
    AccessKeysTest() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(CaptionFor(name, u"Jméno"_s, &window));
        column->addWidget(name);
        column->addWidget(add);
        column->addWidget(other);
        new AccessKeys(window);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    test::RecordingPlatform platform;
    QWidget window;
    QLineEdit* name = new QLineEdit(&window);
    QPushButton* add = new QPushButton(u"Přidat nového"_s, &window);
    QPushButton* other = new QPushButton(u"Zpět"_s, &window);
};

TEST_F(AccessKeysTest, AButtonActsAtOnceSoThatWhatIsTypedNextIsNotLost) {
    QObject::connect(add, &QPushButton::clicked, name, [this] { name->setFocus(); });
    QTest::keyClick(&window, Qt::Key_N, Qt::AltModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"Eva"_s);
    EXPECT_EQ(name->text(), u"Eva"_s);
}

TEST_F(AccessKeysTest, AButtonWhoseTextMarksALetterActsAtOnceToo) {
    QObject::connect(other, &QPushButton::clicked, name, [this] { name->setFocus(); });
    other->setText(u"Z&pět"_s);
    QCoreApplication::processEvents();
    QTest::keyClick(&window, Qt::Key_P, Qt::AltModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"Eva"_s);
    EXPECT_EQ(name->text(), u"Eva"_s);
}

TEST_F(AccessKeysTest, ACaptionLeadsToItsField) {
    other->setFocus();
    const QChar key = AccessKeyOf(*window.findChild<QLabel*>());
    QTest::keyClick(&window, static_cast<Qt::Key>(key.unicode()), Qt::AltModifier);
    EXPECT_TRUE(name->hasFocus());
}

TEST_F(AccessKeysTest, TheMarkOfALetterMakesNoTextWider) {
    auto& marked = *window.findChild<QLabel*>();
    marked.setText(u"Telefon"_s);
    QCoreApplication::processEvents();
    ASSERT_EQ(AccessKeyOf(marked), u'T');
    QLabel plain(marked.text());
    const QSize size = plain.sizeHint() + QSize(20, 0);
    const auto endOfInk = [size](QLabel& label) {
        QImage picture(size * 8, QImage::Format_RGB32);
        picture.setDevicePixelRatio(8);
        picture.fill(Qt::white);
        label.resize(size);
        label.render(&picture, {}, {}, QWidget::DrawChildren);
        int end = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = end; x < picture.width(); ++x)
                end = picture.pixelColor(x, y) != Qt::white ? x : end;
        return end;
    };
    EXPECT_EQ(endOfInk(marked), endOfInk(plain));
}

TEST_F(AccessKeysTest, ACommandOfABarLeavesTheKeyboardWhereItIs) {
    auto* command = new QToolButton(&window);
    command->setText(u"Filtr"_s);
    command->setToolButtonStyle(Qt::ToolButtonTextOnly);
    command->setFocusPolicy(Qt::TabFocus);
    command->show();
    int pressed = 0;
    QObject::connect(command, &QToolButton::clicked, command, [&pressed] { ++pressed; });
    name->setFocus();
    QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(pressed, 1);
    EXPECT_TRUE(name->hasFocus());
}

TEST_F(AccessKeysTest, AHeadingLeadsToWhatStandsBelowItAsLongAsThatIsInSight) {
    LeadByAccessKey(*other, *name);
    int pressed = 0;
    QObject::connect(other, &QPushButton::clicked, other, [&pressed] { ++pressed; });
    add->setFocus();
    QTest::keyClick(&window, static_cast<Qt::Key>(AccessKeyOf(*other).unicode()), Qt::AltModifier);
    EXPECT_TRUE(name->hasFocus());
    EXPECT_EQ(pressed, 0);
    name->hide();
    QTest::keyClick(&window, static_cast<Qt::Key>(AccessKeyOf(*other).unicode()), Qt::AltModifier);
    EXPECT_EQ(pressed, 1);
}

TEST_F(AccessKeysTest, TextsStayAsTheyAreAndTheLetterIsUnderlined) {
    EXPECT_EQ(add->text(), u"Přidat nového"_s);
    EXPECT_EQ(WithAccessKey(add->text(), u'N'), u"Přidat &nového"_s);
    AccessKeyStyle style;
    add->setStyle(&style);
    const QImage marked = add->grab().toImage();
    add->setProperty("accessKey", QChar());
    EXPECT_NE(add->grab().toImage(), marked);
    add->setStyle(nullptr);
}

TEST_F(AccessKeysTest, ACaptionIsUnderlinedToo) {
    auto* label = window.findChild<QLabel*>();
    AccessKeyStyle style;
    label->setStyle(&style);
    const QImage marked = label->grab().toImage();
    label->setProperty("accessKey", QChar());
    EXPECT_NE(label->grab().toImage(), marked);
    label->setStyle(nullptr);
}

TEST_F(AccessKeysTest, ALinkIsUnderlinedTooWhateverItsHeight) {
    LinkLabel link(u"Seznam"_s, &window);
    AccessKeyStyle style;
    link.setStyle(&style);
    for (const int height : {link.fontMetrics().height(), 40}) {
        link.resize(100, height);
        link.setProperty("accessKey", u'S');
        const QImage marked = link.grab().toImage();
        link.setProperty("accessKey", QChar());
        EXPECT_NE(link.grab().toImage(), marked) << height;
    }
    link.setStyle(nullptr);
}

TEST_F(AccessKeysTest, ATextThatIsCutShowsTheLettersThatAreLeft) {
    Elided<LinkLabel> link(u"Seznam přijatých plateb"_s, &window);
    AccessKeyStyle style;
    link.setStyle(&style);
    link.resize(80, 20);
    const auto picture = [&link](QChar key) {
        link.setProperty("accessKey", key);
        return link.grab().toImage();
    };
    const QImage plain = picture(QChar());
    EXPECT_NE(picture(u'S'), plain);
    EXPECT_EQ(picture(u'B'), plain) << "the letter has been cut off";
    link.setStyle(nullptr);
}

TEST_F(AccessKeysTest, FollowTextsAndWhatIsShown) {
    add->setText(u"Start"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(AccessKeyOf(*add), u'S');
    add->hide();
    QCoreApplication::processEvents();
    other->setText(u"Storno"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(AccessKeyOf(*other), u'S');
}

class PaintCount : public QObject {
  public:
    explicit PaintCount(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    int paints = 0;
};

TEST_F(AccessKeysTest, WhatKeepsItsLetterIsLeftAloneWhenOthersChange) {
    const QPointer<QShortcut> bound = other->findChild<QShortcut*>();
    ASSERT_TRUE(bound);
    ASSERT_EQ(AccessKeyOf(*other), u'Z');
    PaintCount count(other);
    add->setText(u"Start"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(AccessKeyOf(*add), u'S');
    EXPECT_TRUE(bound);
    EXPECT_EQ(count.paints, 0);
    add->setText(u"Z"_s); // has no other letter, so that the one above gives way
    QCoreApplication::processEvents();
    EXPECT_EQ(AccessKeyOf(*add), u'Z');
    EXPECT_NE(AccessKeyOf(*other), u'Z');
    EXPECT_FALSE(bound);
    EXPECT_GT(count.paints, 0);
}

TEST_F(AccessKeysTest, WhatComesBackIsBoundAgain) {
    const auto key = static_cast<Qt::Key>(AccessKeyOf(*add).unicode());
    add->hide();
    QCoreApplication::processEvents();
    EXPECT_FALSE(add->findChild<QShortcut*>());
    add->show();
    QCoreApplication::processEvents();
    int clicks = 0;
    QObject::connect(add, &QPushButton::clicked, add, [&clicks] { ++clicks; });
    QTest::keyClick(&window, key, Qt::AltModifier);
    EXPECT_EQ(clicks, 1);
}

TEST_F(AccessKeysTest, ANameThatIsALinkKeepsItsAmpersand) {
    auto* owner = new LinkLabel(u"Novák & syn"_s, &window);
    window.layout()->addWidget(owner);
    QCoreApplication::processEvents();
    QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier); // all texts have been looked at by then
    EXPECT_EQ(owner->text(), u"Novák & syn"_s);
}

TEST_F(AccessKeysTest, WhatCannotBePressedIsNot) {
    int clicks = 0;
    QObject::connect(other, &QPushButton::clicked, other, [&clicks] { ++clicks; });
    other->setEnabled(false);
    QTest::keyClick(&window, Qt::Key_Z, Qt::AltModifier);
    EXPECT_EQ(clicks, 0);
    other->setEnabled(true);
    QTest::keyClick(&window, Qt::Key_Z, Qt::AltModifier);
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace lorvo
