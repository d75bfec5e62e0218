#include "dogs/fm_DogsList.h"

#include "dogs/dog_lists_fixture.h"
#include "forms/report_list.h"
#include "store/psi_oceneni.h"
#include "support/modal_driver.h"
#include "support/recording_main_window.h"
#include "support/window_walk.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolBar>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

enum Column {
    kName,
    kGender,
    kOwner,
    kBreed,
    kNote,
    kShow,
    kClosing,
    kPrice,
    kCompetitions,
    kCompetitionFees,
    kAwards,
    kPaid,
    kBalance
};

class fm_DogsListTest : public DogListsTest {
  protected:
    static void Open(const std::function<void(QWidget&)>& inside) {
        fm_DogsList window(nullptr);
        WhileOpen([&] { OpenModal(window); }, inside);
    }
    static ReportList& List(QWidget& window) { return Control<ReportList>(window, "lvwList"); }
    static QString Panel(QWidget& window, int number) {
        return Control<QLabel>(window, number == 1 ? "sbDogs(1)" : "sbDogs(2)").text();
    }
    /// The cells of a row, parted by " | ".
    static std::string Line(const ReportList& list, int row) {
        QStringList cells;
        for (int column = 0; column < list.ColumnCount(); ++column)
            cells << list.CellText(row, column);
        return cells.join(Text(" | ")).toStdString();
    }
    static QPoint PlaceOf(ReportList& list, int row) {
        return list.visualRect(list.model()->index(row, 0)).center();
    }
    static QColor Colour(const ReportList& list, int row, int column) {
        return list.Row(row)
            .cells.at(static_cast<std::size_t>(column))
            .colour.value_or(QColor(Qt::black));
    }

    RecordingMainWindow tree;
};

TEST_F(fm_DogsListTest, EveryControlHasItsNameItsCaptionAndItsPlace) {
    AddDog("Rex");
    Open([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Seznam psů"));
        WalkWindow(window);
    });
}

TEST_F(fm_DogsListTest, HasItsColumnsInTheirOrder) {
    Open([](QWidget& window) {
        const QAbstractItemModel& model = *List(window).model();
        QStringList headings;
        for (int column = 0; column < model.columnCount(); ++column)
            headings << model.headerData(column, Qt::Horizontal).toString();
        EXPECT_EQ(headings.join(u' '),
                  Text("Jméno Pohlaví Majitel Plemeno Poznámka Výstava Uzávěrka Cena Soutěže "
                       "Soutěže Ocenění Uhrazeno Bilance"));
    });
}

TEST_F(fm_DogsListTest, ShowsADogWithAllThatBelongsToIt) {
    const int dog = AddDog(
        "Rex",
        {{"ChovnaStanice", Text("z Lhoty")}, {"Poznamka", Text("hlídat")}, {"PrvniPes", true}});
    Enter(dog, AddShow("Jarní", 300));
    Compete(dog, AddCompetition("Mladý vystavovatel", 50));
    Compete(dog, AddCompetition("Pár", 25));
    Award(dog, Add("Oceneni", {{"Nazev", Text("CAC")}}));
    Award(dog, Add("Oceneni", {{"Nazev", Text("BOB")}}));
    Pay(dog, "1000.5");
    Open([dog](QWidget& window) {
        ReportList& list = List(window);
        ASSERT_EQ(list.RowCount(), 1);
        EXPECT_EQ(Line(list, 0),
                  "Rex z Lhoty | Pes | Jana Malá | Boxer | hlídat | Jarní | I | 600 Kč | Mladý "
                  "vystavovatel, Pár | 75 Kč | CAC, BOB | 1000,5 Kč | 325,5 Kč");
        EXPECT_EQ(list.Row(0).key, u"P%1"_s.arg(dog));
        EXPECT_EQ(list.Row(0).tag, QString::number(dog));
        EXPECT_EQ(Colour(list, 0, kBalance), QColor(0, 160, 0));
        EXPECT_EQ(Panel(window, 2), Text("Poplatky celkem:  675,00 Kč, uhrazeno celkem: 1 000,50 "
                                         "Kč, bilance: + 325,50 Kč"));
    });
}

TEST_F(fm_DogsListTest, ADogWithoutAShowHasNoPriceAndStillItsClosing) {
    Add("Psi", {{"Jmeno", Text("Asta")},
                {"PlemenoID", Add("Plemena", {{"NazevOrig", Text("Beagle")}})},
                {"MajitelID", owner}});
    Open([](QWidget& window) {
        EXPECT_EQ(Line(List(window), 0),
                  "Asta  | Fena | Jana Malá | Beagle |  |  | II |  |  | 0 Kč |  | 0 Kč | 0 Kč");
        EXPECT_EQ(Colour(List(window), 0, kBalance), QColor(Qt::black));
    });
}

