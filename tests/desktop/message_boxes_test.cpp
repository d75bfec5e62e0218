#include "desktop/desktop_services.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Shows a box and runs `inside` with it.
MessageAnswer Answer(MessageButtons buttons, const std::function<void(QMessageBox&)>& inside,
                     MessageIcon icon = MessageIcon::Question,
                     const QString& text = u"Smazat psa?"_s) {
    QTimer::singleShot(0, qApp, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        inside(*box);
    });
    return DesktopMessageBoxes().Show(text, icon, buttons, u"Lorvo"_s);
}

void Press(QMessageBox& box, const char* name) {
    box.findChild<QPushButton*>(QString::fromLatin1(name))->click();
}

TEST(MessageBoxesTest, HasExactlyTheButtonsAskedForTheFirstOneDefault) {
    const auto texts = [](QMessageBox& box) {
        QStringList result;
        for (const QAbstractButton* button : box.buttons())
            result << button->text();
        result.sort();
        return result.join(u' ');
    };
    const auto check = [&](MessageButtons buttons, const char* expected, const char* preset) {
        Answer(buttons, [&](QMessageBox& box) {
            EXPECT_EQ(texts(box), QString::fromUtf8(expected));
            EXPECT_EQ(box.defaultButton()->text(), QString::fromUtf8(preset));
            box.close();
        });
    };
    check(MessageButtons::Ok, "OK", "OK");
    check(MessageButtons::OkCancel, "OK Storno", "OK");
    check(MessageButtons::YesNo, "Ano Ne", "Ano");
    check(MessageButtons::YesNoCancel, "Ano Ne Storno", "Ano");
}

TEST(MessageBoxesTest, AKeyStillHeldFromBeforeAnswersNothing) {
    Answer(MessageButtons::YesNoCancel, [](QMessageBox& box) {
        for (const int key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape})
            for (QWidget* target :
                 {static_cast<QWidget*>(box.defaultButton()), static_cast<QWidget*>(&box)}) {
                QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
                QApplication::sendEvent(target, &held);
                EXPECT_TRUE(box.isVisible());
            }
        QTest::keyClick(box.defaultButton(), Qt::Key_Return);
        EXPECT_FALSE(box.isVisible());
    });
}

TEST(FileChoice, WhatIsSavedHasAnEndingOfItsKind) {
    EXPECT_EQ(WithEnding(u"/d/psi.CSV"_s, u"CSV (*.csv)"_s), u"/d/psi.CSV"_s);
    EXPECT_EQ(WithEnding(u"/d/data.mdb"_s, u"CSV (*.csv)"_s), u"/d/data.mdb.csv"_s);
    EXPECT_EQ(WithEnding(u"/d/psi"_s, u"Tabulky (*.xlsx *.ods)"_s), u"/d/psi.xlsx"_s);
    EXPECT_EQ(WithEnding(u"/d/psi"_s, QString()), u"/d/psi"_s);
}

TEST(MessageBoxesTest, ReturnsTheAnswerOfEachButton) {
    EXPECT_EQ(Answer(MessageButtons::YesNoCancel, [](auto& box) { Press(box, "cmdYes"); }),
              MessageAnswer::Yes);
    EXPECT_EQ(Answer(MessageButtons::YesNoCancel, [](auto& box) { Press(box, "cmdNo"); }),
              MessageAnswer::No);
    EXPECT_EQ(Answer(MessageButtons::YesNoCancel, [](auto& box) { Press(box, "cmdCancel"); }),
              MessageAnswer::Cancel);
    EXPECT_EQ(Answer(MessageButtons::OkCancel, [](auto& box) { Press(box, "cmdOK"); }),
              MessageAnswer::Ok);
}

TEST(MessageBoxesTest, EscAndTheCloseBoxAnswerTheMildest) {
    const auto escape = [](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_Escape);
    };
    const auto close = [](QMessageBox& box) {
        box.close();
    };
    EXPECT_EQ(Answer(MessageButtons::YesNoCancel, escape), MessageAnswer::Cancel);
    EXPECT_EQ(Answer(MessageButtons::OkCancel, close), MessageAnswer::Cancel);
    EXPECT_EQ(Answer(MessageButtons::YesNo, escape), MessageAnswer::No);
    EXPECT_EQ(Answer(MessageButtons::YesNo, close), MessageAnswer::No);
    EXPECT_EQ(Answer(MessageButtons::Ok, escape), MessageAnswer::Ok);
}

TEST(MessageBoxesTest, IsNeverLargerThanTheScreenWhateverWasPastedIn) {
    for (const QString& text :
         {u"Rex\n"_s.repeated(3000), u"Rex a Alík "_s.repeated(3000), QString(30000, u'x')})
        Answer(
            MessageButtons::Ok,
            [&text](QMessageBox& box) {
                EXPECT_TRUE(box.text().endsWith(u'…'));
                EXPECT_TRUE(text.startsWith(box.text().chopped(1)));
                EXPECT_LE(box.height(), box.screen()->availableGeometry().height());
                EXPECT_LE(box.width(), box.screen()->availableGeometry().width());
                box.close();
            },
            MessageIcon::Stop, text);
}

TEST(MessageBoxesTest, ShowsTheTextAsItIsWithItsIconAndTitle) {
    const QString text = u"<b>Rex</b> & Alík\ndruhý řádek"_s;
    const auto check = [&](MessageIcon icon, QMessageBox::Icon expected) {
        Answer(
            MessageButtons::Ok,
            [&](QMessageBox& box) {
                EXPECT_EQ(box.icon(), expected);
                EXPECT_EQ(box.text(), text);
                EXPECT_EQ(box.textFormat(), Qt::PlainText);
                EXPECT_EQ(box.windowTitle(), u"Lorvo"_s);
                box.close();
            },
            icon, text);
    };
    check(MessageIcon::None, QMessageBox::NoIcon);
    check(MessageIcon::Information, QMessageBox::Information);
    check(MessageIcon::Exclamation, QMessageBox::Warning);
    check(MessageIcon::Stop, QMessageBox::Critical);
    check(MessageIcon::Question, QMessageBox::Question);
}

} // namespace
} // namespace lorvo
