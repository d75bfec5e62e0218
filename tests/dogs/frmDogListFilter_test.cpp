#include "dogs/frmDogListFilter.h"

#include "dogs/dog_lists_fixture.h"
#include "forms/report_list.h"
#include "support/modal_driver.h"
#include "support/window_walk.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

namespace lorvo::test {
namespace {

class frmDogListFilterTest : public DogListsTest {
  protected:
    static void Open(const std::function<void(QWidget&)>& inside) {
        frmDogListFilter window(nullptr);
        WhileOpen([&] { OpenModal(window); }, inside);
    }
    static ReportList& List(QWidget& window, const char* name) {
        return Control<ReportList>(window, name);
    }
    /// Key and texts of the rows, ticked ones with a star.
    static std::string Rows(QWidget& window, const char* name) {
        const ReportList& list = List(window, name);
        QStringList rows;
        for (int row = 0; row < list.RowCount(); ++row) {
            rows << list.Row(row).key + Text(list.Row(row).checked ? "* " : " ") +
                        list.CellText(row, 0);
            if (list.ColumnCount() > 1)
                rows.back() += u'/' + list.CellText(row, 1);
        }
        return rows.join(u',').toStdString();
    }
    static QColor LabelColour(QWidget& window, const char* field) {
        const QWidget* control = &Control<QWidget>(window, field);
        for (const QLabel* label : window.findChildren<QLabel*>())
            if (label->buddy() == control)
                return label->palette().color(QPalette::WindowText);
        return {};
    }
    static void Tick(QWidget& window, const char* name, int row) {
        ReportList& list = List(window, name);
        list.SelectRow(row);
        QTest::keyClick(&list, Qt::Key_Space);
    }
    void Menu(QWidget& window, int number) {
        platform.ExpectMenu(number);
        Control<QPushButton>(window, "cmdMenu").click();
    }
};

TEST_F(frmDogListFilterTest, EveryControlOfEachPageHasItsNameItsCaptionAndItsPlace) {
    Open([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Filtr"));
        auto& pages = Control<QTabWidget>(window, "XTab");
        for (int page = 0; page < pages.count(); ++page) {
            pages.setCurrentIndex(page);
            WalkWindow(window);
        }
    });
}

TEST_F(frmDogListFilterTest, ListsClassesOfBothListsByTheirPositions) {
    Open([](QWidget& window) {
        const std::string rows = Rows(window, "lvwTridy");
        EXPECT_TRUE(rows.starts_with("CNO1 dorostu,CNO2 mladých,")) << rows;
        EXPECT_NE(rows.find(",CNO4 pracovní,C1 štěňat od 3 do 6 měsíců,"), std::string::npos)
            << rows;
        EXPECT_TRUE(rows.ends_with(",C8 veteránů")) << rows;
    });
}

TEST_F(frmDogListFilterTest, ListsWhatTheStoreHolds) {
    Add("Kruhy", {{"Nazev", Text("Žlutý")}});
    Add("Kruhy", {{"Nazev", Text("Bílý")}});
    Add("Plemena",
        {{"Nazev", Text("Akita")}, {"NazevOrig", Text("Akita Inu")}, {"Pouzivat", true}});
    AddShow("Jarní", 300);
    AddCompetition("Pár", 20);
    Add("Oceneni", {{"Nazev", Text("CAC")}});
    Open([](QWidget& window) {
        EXPECT_EQ(Rows(window, "lvwKruhy"), "K2 Bílý,K1 Žlutý");
        EXPECT_EQ(Rows(window, "lvwPlemena"), "R2 Akita/Akita Inu");
        EXPECT_EQ(Rows(window, "lvwVystavy"), "V1 Jarní,S1 Pár");
        EXPECT_EQ(Rows(window, "lvwOceneni"), "C1 CAC");
    });
}

TEST_F(frmDogListFilterTest, ACaptionIsBlueWhileSomethingIsChosen) {
    Add("Kruhy", {{"Nazev", Text("Bílý")}});
    const QColor blue(0, 0, 255);
    Open([&](QWidget& window) {
        for (const char* box : {"txtJmeno", "txtMajitel"}) {
            EXPECT_EQ(LabelColour(window, box), QColor(Qt::black));
            Control<QLineEdit>(window, box).setText(Text("a"));
            EXPECT_EQ(LabelColour(window, box), blue);
            Control<QLineEdit>(window, box).clear();
            EXPECT_EQ(LabelColour(window, box), QColor(Qt::black));
        }
        Control<QTabWidget>(window, "XTab").setCurrentIndex(3);
        Tick(window, "lvwKruhy", 0);
        EXPECT_EQ(LabelColour(window, "lvwKruhy"), blue);
        Tick(window, "lvwKruhy", 0);
        EXPECT_EQ(LabelColour(window, "lvwKruhy"), QColor(Qt::black));
    });
}

TEST_F(frmDogListFilterTest, TheMenuTicksAllBreedsOrTheUsersOwn) {
    Add("Plemena", {{"Nazev", Text("Akita")}, {"Pouzivat", true}});
    Add("Plemena", {{"Nazev", Text("Vlastní")}, {"Pouzivat", true}, {"Vlastni", true}});
    Open([&](QWidget& window) {
        Menu(window, 2);
        EXPECT_EQ(platform.LastMenuLines().join(u'\n'),
                  Text("1 Vybrat všechna plemena\n2 Vybrat všechna vlastní plemena\n"
                       "3 Zrušit výběr všech plemen\n4 Zrušit výběr vlastních plemen"));
        EXPECT_EQ(Rows(window, "lvwPlemena"), "R2 Akita/,R3* Vlastní/");
        EXPECT_EQ(LabelColour(window, "lvwPlemena"), QColor(0, 0, 255));
        Menu(window, 1);
        EXPECT_EQ(Rows(window, "lvwPlemena"), "R2* Akita/,R3* Vlastní/");
        Menu(window, 4);
        EXPECT_EQ(Rows(window, "lvwPlemena"), "R2* Akita/,R3 Vlastní/");
        Menu(window, 0);
        EXPECT_EQ(Rows(window, "lvwPlemena"), "R2* Akita/,R3 Vlastní/");
        Menu(window, 3);
        EXPECT_EQ(Rows(window, "lvwPlemena"), "R2 Akita/,R3 Vlastní/");
        EXPECT_EQ(LabelColour(window, "lvwPlemena"), QColor(Qt::black));
    });
}

TEST_F(frmDogListFilterTest, OffersSexesAgesAndBalances) {
    platform.now = DateValue::FromCalendar(2005, 5, 1);
    Open([](QWidget& window) {
        EXPECT_EQ(Control<QRadioButton>(window, "optGender(0)").text(), Text("Pes"));
        EXPECT_EQ(Control<QRadioButton>(window, "optGender(1)").text(), Text("Fena"));
        EXPECT_EQ(Control<QCheckBox>(window, "chkFinance(0)").text(), Text("Nedoplatek"));
        EXPECT_EQ(Control<QCheckBox>(window, "chkFinance(1)").text(), Text("Přeplatek"));
        EXPECT_EQ(Control<QCheckBox>(window, "chkFinance(2)").text(), Text("Vyrovnáno"));
        EXPECT_EQ(Control<QDateEdit>(window, "dtBorn").date(), QDate(2005, 5, 1));
        EXPECT_EQ(Control<QDateEdit>(window, "DTPicker1").date(), QDate(2005, 5, 1));
    });
}

TEST_F(frmDogListFilterTest, BothButtonsClose) {
    for (const char* button : {"cmd_OK", "cmdCancel"})
        Open([button](QWidget& window) {
            Control<QPushButton>(window, button).click();
            EXPECT_FALSE(window.isVisible());
        });
}

} // namespace
} // namespace lorvo::test
