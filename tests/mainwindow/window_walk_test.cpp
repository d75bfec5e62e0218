// Every window with a show's data in it, on whatever screen this process was given: nothing cut,
// nothing off the screen, everything in reach of the keys and legible, in a light and in a dark
// desktop, with common letters and with large ones.
#include "dogs/frmDogListFilter.h"
#include "dogs/frmPsiVSoutezi.h"
#include "mainwindow/fm_main_fixture.h"
#include "mainwindow/tree_search.h"
#include "payments/frmEditCurrency.h"
#include "setup/fm_classes.h"
#include "setup/frmCisteniDB.h"
#include "setup/frmNovePlemeno.h"
#include "setup/frmSoutez.h"
#include "setup/frmVystava.h"
#include "setup/frmWizard.h"
#include "support/desktop_look.h"
#include "support/generated_show.h"
#include "support/modal_driver.h"
#include "support/window_keys.h"
#include "support/window_look.h"
#include "support/window_pixels.h"

#include <QTest>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using test::DesktopLook;

/// What is selected in the tree when the window is opened.
QString NodeFor(const QString& window) {
    return window == u"frmNazevKruhu" ? u"K1"_s : u"P%1"_s.arg(test::kWordyDogID);
}

template<class Window, class... Inputs> void OpenOwn(const Inputs&... inputs) {
    Window window(inputs..., nullptr);
    OpenModal(window);
}

WindowInput InputOf(const QString& name, TreeSearch& search) {
    if (name == u"fm_Dog")
        return DogTask{false, kSpecialBreedID};
    if (name == u"frmFind")
        return &search;
    return {};
}

/// Opens the window with that name: by the registry, or as the window above it does.
void OpenNamed(const QString& name, TreeSearch& search) {
    if (name == u"fm_classes")
        OpenOwn<fm_classes>();
    else if (name == u"frmCisteniDB")
        OpenOwn<frmCisteniDB>();
    else if (name == u"frmDogListFilter")
        OpenOwn<frmDogListFilter>();
    else if (name == u"frmEditCurrency")
        OpenOwn<frmEditCurrency>(1, [](bool) {});
    else if (name == u"frmNovePlemeno")
        OpenOwn<frmNovePlemeno>(kSpecialBreedID);
    else if (name == u"frmPsiVSoutezi")
        OpenOwn<frmPsiVSoutezi>(1);
    else if (name == u"frmSoutez")
        OpenOwn<frmSoutez>(1);
    else if (name == u"frmVystava")
        OpenOwn<frmVystava>(1);
    else if (name == u"frmWizard")
        OpenOwn<frmWizard>();
    else
        Open(name, InputOf(name, search));
}

/// Whether confirming goes on within the window: to the next page, the next find, a payment.
bool StaysOpen(const QString& name) {
    return QStringList{u"frmWizard"_s, u"frmFind"_s, u"frmUhrady"_s}.contains(name);
}

class WalkOnAShow : public MainWindowTest {
  protected:
    /// Looks at the show as a clerk does who is about to open that window.
    void Begin(DesktopLook look, const QString& window = {}) {
        look_ = std::make_unique<test::WithDesktopLook>(look);
        test::PutGeneratedShow(database_);
        platform_.anyMessages = true;
        platform_.now = DateValue::FromCalendar(2027, 3, 14);
        Start();
        Show(NodeFor(window));
        Module().CurrentDogID = test::kWordyDogID;
        Module().CurrentOwner = test::kWordyOwnerID;
    }
    void TearDown() override {
        MainWindowTest::TearDown();
        look_.reset();
    }

    void Show(const QString& node) {
        window_->SelectNode(node);
        window_->ShowNodeInfo(node);
    }

  private:
    std::unique_ptr<test::WithDesktopLook> look_;
};

