#include "setup/fm_Settings.h"

#include "forms/controls.h"
#include "setup/setup_fixture.h"
#include "store/ostatni.h"
#include "store/vystavy.h"

#include <QTabWidget>
#include <set>

namespace lorvo::test {
namespace {

DateValue Day(int year, int month, int day) {
    return DateValue::FromCalendar(year, month, day);
}

class SettingsTest : public SetupTest {
  protected:
    void OpenSettings(const std::function<void(QWidget&)>& inside) { Open<fm_Settings>(inside); }
    static QDateEdit& Picker(QWidget& window, const char* name) {
        return Control<QDateEdit>(window, name);
    }
    static DateValue Picked(QWidget& window, const char* name) {
        return PickedDate(Picker(window, name));
    }
};

TEST_F(SettingsTest, KeepsOneSizeForItsPages) {
    Open<fm_Settings>([&](QWidget& window) {
        auto& pages = Control<QTabWidget>(window, "XTab");
        std::set<std::pair<int, int>> sizes;
        for (const int page : {0, 1, 2, 0}) {
            pages.setCurrentIndex(page);
            for (int i = 0; i < 3; ++i)
                QCoreApplication::processEvents();
            sizes.emplace(window.width(), window.height());
        }
        EXPECT_EQ(sizes.size(), 1u);
    });
}

TEST_F(SettingsTest, HasItsPagesAndFrames) {
    OpenSettings([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Nastavení");
        auto& pages = Control<QTabWidget>(window, "XTab");
        QStringList captions;
        for (int page = 0; page < pages.count(); ++page)
            captions << pages.tabText(page);
        EXPECT_EQ(captions, (QStringList{Text(" Systém "), Text(" Měny "), Text(" Vzhled ")}));
        QStringList frames;
        for (const QGroupBox* frame : window.findChildren<QGroupBox*>())
            frames << frame->title();
        frames.sort();
        EXPECT_EQ(frames, (QStringList{Text("Data"), Text("Databáze"), Text("Pořadová čísla psů"),
                                       Text("Průvodce"), Text("Volby")}));
        EXPECT_TRUE(Control<QPushButton>(window, "cmdOK").isDefault());
    });
}

TEST_F(SettingsTest, OpeningAloneGivesTheDatabaseItsDate) {
    OpenSettings([&](QWidget& window) { Press(window, "cmdCancel"); });
    EXPECT_EQ(ShowWideValues()->DatumVystavy, Day(2000, 1, 1));
}

TEST_F(SettingsTest, ANullOrZeroDateShowsAsTheUnknownOne) {
    AddLink("Ostatni", {{"DatumVystavy", DateValue()}});
    OpenSettings([&](QWidget& window) { EXPECT_EQ(Picked(window, "dtMeeting"), Day(2000, 1, 1)); });
    EXPECT_TRUE(ShowWideValues()->DatumVystavy->IsZero());
    ChangeFirstRow(TheDataModule().rsrsQuery1, "Ostatni", {{"DatumVystavy", Value()}});
    OpenSettings([&](QWidget& window) { EXPECT_EQ(Picked(window, "dtMeeting"), Day(2000, 1, 1)); });
}

TEST_F(SettingsTest, OKStoresTheDatesInTheFirstShowAlone) {
    AddShow("Hlavní");
    AddShow("Krajská");
    OpenSettings([&](QWidget& window) {
        EXPECT_TRUE(IsEnabled(window, "dtMeeting"));
        EXPECT_EQ(Picked(window, "dtPrvniUzaverka"), Day(2004, 5, 26));
        Picker(window, "dtMeeting").setDate({2005, 5, 14});
        Picker(window, "dtPrvniUzaverka").setDate({2005, 6, 1});
        Press(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(ShowWideValues()->DatumVystavy, Day(2005, 5, 14));
    EXPECT_EQ(ShowByID(1)->Uzaverka1, Day(2005, 6, 1));
    EXPECT_EQ(ShowByID(1)->Uzaverka2, Day(2004, 5, 26)) << "the designed date";
    EXPECT_FALSE(ShowByID(2)->Uzaverka1);
}

TEST_F(SettingsTest, WithADogTheDateIsLockedAndOKWritesItBack) {
    AddLink("Ostatni", {{"DatumVystavy", Day(2005, 5, 14)}});
    AddDog("Rex", 1);
    OpenSettings([&](QWidget& window) {
        EXPECT_FALSE(IsEnabled(window, "dtMeeting"));
        Press(window, "cmdOK");
    });
    EXPECT_EQ(ShowWideValues()->DatumVystavy, Day(2005, 5, 14));
}

TEST_F(SettingsTest, StornoWritesNothing) {
    AddLink("Ostatni", {{"DatumVystavy", Day(2005, 5, 14)}});
    AddShow("Hlavní");
    OpenSettings([&](QWidget& window) {
        Picker(window, "dtMeeting").setDate({2006, 1, 1});
        Tick(window, "chkGrids").click();
        Press(window, "cmdCancel");
    });
    EXPECT_EQ(ShowWideValues()->DatumVystavy, Day(2005, 5, 14));
    EXPECT_FALSE(ShowByID(1)->Uzaverka1);
    EXPECT_FALSE(platform.settings.contains(Text("Sys\\ShowGrid")));
}

// kept: siblings-option-unread
TEST_F(SettingsTest, StoresTheLooksAsOneAndZero) {
    platform.settings[Text("Sys\\ShowGrid")] = Text("1");
    tree.look.rememberTree = true;
    OpenSettings([&](QWidget& window) {
        EXPECT_TRUE(Tick(window, "chkGrids").isChecked());
        EXPECT_TRUE(Tick(window, "chkRememberItem").isChecked());
        EXPECT_FALSE(Tick(window, "chkShowClasses").isChecked());
        Tick(window, "chkGrids").setChecked(false);
        Tick(window, "chkRememberItem").setChecked(false);
        Tick(window, "chkSourozenci").setChecked(true);
        Press(window, "cmdOK");
    });
    EXPECT_EQ(platform.settings[Text("Sys\\ShowGrid")], u"0");
    EXPECT_EQ(platform.settings[Text("Sys\\ShowClasses")], u"0");
    EXPECT_EQ(platform.settings[Text("Sys\\ShowSiblings")], u"1");
    EXPECT_FALSE(tree.look.rememberTree);
}

// kept: classes-by-mouse
TEST_F(SettingsTest, OnlyTheMouseOnTheClassesMakesTheTreeStale) {
    OpenSettings([&](QWidget& window) {
        Control<QTabWidget>(window, "XTab").setCurrentIndex(2);
        QCheckBox& classes = Tick(window, "chkShowClasses");
        QTest::keyClick(&classes, Qt::Key_Space);
        EXPECT_TRUE(classes.isChecked());
        EXPECT_FALSE(Module().TreeDirty);
        QTest::mouseClick(&classes, Qt::LeftButton);
        EXPECT_TRUE(Module().TreeDirty);
        Press(window, "cmdCancel");
    });
    EXPECT_TRUE(Module().TreeDirty) << "even after Storno";
}

// kept: settings-never-untick
TEST_F(SettingsTest, ComingBackFromAWindowRefillsTheDatesAndNeverUnticks) {
    AddLink("Ostatni", {{"DatumVystavy", Day(2005, 5, 14)}});
    OpenSettings([&](QWidget& window) {
        Picker(window, "dtMeeting").setDate({2006, 1, 1});
        Tick(window, "chkGrids").setChecked(true);
        Tick(window, "chkRememberItem").setChecked(true);
        WhileOpen([&] { Press(window, "Command1"); },
                  [](QWidget& wizard) { EXPECT_EQ(wizard.objectName(), u"frmWizard"); });
        EXPECT_EQ(Picked(window, "dtMeeting"), Day(2005, 5, 14));
        EXPECT_TRUE(Tick(window, "chkGrids").isChecked());
        EXPECT_FALSE(Tick(window, "chkRememberItem").isChecked());
    });
}

TEST_F(SettingsTest, ClearingIsOneStepAwayAndComesBackWithTheDateUnset) {
    AddLink("Ostatni", {{"DatumVystavy", Day(2005, 5, 14)}});
    AddDog("Rex", 1);
    OpenSettings([&](QWidget& window) {
        EXPECT_FALSE(IsEnabled(window, "dtMeeting"));
        WhileOpen([&] { Press(window, "cmdClearDatabase"); },
                  [&](QWidget& clearing) {
                      platform.ExpectMessage(
                          Text("Vymazání databáze je zásadní krok. Ve vybraných tabulkách ztratíte "
                               "veškerá data bez možnosti opravy. Jste si jist?"),
                          MessageAnswer::Yes);
                      platform.ExpectMessage(Text("Vybrané položky byly vymazány."));
                      Press(clearing, "cmdCleaa");
                  });
        EXPECT_TRUE(IsEnabled(window, "dtMeeting"));
        EXPECT_EQ(Picked(window, "dtMeeting"), Day(2000, 1, 1));
    });
}

TEST_F(SettingsTest, SetsTheMainCurrencyWhenItComesToTheFront) {
    Add("Meny", {{"Nazev", Text("Euro")}, {"Zkratka", Text("EUR")}, {"Hlavni", true}});
    OpenSettings([&](QWidget&) { EXPECT_EQ(Module().MainCurrency, u"EUR"); });
    ChangeFirstRow(TheDataModule().rsrsQuery1, "Meny", {{"Hlavni", false}});
    OpenSettings([&](QWidget&) { EXPECT_EQ(Module().MainCurrency, u"Kč"); });
}

} // namespace
} // namespace lorvo::test
