// Wherever a failure rises, nothing after it runs, and it is shown once at the end.
#include "desktop/desktop_services.h"
#include "forms/application.h"
#include "forms/form.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"
#include "support/recording_platform.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void Fail() {
    throw DiskError("Disk je plný.");
}

class FailingBox : public QWidget {
  protected:
    void keyPressEvent(QKeyEvent*) override { Guarded(Fail); }
};

class FailuresTest : public ::testing::Test {
  protected:
    /// Runs the program with this start; it must end by the failure, told once.
    void ExpectEnd(const std::function<void()>& start) {
        platform.ExpectMessage(u"Disk je plný.\n\nPoslední zadání se neuložilo. "
                               "Všechno, co bylo zadáno před ním, je "
                               "uloženo.\n\nProgram se ukončí."_s,
                               MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok,
                               u"Lorvo"_s);
        EXPECT_EQ(static_cast<Application*>(qApp)->Run(start), 1);
        EXPECT_FALSE(wentOn);
        EXPECT_FALSE(IsModalOpen());
        EXPECT_FALSE(IsFailureKept());
    }
    /// As a clerk's press once the event loop is idle.
    void PressLater(QPushButton& button) {
        Later(&button, [&button] { QTest::mouseClick(&button, Qt::LeftButton); });
    }
    /// Opens the window from a slot, as every command does.
    void OpenBy(QPushButton& button, Form& form) {
        Connect(&button, &QPushButton::clicked, &button, [&] {
            OpenModal(form);
            wentOn = true;
        });
    }

    test::RecordingPlatform platform;
    bool wentOn = false; ///< something ran after the failure
};

/// A window with one button, pressed as soon as it has been shown.
class OneButtonForm : public Form {
  public:
    OneButtonForm()
        : Form("fm_OneButton", u"Okno"_s, Border::Sizable, nullptr), button(new QPushButton(this)) {
    }
    void Activated() override {
        Later(button, [this] { QTest::mouseClick(button, Qt::LeftButton); });
    }
    QPushButton* button;
};

TEST_F(FailuresTest, InASlotOfTheMainWindow) {
    QPushButton button;
    Connect(&button, &QPushButton::clicked, &button, [this] {
        Fail();
        wentOn = true;
    });
    ExpectEnd([&] { PressLater(button); });
}

TEST_F(FailuresTest, InAModalWindow) {
    QPushButton button;
    OneButtonForm form;
    OpenBy(button, form);
    Connect(form.button, &QPushButton::clicked, &form, [] { Fail(); });
    ExpectEnd([&] { PressLater(button); });
}

TEST_F(FailuresTest, InAModalWindowOverAModalWindow) {
    QPushButton button;
    OneButtonForm below;
    OneButtonForm above;
    OpenBy(button, below);
    OpenBy(*below.button, above);
    Connect(above.button, &QPushButton::clicked, &above, [] { Fail(); });
    ExpectEnd([&] { PressLater(button); });
}

TEST_F(FailuresTest, WhileAMenuIsOpen) {
    QPushButton button;
    Connect(&button, &QPushButton::clicked, &button, [this, &button] {
        Later(&button, Fail);
        MenuEntry entry;
        entry.number = 601;
        entry.text = u"Přidat kruh"_s;
        DesktopPopupMenus().TrackPopup({entry});
        wentOn = true;
    });
    ExpectEnd([&] { PressLater(button); });
}

TEST_F(FailuresTest, WhileAMessageIsOpen) {
    QPushButton button;
    Connect(&button, &QPushButton::clicked, &button, [this, &button] {
        Later(&button, Fail);
        DesktopMessageBoxes().Show(u"Opravdu?"_s, MessageIcon::Question, MessageButtons::YesNo,
                                   u"Lorvo"_s);
        wentOn = true;
    });
    ExpectEnd([&] { PressLater(button); });
}

TEST_F(FailuresTest, WhilePendingEventsRun) {
    QPushButton button;
    Connect(&button, &QPushButton::clicked, &button, [this, &button] {
        Later(&button, Fail);
        DesktopUserInterface().ProcessEvents();
        wentOn = true;
    });
    ExpectEnd([&] { PressLater(button); });
}

TEST_F(FailuresTest, AtATimer) {
    QTimer timer;
    Connect(&timer, &QTimer::timeout, &timer, [] { Fail(); });
    ExpectEnd([&] { timer.start(0); });
}

TEST_F(FailuresTest, InAnEventHandler) {
    FailingBox box;
    ExpectEnd([&] { Later(&box, [&box] { QTest::keyClick(&box, Qt::Key_A); }); });
}

TEST_F(FailuresTest, WhileAWindowCloses) {
    class Unclosable : public Form {
      public:
        Unclosable() : Form("fm_Unclosable", u"Okno"_s, Border::Sizable, nullptr) {}
        void Activated() override {
            Later(this, [this] { QTest::keyClick(this, Qt::Key_Escape); });
        }
        bool QueryUnload() override { Fail(); }
    };
    QPushButton button;
    Unclosable form;
    OpenBy(button, form);
    ExpectEnd([&] { PressLater(button); });
}

TEST_F(FailuresTest, AmongSlotsThatWaitTheRestDoesNotRun) {
    QPushButton button;
    ExpectEnd([&] {
        Later(&button, Fail);
        Later(&button, [this] { wentOn = true; });
    });
}

} // namespace
} // namespace lorvo