class WindowWalk : public WalkOnAShow,
                   public ::testing::WithParamInterface<std::tuple<const char*, DesktopLook>> {
  protected:
    void ExpectDoneOrRefused(const QWidget& window) const {
        EXPECT_TRUE(!window.isVisible() || !platform_.messages.empty() ||
                    platform_.shownDocuments > 0 || !platform_.openedFiles.isEmpty() ||
                    StaysOpen(Name()))
            << "neither done nor refused aloud";
    }
    QString Name() const { return QString::fromLatin1(std::get<0>(GetParam())); }
    DesktopLook Look() const { return std::get<1>(GetParam()); }

    TreeSearch search_;
};

TEST_P(WindowWalk, OpensInOrderAndIsLeft) {
    Begin(Look(), Name());
    test::WhileOpen([this] { OpenNamed(Name(), search_); },
                    [this](QWidget& window) {
                        test::LookAtEachPage(window, Look());
                        test::FillByKeys(window);
                        test::CheckOnTheScreen(window);
                        QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
                        EXPECT_TRUE(!window.isVisible() || !platform_.messages.empty())
                            << "Esc doesn't leave the window";
                    });
    EXPECT_FALSE(IsModalOpen());
}

TEST_P(WindowWalk, IsFilledAndConfirmed) {
    Begin(Look(), Name());
    test::WhileOpen([this] { OpenNamed(Name(), search_); },
                    [this](QWidget& window) {
                        test::FillByKeys(window);
                        test::CloseWhatOpensAbove(window);
                        if (test::ConfirmByKeys(window))
                            ExpectDoneOrRefused(window);
                    });
    EXPECT_FALSE(IsModalOpen());
}

std::string ParamName(const ::testing::TestParamInfo<WindowWalk::ParamType>& info) {
    std::string name = std::string(std::get<0>(info.param)) + '_' +
                       test::NameOf(std::get<1>(info.param)).toStdString();
    std::ranges::replace(name, '|', '_');
    return name;
}

const auto kLooks = ::testing::Values(DesktopLook::Light, DesktopLook::Dark,
                                      DesktopLook::LightAndLarge, DesktopLook::DarkAndLarge);

INSTANTIATE_TEST_SUITE_P(
    Windows, WindowWalk,
    ::testing::Combine(::testing::Values("fm_Colors", "fm_Dog", "fm_DogsList", "fm_Plemena",
                                         "fm_Settings", "fm_Souteze", "fm_classes", "fmDiplom",
                                         "frmCisteniDB", "frmDogListFilter", "frmEditCurrency",
                                         "frmEditMan", "frmFind", "frmJmenoRozhodciho",
                                         "frmNazevKruhu", "frmNovePlemeno", "frmOceneni",
                                         "frmParents", "frmPlatba", "frmPrehledPlateb",
                                         "frmPrehledPlemen", "frmPsiVSoutezi", "frmSoutez",
                                         "frmTiskKatalog", "frmTiskPlateb", "frmTiskPosudku",
                                         "frmTiskPozvanek", "frmTiskSeznamuPsu",
                                         "frmTiskSeznamVystavovatelu", "frmUhrady", "frmVystava",
                                         "frmVystavovatele", "frmVystavy", "frmWizard"),
                       kLooks),
    ParamName);

class PanelWalk : public WalkOnAShow,
                  public ::testing::WithParamInterface<std::tuple<const char*, DesktopLook>> {};

TEST_P(PanelWalk, IsInOrder) {
    const auto [key, look] = GetParam();
    Setting(u"Sys\\ShowClasses"_s) = u"1"_s;
    Begin(look);
    const QString node = QString::fromLatin1(key);
    Show(node);
    test::LookAt(*window_, u'-' + QString(node).replace(u'|', u'-'), look);
}

INSTANTIATE_TEST_SUITE_P(Nodes, PanelWalk,
                         ::testing::Combine(::testing::Values("K0", "K1", "R949", "TR949|2", "P1"),
                                            kLooks),
                         ParamName);

} // namespace
} // namespace lorvo
