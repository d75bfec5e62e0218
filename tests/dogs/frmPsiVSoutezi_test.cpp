#include "dogs/frmPsiVSoutezi.h"

#include "app/module_values.h"
#include "forms/report_list.h"
#include "store/routines_fixture.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"
#include "support/window_walk.h"

#include <QPushButton>
#include <QStandardItemModel>
#include <QTest>
#include <QTreeView>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class CompetitionEntriesTest : public RoutinesTest {
  protected:
    CompetitionEntriesTest() {
        Module() = ModuleValues();
        for (const int competition : {1, 2})
            for (const int dog : {10, 11})
                Enter(dog, competition);
    }
    static int AddCompetition(Assignments more = {}) {
        more.insert(more.begin(), {"Nazev", Text("Páry")});
        return Add("Souteze", more);
    }
    static void Enter(int dog, int competition) {
        AddLink("Vazby_Souteze", {{"ID_Psa", dog}, {"ID_Souteze", competition}});
    }
    static Texts Entered(int competition) {
        return Column("SELECT ID_Psa FROM Vazby_Souteze WHERE ID_Souteze = " +
                      std::to_string(competition));
    }
    static void OpenEntries(int competition, const std::function<void(QWidget&)>& inside) {
        frmPsiVSoutezi window(competition, nullptr);
        WhileOpen([&] { OpenModal(window); }, inside);
    }
    static ReportList& List(QWidget& window, const char* name) {
        return Control<ReportList>(window, name);
    }
    static QStandardItemModel& Dogs(QWidget& window) {
        return static_cast<QStandardItemModel&>(*Control<QTreeView>(window, "tvwDogs").model());
    }
    static QStandardItem* TreeItem(const char* text, int dog = 0) {
        auto* item = new QStandardItem(Text(text));
        item->setCheckable(true);
        item->setData(QString::number(dog), Qt::UserRole + 1);
        return item;
    }
    static void Press(QWidget& window, const char* button) {
        Control<QPushButton>(window, button).click();
    }
    static void Click(ReportList& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(row, 1)).center());
    }

    RecordingPlatform platform;
};

