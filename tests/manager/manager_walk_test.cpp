// The windows of the data's own program with a show's data in them, on whatever screen this process
// was given.
#include "app/module_values.h"
#include "manager/frmSpravce.h"
#include "office/copies/show_copies.h"
#include "store/data_module.h"
#include "support/desktop_look.h"
#include "support/generated_show.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"
#include "support/window_keys.h"
#include "support/window_look.h"
#include "support/window_pixels.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

const QByteArray kEntries = "Jméno psa;Plemeno;Pohlaví;Datum narození;Třída;Majitel;Město;PSČ\n"
                            "Alík z Údolí Modrých Hvězd nad Jizerou;německý "
                            "ovčák;pes;5.6.2024;otevřená;Eva Nová;Brno;60200\n"
                            "Bára;německý ovčák;fena;1.1.2023;otevřená;Ing. Bohuslava "
                            "Nepomucká-Krkoškovičová, Ph.D.;Brno;60200\n"
                            "Rek;neznámé plemeno;pes;1.1.2023;otevřená;Jan Malý;Zlín;76001\n";

class ManagerWalk : public ::testing::TestWithParam<DesktopLook> {
  protected:
    ManagerWalk() : look_(GetParam()) {
        platform_.now = DateValue::FromCalendar(2027, 3, 14);
        PutGeneratedShow(database_);
        const QString path = TheDataModule().Conn1.Path();
        TheDataModule().Conn1.Close();
        EXPECT_TRUE(QFile::copy(path, DatabasePath(platform_.ProgramFolder())));
        QFile entries(platform_.ProgramFolder() + u"/prihlasky.csv"_s);
        EXPECT_TRUE(entries.open(QIODevice::WriteOnly) && entries.write(kEntries) > 0);
        platform_.chosenFiles << entries.fileName();
        platform_.anyMessages = true;
    }
    ~ManagerWalk() override { Module() = {}; }

    /// Opens the window as the program does and runs `inside` in it.
    void Open(const std::function<void(QWidget&)>& inside) {
        frmSpravce window(ThePlatform());
        WhileOpen([&window] { OpenModal(window); }, inside);
        EXPECT_FALSE(IsModalOpen());
    }
    static void Press(QWidget& window, const char* name) {
        auto& button = Control<QPushButton>(window, name);
        button.setFocus();
        QTest::keyClick(&button, Qt::Key_Space);
    }
    static void ShowPage(QWidget& window, int page) {
        auto& pages = Control<QTabWidget>(window, "tabSpravce");
        while (pages.currentIndex() != page)
            QTest::keyClick(window.windowHandle(), Qt::Key_Tab, Qt::ControlModifier);
        QCoreApplication::processEvents();
    }
    /// Fills each page with what its buttons bring up.
    static void FillPages(QWidget& window) {
        Press(window, "cmdMake");
        ShowPage(window, 1);
        Press(window, "cmdFile");
        ShowPage(window, 3);
        Press(window, "cmdPreview");
        ShowPage(window, 4);
        Press(window, "cmdCheck");
        EXPECT_FALSE(Control<QPlainTextEdit>(window, "txtNalez").toPlainText().isEmpty());
        ShowPage(window, 0);
    }

    RecordingPlatform platform_;
    TempDatabase database_;
    WithDesktopLook look_;
};

TEST_P(ManagerWalk, EachPageIsInOrderEmptyAndFilledAndIsLeft) {
    Open([](QWidget& window) {
        LookAtEachPage(window, GetParam());
        ShowPage(window, 0);
        FillPages(window);
        LookAt(window, u"-filled"_s, GetParam());
        for (int page = 1; page < 5; ++page) {
            ShowPage(window, page);
            LookAt(window, u"-filled-%1"_s.arg(page + 1), GetParam());
        }
        QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_P(ManagerWalk, TheKeyboardComesToEachFieldOfEachPage) {
    Open([](QWidget& window) {
        CloseWhatOpensAbove(window);
        for (int page = 0; page < 5; ++page) {
            ShowPage(window, page);
            FillByKeys(window);
            CheckOnTheScreen(window);
        }
    });
}

TEST_P(ManagerWalk, TheColumnsWindowIsInOrderAndTaken) {
    Open([this](QWidget& window) {
        ShowPage(window, 1);
        Press(window, "cmdFile");
        WhileOpen([&window] { Press(window, "cmdColumns"); },
                  [this](QWidget& columns) {
                      LookAt(columns, {}, GetParam());
                      FillByKeys(columns);
                      CheckOnTheScreen(columns);
                      EXPECT_TRUE(ConfirmByKeys(columns));
                      EXPECT_TRUE(!columns.isVisible() || !platform_.messages.empty());
                  });
    });
}

std::string ParamName(const ::testing::TestParamInfo<DesktopLook>& info) {
    return NameOf(info.param).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Desktops, ManagerWalk,
                         ::testing::Values(DesktopLook::Light, DesktopLook::Dark,
                                           DesktopLook::LightAndLarge, DesktopLook::DarkAndLarge),
                         ParamName);

} // namespace
} // namespace lorvo::test
