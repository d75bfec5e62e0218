#include "dogs/frmParents.h"

#include "dogs/dog_lists_fixture.h"
#include "forms/report_list.h"
#include "store/psi.h"
#include "support/modal_driver.h"
#include "support/recording_main_window.h"
#include "support/window_walk.h"

#include <QAction>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class frmParentsTest : public DogListsTest {
  protected:
    int AddChild(const char* name, const char* father, const char* mother) {
        const int dog = AddDog(name, {{"Otec", Text(father)}, {"Matka", Text(mother)}});
        tree.AddNode(u"P%1"_s.arg(dog), Text(name));
        return dog;
    }
    static void Open(const std::function<void(QWidget&)>& inside) {
        frmParents window(nullptr);
        WhileOpen([&] { OpenModal(window); }, inside);
    }
    static ReportList& List(QWidget& window) { return Control<ReportList>(window, "lvwList"); }
    /// The names in their order, each with "m" behind when blue and "f" when red.
    static std::string Names(QWidget& window) {
        const ReportList& list = List(window);
        QStringList names;
        for (int row = 0; row < list.RowCount(); ++row) {
            const QColor colour = list.Row(row).cells.front().colour.value_or(QColor());
            const char* sex = colour == QColor(0, 0, 255) ? " m" : " ?";
            names << list.CellText(row, 0) + Text(colour == QColor(255, 0, 0) ? " f" : sex);
        }
        return names.join(u',').toStdString();
    }
    static void Toggle(QWidget& window, const char* key) {
        const auto& bar = Control<QToolBar>(window, "tbrSouteze");
        QTest::mouseClick(bar.widgetForAction(&Control<QAction>(bar, key)), Qt::LeftButton);
    }
    void RightClick(QWidget& window, int row, int number) {
        platform.ExpectMenu(number);
        ReportList& list = List(window);
        QTest::mouseClick(list.viewport(), Qt::RightButton, {},
                          list.visualRect(list.model()->index(row, 0)).center());
    }

    RecordingMainWindow tree;
};

TEST_F(frmParentsTest, EveryControlHasItsNameItsCaptionAndItsPlace) {
    Open([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Rodiče"));
        EXPECT_EQ(Control<QPushButton>(window, "cmdOK").text(), Text("Zavřít"));
        EXPECT_EQ(Names(window), "");
        WalkWindow(window);
    });
}

TEST_F(frmParentsTest, ListsFathersAndThenMothersByName) {
    AddChild("Rex", "Žeryk", "Čita");
    AddChild("Brok", "Bak", "Bak");
    AddChild("Asta", "Žeryk", "");
    AddDog("Sirotek");
    Open([](QWidget& window) { EXPECT_EQ(Names(window), "Bak m,Žeryk m,Bak f,Čita f"); });
}

TEST_F(frmParentsTest, ButtonsToggleWhatIsListed) {
    AddChild("Rex", "Bak", "Čita");
    Open([](QWidget& window) {
        Toggle(window, "Edit");
        EXPECT_EQ(Names(window), "Bak m");
        Toggle(window, "Remove");
        EXPECT_EQ(Names(window), "Bak m,Čita f");
        Toggle(window, "Edit");
        EXPECT_EQ(Names(window), "Čita f");
        Toggle(window, "Remove");
        EXPECT_EQ(Names(window), "");
        Toggle(window, "Add");
        EXPECT_EQ(Names(window), "Bak m,Čita f");
    });
}

TEST_F(frmParentsTest, AnItemOffersTheOffspringOfItsColour) {
    const int rex = AddChild("Rex", "Bak", "Čita");
    const int asta = AddChild("Asta", "Bak", "Dina");
    const int cvrk = AddChild("Cvrk", "Dan", "Bak");
    Open([&](QWidget& window) {
        ASSERT_EQ(Names(window), "Bak m,Dan m,Bak f,Čita f,Dina f");
        RightClick(window, 0, rex);
        EXPECT_EQ(platform.LastMenuLines().join(u'\n'), Text("%1 Asta\n%2 Rex").arg(asta).arg(rex));
        EXPECT_EQ(tree.selected, u"P%1"_s.arg(rex));
        EXPECT_TRUE(window.isVisible());
        RightClick(window, 2, cvrk);
        EXPECT_EQ(tree.selected, u"P%1"_s.arg(cvrk));
        RightClick(window, 2, 0);
        EXPECT_EQ(tree.selected, u"P%1"_s.arg(cvrk));
    });
}

TEST_F(frmParentsTest, ANameWithAnApostropheFindsItsOffspring) {
    const int dog = AddChild("Rex", "Bak z D'Arcy", "");
    Open([&](QWidget& window) { RightClick(window, 0, dog); });
    EXPECT_EQ(tree.selected, u"P%1"_s.arg(dog));
}

TEST_F(frmParentsTest, ADogThatTheTreeDoesNotShowIsLeftAlone) {
    const int dog = AddDog("Rex", {{"Otec", Text("Bak")}});
    Open([&](QWidget& window) { RightClick(window, 0, dog); });
    EXPECT_EQ(tree.selected, QString());
}

TEST_F(frmParentsTest, ANameThatNoDogBearsAnyMoreOpensNoMenu) {
    AddChild("Rex", "Bak", "");
    Open([](QWidget& window) {
        DeleteAllDogs();
        ReportList& list = List(window);
        QTest::mouseClick(list.viewport(), Qt::RightButton, {},
                          list.visualRect(list.model()->index(0, 0)).center());
    });
    Open([](QWidget& window) { EXPECT_EQ(Names(window), ""); });
}

} // namespace
} // namespace lorvo::test