TEST_F(fm_DogsListTest, OfTwoShowsBothAreOwedAndTheLastPriceIsShown) {
    const int dog = AddDog("Rex");
    Enter(dog, AddShow("Jarní", 300));
    Enter(dog, AddShow("Letní", 200));
    Open([](QWidget& window) {
        const ReportList& list = List(window);
        EXPECT_EQ(list.CellText(0, kShow), Text("Jarní Letní"));
        EXPECT_EQ(list.CellText(0, kPrice), Text("200 Kč"));
        EXPECT_EQ(list.CellText(0, kBalance), Text("-500 Kč"));
        EXPECT_EQ(Colour(list, 0, kBalance), QColor(255, 0, 0));
    });
}

TEST_F(fm_DogsListTest, AGermanShepherdPaysTheColumnOfItsClassCode) {
    AddLink("Plemena", {{"ID", kSpecialBreedID}, {"Nazev", Text("Německý ovčák")}});
    const int show = Add("Vystavy", {{"Nazev", Text("Jarní")},
                                     {"PoplatkyIClass3D2", Currency::FromUnits(30)},
                                     {"PoplatkyIClass9D2", Currency::FromUnits(90)}});
    const int dog = AddDog("Rex", {{"Trida", 3}, {"PlemenoID", kSpecialBreedID}});
    Enter(dog, show);
    Open([](QWidget& window) { EXPECT_EQ(List(window).CellText(0, kPrice), Text("30 Kč")); });
}

TEST_F(fm_DogsListTest, ASecondClosingPaysItsOwnColumns) {
    const int dog = AddDog("Rex", {{"PrvniUzaverka", false}});
    Enter(dog, AddShow("Jarní", 300));
    Open([](QWidget& window) {
        EXPECT_EQ(List(window).CellText(0, kClosing), Text("II"));
        EXPECT_EQ(List(window).CellText(0, kPrice), Text("290 Kč"));
    });
}

TEST_F(fm_DogsListTest, AFeeThatIsMissingEndsTheFilling) {
    const int dog = AddDog("Rex");
    Enter(dog, Add("Vystavy", {{"Nazev", Text("Jarní")}}));
    fm_DogsList window(nullptr);
    EXPECT_THROW(OpenModal(window), StoreError);
}

TEST_F(fm_DogsListTest, ADogWithoutAClassHasNoFeeToRead) {
    const int dog = AddDog("Rex", {{"Trida", 0}});
    Enter(dog, AddShow("Jarní", 300));
    fm_DogsList window(nullptr);
    EXPECT_THROW(OpenModal(window), StoreError);
}

TEST_F(fm_DogsListTest, CountsAllDogsAlsoThoseItCannotShow) {
    AddDog("Rex", {{"MajitelID", 4711}});
    AddDog("Brok", {{"PlemenoID", 4711}});
    AddDog("Asta", {{"PohlaviPes", false}});
    Open([](QWidget& window) {
        EXPECT_EQ(List(window).RowCount(), 1);
        EXPECT_EQ(Panel(window, 1), Text("V seznamu  jsou 2 psi a 1 fena, celkem 3."));
    });
}

TEST_F(fm_DogsListTest, WithoutDogsTheCountsAreNone) {
    Open([](QWidget& window) {
        EXPECT_EQ(List(window).RowCount(), 0);
        EXPECT_EQ(Panel(window, 1), Text("V seznamu  je 0 psů a 0 fen, celkem 0."));
        EXPECT_EQ(Panel(window, 2),
                  Text("Poplatky celkem:  0,00 Kč, uhrazeno celkem:  0,00 Kč, bilance:  0,00 Kč"));
    });
}

TEST_F(fm_DogsListTest, ListsByNameAndSortsByTheClickedColumn) {
    AddDog("Žeryk");
    AddDog("Čert");
    AddDog("Cyril", {{"PohlaviPes", false}});
    Open([](QWidget& window) {
        ReportList& list = List(window);
        const auto names = [&list] {
            return list.CellText(0, kName) + list.CellText(1, kName) + list.CellText(2, kName);
        };
        const auto click = [&list](int column) {
            QHeaderView& header = *list.header();
            QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                              {header.sectionViewportPosition(column) + 10, header.height() / 2});
        };
        EXPECT_EQ(names(), Text("Cyril Čert Žeryk "));
        click(kName);
        EXPECT_EQ(names(), Text("Žeryk Čert Cyril "));
        click(kGender);
        EXPECT_EQ(list.CellText(0, kName), Text("Cyril "));
    });
}

