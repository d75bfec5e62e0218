// One walk over the controls of every window of the set-up.

#include "setup/fm_Colors.h"
#include "setup/fm_Plemena.h"
#include "setup/fm_Settings.h"
#include "setup/fm_Souteze.h"
#include "setup/fm_classes.h"
#include "setup/frmCisteniDB.h"
#include "setup/frmNazevKruhu.h"
#include "setup/frmNovePlemeno.h"
#include "setup/frmOceneni.h"
#include "setup/frmSoutez.h"
#include "setup/frmVystava.h"
#include "setup/frmVystavy.h"
#include "setup/frmWizard.h"
#include "setup/setup_fixture.h"
#include "support/window_walk.h"

#include <QStackedWidget>
#include <QTabWidget>

namespace lorvo::test {
namespace {

class SetUpWindowsTest : public SetupTest {
  protected:
    template<class Window> void Walk() {
        Open<Window>([](QWidget& window) { WalkWindow(window); });
    }
    void WalkPlain(Form& window) {
        WhileOpen([&] { OpenModal(window); }, [](QWidget& open) { WalkWindow(open); });
    }
};

TEST_F(SetUpWindowsTest, Lists) {
    Walk<fm_Colors>();
    Walk<frmOceneni>();
    Walk<fm_classes>();
    Walk<frmVystavy>();
    Walk<fm_Souteze>();
    Walk<fm_Plemena>();
}

TEST_F(SetUpWindowsTest, Dialogs) {
    Walk<frmCisteniDB>();
    Walk<frmNazevKruhu>();
    frmSoutez competition(0, nullptr);
    WalkPlain(competition);
    frmNovePlemeno naming(AddBreed("Pudl"), nullptr);
    WalkPlain(naming);
}

// kept: class-nine-crosswise
TEST_F(SetUpWindowsTest, BothGridsOfTheShow) {
    frmVystava show(AddShow("Hlavní"), nullptr);
    WhileOpen([&] { OpenModal(show); },
              [](QWidget& window) {
                  WalkWindow(window);
                  Tick(window, "chkRozliseni").click();
                  WalkWindow(window);
              });
}

TEST_F(SetUpWindowsTest, EveryPageOfTheSettings) {
    Open<fm_Settings>([](QWidget& window) {
        auto& pages = Control<QTabWidget>(window, "XTab");
        for (int page = 0; page < pages.count(); ++page) {
            pages.setCurrentIndex(page);
            WalkWindow(window);
        }
    });
}

TEST_F(SetUpWindowsTest, EveryPageOfTheWizard) {
    Open<frmWizard>([](QWidget& window) {
        for (int page = 0; page < 5; ++page) {
            WalkWindow(window);
            if (page < 4)
                Press(window, "cmdFwd");
        }
    });
}

} // namespace
} // namespace lorvo::test