// kept: ok-empties-the-competition
TEST_F(CompetitionEntriesTest, OpensWithoutRowsAndOKEmptiesTheCompetitionAlone) {
    const int competition = AddCompetition();
    OpenEntries(competition, [&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Seznam psů v soutěži");
        EXPECT_EQ(List(window, "lvwDogs1").RowCount(), 0);
        EXPECT_EQ(Dogs(window).rowCount(), 0);
        EXPECT_FALSE(Control<QWidget>(window, "picSecondDog").isVisible());
        Press(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_TRUE(Entered(1).empty());
    EXPECT_EQ(Entered(2), (Texts{"10", "11"}));
}

TEST_F(CompetitionEntriesTest, StornoLeavesTheEntriesAlone) {
    OpenEntries(AddCompetition(), [](QWidget& window) { Press(window, "cmdCancel"); });
    EXPECT_EQ(Entered(1), (Texts{"10", "11"}));
}

TEST_F(CompetitionEntriesTest, NamedParametersBecomeColumns) {
    AddCompetition({{"NazevPar2", Text("syn")}});
    AddCompetition({{"NazevPar1", Text("otec")}, {"NazevPar2", Text("syn")}});
    const auto headings = [](QWidget& window) {
        QStringList texts;
        const ReportList& list = List(window, "lvwDogs1");
        for (int column = 0; column < list.ColumnCount(); ++column)
            texts << list.model()->headerData(column, Qt::Horizontal).toString();
        return texts.join(u'|');
    };
    OpenEntries(1,
                [&](QWidget& window) { EXPECT_EQ(headings(window), u"Jméno|Jméno majitele|syn"); });
    OpenEntries(
        2, [&](QWidget& window) { EXPECT_EQ(headings(window), u"Jméno|Jméno majitele|otec|syn"); });
}

TEST_F(CompetitionEntriesTest, ACompetitionThatIsGoneFails) {
    EXPECT_THROW(OpenEntries(77, [](QWidget&) {}), StoreError);
}

TEST_F(CompetitionEntriesTest, ThePairsWideningIsNeverStored) {
    const int pair = AddCompetition({{"Parova", true}});
    const int single = AddCompetition();
    const auto widthOf = [](int competition) {
        int width = 0;
        OpenEntries(competition, [&width](QWidget& window) { width = window.width(); });
        return width;
    };
    const int singleWidth = widthOf(single);
    const int pairWidth = widthOf(pair);
    EXPECT_GT(pairWidth, singleWidth);
    EXPECT_EQ(widthOf(pair), pairWidth);
    EXPECT_EQ(widthOf(single), singleWidth);
}

TEST_F(CompetitionEntriesTest, APairIsADogAndABitchOfOneBreeder) {
    const int competition = AddCompetition({{"Parova", true}});
    const auto addDog = [](const char* name, const char* breeder, bool male) {
        return Add("Psi",
                   {{"Jmeno", Text(name)}, {"Chovatel", Text(breeder)}, {"PohlaviPes", male}});
    };
    const int rex = addDog("Rex", "J. O'Hara", true);
    const int aja = addDog("Aja", "J. O'Hara", false);
    const int bea = addDog("Bea", "J. O'Hara", false);
    addDog("Cit", "J. O'Hara", true);
    addDog("Dita", "jiný", false);
    OpenEntries(competition, [&](QWidget& window) {
        EXPECT_TRUE(Control<QWidget>(window, "picSecondDog").isVisible());
        Dogs(window).appendRow(TreeItem("Rex", rex));
        Dogs(window).appendRow(TreeItem("Cit", 77));
        ReportList& dogs = List(window, "lvwDogs1");
        dogs.AddRow({Text("P1"), QString::number(rex), {{Text("Rex")}}});
        Click(dogs, 0);
        ReportList& partners = List(window, "lvwDogs2");
        ASSERT_EQ(partners.RowCount(), 2);
        EXPECT_EQ(partners.Row(1).key, u"P%1"_s.arg(bea));
        EXPECT_EQ(partners.CellText(1, 1), u"J. O'Hara");
        for (const int row : {0, 1}) {
            partners.SelectRow(row);
            QTest::keyClick(&partners, Qt::Key_Space);
        }
        EXPECT_FALSE(partners.Row(0).checked) << "one partner alone";
        Dogs(window).item(0)->setCheckState(Qt::Checked);
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Entered(competition), (Texts{std::to_string(rex), std::to_string(bea)}));
    EXPECT_NE(aja, bea);
}

TEST_F(CompetitionEntriesTest, AParentsTickPassesToItsChildrenAndAnOnlyChildsBack) {
    OpenEntries(AddCompetition(), [](QWidget& window) {
        auto* one = TreeItem("jedno");
        one->appendRow(TreeItem("štěně"));
        auto* two = TreeItem("dvě");
        for (const char* puppy : {"první", "druhé"})
            two->appendRow(TreeItem(puppy));
        Dogs(window).appendRow(one);
        Dogs(window).appendRow(two);
        two->setCheckState(Qt::Checked);
        EXPECT_EQ(two->child(1)->checkState(), Qt::Checked);
        two->child(0)->setCheckState(Qt::Unchecked);
        EXPECT_EQ(two->checkState(), Qt::Checked);
        one->child(0)->setCheckState(Qt::Checked);
        EXPECT_EQ(one->checkState(), Qt::Checked);
    });
}

TEST_F(CompetitionEntriesTest, IsReadInOrder) {
    OpenEntries(AddCompetition({{"Parova", true}}), [](QWidget& window) { WalkWindow(window); });
}

} // namespace
} // namespace lorvo::test