TEST_F(fm_DogsListTest, TextsOfTheListAreNotEdited) {
    AddDog("Rex");
    Open([](QWidget& window) {
        List(window).SelectRow(0);
        QTest::keyClick(&List(window), Qt::Key_F2);
        EXPECT_EQ(List(window).findChild<QLineEdit*>(), nullptr);
    });
}

TEST_F(fm_DogsListTest, ADoubleClickJumpsToTheDogAndCloses) {
    const QString node = u"P%1"_s.arg(AddDog("Rex"));
    tree.AddNode(node, Text("Rex"));
    fm_DogsList window(nullptr);
    EXPECT_FALSE(window.JumpedToDog());
    WhileOpen([&] { OpenModal(window); },
              [](QWidget& open) {
                  ReportList& list = List(open);
                  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 0));
                  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 0));
                  EXPECT_FALSE(open.isVisible());
              });
    EXPECT_TRUE(window.JumpedToDog());
    EXPECT_EQ(tree.selected, node);
}

TEST_F(fm_DogsListTest, ADogThatTheTreeDoesNotShowIsNotJumpedTo) {
    AddDog("Rex");
    fm_DogsList window(nullptr);
    WhileOpen([&] { OpenModal(window); },
              [](QWidget& open) {
                  ReportList& list = List(open);
                  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 0));
                  EXPECT_TRUE(open.isVisible());
              });
    EXPECT_FALSE(window.JumpedToDog());
}

TEST_F(fm_DogsListTest, ARightClickGivesAnAwardAndTakesItAgain) {
    const int dog = AddDog("Rex");
    const int zlata = Add("Oceneni", {{"Nazev", Text("Zlatá")}});
    const int bob = Add("Oceneni", {{"Nazev", Text("BOB")}});
    Award(dog, zlata);
    const auto choose = [&](ReportList& list) {
        platform.ExpectMenu(bob);
        QTest::mouseClick(list.viewport(), Qt::RightButton, {}, PlaceOf(list, 0));
    };
    Open([&](QWidget& window) {
        ReportList& list = List(window);
        choose(list);
        EXPECT_EQ(platform.LastMenuLines().join(u'\n'),
                  Text("%1 BOB\n%2 [x] Zlatá").arg(bob).arg(zlata));
        EXPECT_EQ(list.CellText(0, kAwards), Text("Zlatá, BOB"));
        EXPECT_EQ(AwardsOfDog(dog), (Numbers{zlata, bob}));
        choose(list);
        EXPECT_EQ(platform.LastMenuLines().front(), Text("%1 [x] BOB").arg(bob));
        EXPECT_EQ(list.CellText(0, kAwards), Text("Zlatá"));
    });
    EXPECT_EQ(AwardsOfDog(dog), Numbers{zlata});
}

TEST_F(fm_DogsListTest, NoMenuBesideTheRowsNorWithoutAwards) {
    AddDog("Rex");
    Open([](QWidget& window) {
        ReportList& list = List(window);
        QTest::mouseClick(list.viewport(), Qt::RightButton, {}, PlaceOf(list, 0));
        QTest::mouseClick(list.viewport(), Qt::RightButton, {},
                          {20, list.viewport()->height() - 5});
    });
}

// kept: filter-without-effect
TEST_F(fm_DogsListTest, TheFilterOpensFromItsBarAndChangesNothing) {
    AddDog("Rex");
    Open([](QWidget& window) {
        const auto& bar = Control<QToolBar>(window, "DOGLIST");
        auto* button = bar.widgetForAction(&Control<QAction>(window, "DOGLIST:FILTER"));
        ASSERT_NE(button, nullptr);
        WhileOpen([&] { QTest::mouseClick(button, Qt::LeftButton); },
                  [](QWidget& filter) {
                      EXPECT_EQ(filter.objectName(), Text("frmDogListFilter"));
                      Control<QLineEdit>(filter, "txtJmeno").setText(Text("Brok"));
                      Control<QPushButton>(filter, "cmd_OK").click();
                      EXPECT_FALSE(filter.isVisible());
                  });
        EXPECT_EQ(List(window).RowCount(), 1);
    });
}

} // namespace
} // namespace lorvo::test
