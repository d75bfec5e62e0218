#include "dogs/frmVystavovatele.h"

#include "dogs/exhibitors_fixture.h"
#include "forms/report_list.h"
#include "support/modal_driver.h"
#include "support/recording_main_window.h"
#include "support/window_walk.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class ExhibitorListTest : public ExhibitorsTest {
  protected:
    ExhibitorListTest() {
        Add("Meny", {{"Nazev", Text("Koruna")},
                     {"Zkratka", Text("Kč")},
                     {"Kurs", Currency::FromUnits(1)},
                     {"Hlavni", true}});
        const int show = AddShow({{"PoplatkyIClass5D1", Currency::FromUnits(1400)},
                                  {"PoplatkyIIClass5D2", Currency::FromUnits(550)}});
        jana = AddOwner("Jana", {{"Ulice", Text("Lesní 1")},
                                 {"Mesto", Text("Kolín")},
                                 {"PSC", 1234},
                                 {"Stat", Text("ČR")},
                                 {"Telefon", Text("777 123")},
                                 {"Email", Text("jana@lesni.cz")}});
        cyril = AddOwner("Cyril", {{"Email", Text("0")}, {"PSC", 0}});
        chana = AddOwner("Chána");
        rex = AddDog("Rex", jana,
                     {{"PrvniUzaverka", true}, {"PrvniPes", true}, {"PohlaviPes", true}});
        bara = AddDog("Bára", jana);
        Enter(rex, show);
        Enter(bara, show);
        ben = AddDog("Ben", chana);
        Pay(rex, Currency::FromUnits(1200));
        Pay(ben, Currency::FromRaw(125'000));
    }

    static void Open(const std::function<void(QWidget&)>& inside) {
        frmVystavovatele window(nullptr);
        WhileOpen([&] { OpenModal(window); }, inside);
    }
    static ReportList& List(QWidget& window) { return Control<ReportList>(window, "lvwList"); }
    static std::string Panel(QWidget& window, const char* name) {
        return Control<QLabel>(window, name).text().toStdString();
    }
    static std::string Line(const ReportList& list, int position) {
        QStringList texts;
        for (int column = 0; column < list.ColumnCount(); ++column)
            texts << list.CellText(position, column);
        return texts.join(u'|').toStdString();
    }
    static int RowOf(const ReportList& list, int owner) {
        return list.FindRow(u"M%1"_s.arg(owner));
    }
    static QPoint Middle(const ReportList& list, int position) {
        return list.visualRect(list.model()->index(position, 0)).center();
    }
    static void RightClick(ReportList& list, int position) {
        QTest::mouseClick(list.viewport(), Qt::RightButton, {}, Middle(list, position));
    }
    static void DoubleClick(ReportList& list, int position) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Middle(list, position));
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, Middle(list, position));
    }

    RecordingMainWindow tree;
    int jana = 0;
    int cyril = 0;
    int chana = 0;
    int rex = 0;
    int bara = 0;
    int ben = 0;
};

TEST_F(ExhibitorListTest, ListsAllOwnersInCzechOrderWithTheirFigures) {
    Open([this](QWidget& window) {
        ReportList& list = List(window);
        ASSERT_EQ(list.RowCount(), 3);
        EXPECT_EQ(Line(list, 0), "Cyril|||000 00|||0|0| 0,00 Kč| 0,00 Kč| 0,00 Kč");
        EXPECT_EQ(Line(list, 1), "Chána|||000 00||||1| 0,00 Kč| 12,50 Kč| 12,50 Kč");
        EXPECT_EQ(Line(list, 2), "Jana|Lesní 1|Kolín|012 34|ČR|777 123|jana@lesni.cz|2|"
                                 "1 950,00 Kč|1 200,00 Kč|- 750,00 Kč");
        EXPECT_EQ(list.Row(2).key, u"M%1"_s.arg(jana));
        EXPECT_EQ(list.Row(2).tag, QString::number(jana));
        EXPECT_EQ(list.Row(0).cells[10].colour, std::nullopt);
        EXPECT_EQ(list.Row(1).cells[10].colour, QColor(0, 180, 0));
        EXPECT_EQ(list.Row(2).cells[10].colour, QColor(255, 0, 0));
    });
}

TEST_F(ExhibitorListTest, TheListAppearsFilledWithItsTotals) {
    Open([this](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Vystavovatelé"));
        EXPECT_TRUE(List(window).isVisible());
        EXPECT_FALSE(Control<QProgressBar>(window, "pbMain").isVisible());
        EXPECT_EQ(Control<QProgressBar>(window, "pbMain").maximum(), 4);
        EXPECT_FALSE(Control<QLabel>(window, "Label1").isVisible());
        EXPECT_EQ(Panel(window, "Label1"), "Pracuji...");
        EXPECT_EQ(Panel(window, "sb(1)"), "Celkem 3 vystavovatelů.");
        EXPECT_EQ(Panel(window, "sb(2)"), "Poplatky celkem: 1 950,00 Kč, uhrazeno celkem: "
                                          "1 212,50 Kč, bilance: - 737,50 Kč");
        EXPECT_EQ(platform.waitCursorDepth, 0);
        EXPECT_EQ(List(window).editTriggers(), QAbstractItemView::NoEditTriggers);
    });
}

TEST_F(ExhibitorListTest, AFeeThatCantBeReadBreaksTheFilling) {
    Enter(AddDog("Max", cyril, {{"Trida", 12}}), 1);
    frmVystavovatele window(nullptr);
    EXPECT_THROW(OpenModal(window), StoreError);
    EXPECT_EQ(platform.waitCursorDepth, 0);
}

TEST_F(ExhibitorListTest, AClickOnAHeadingSortsByItsTexts) {
    Open([](QWidget& window) {
        ReportList& list = List(window);
        QHeaderView& header = *list.header();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(0) + 10, header.height() / 2});
        EXPECT_EQ(list.CellText(0, 0), Text("Jana"));
        EXPECT_EQ(list.PictureOf(0), HeaderPicture::Descending);
    });
}

TEST_F(ExhibitorListTest, ADoubleClickEditsTheOwnerAndReadsTheRowBack) {
    Open([this](QWidget& window) {
        ReportList& list = List(window);
        const int row = RowOf(list, jana);
        WhileOpen([&] { DoubleClick(list, row); },
                  [this](QWidget& editor) {
                      ASSERT_EQ(editor.objectName(), Text("frmEditMan"));
                      EXPECT_EQ(Module().CurrentOwner, jana);
                      Control<QLineEdit>(editor, "txtItem(0)").setText(Text("Jana O'Neill"));
                      Control<QLineEdit>(editor, "txtItem(3)").setText(Text("280 02"));
                      Control<QLineEdit>(editor, "txtItem(6)").setText(Text("SR"));
                      Control<QPushButton>(editor, "cmdOK").click();
                  });
        EXPECT_EQ(Line(list, row), "Jana O'Neill|Lesní 1|Kolín|28002|SR|777 123|jana@lesni.cz|2|"
                                   "1 950,00 Kč|1 200,00 Kč|- 750,00 Kč");
    });
    EXPECT_EQ(Column("SELECT Jmeno FROM Majitele WHERE ID = 1"), Texts{"Jana O'Neill"});
}

// kept: owner-deleted-by-email-zero
TEST_F(ExhibitorListTest, AnOwnerIsDeletedOnlyWhenTheAddressReadsZero) {
    Open([this](QWidget& window) {
        ReportList& list = List(window);
        list.clearSelection();
        list.setCurrentIndex({});
        QTest::keyClick(&list, Qt::Key_Delete);

        const QString refusal = Text("Tuto osobu není možno smazat, protože má přihlášené psy (");
        list.SelectRow(RowOf(list, jana));
        platform.ExpectMessage(refusal + Text("jana@lesni.cz)"), MessageAnswer::Ok,
                               MessageIcon::Stop, MessageButtons::Ok, window.windowTitle());
        QTest::keyClick(&list, Qt::Key_Delete);
        list.SelectRow(RowOf(list, chana));
        platform.ExpectMessage(refusal + Text(")"));
        QTest::keyClick(&list, Qt::Key_Delete);

        list.SelectRow(RowOf(list, cyril));
        platform.ExpectMessage(Text("Skutečně smazat?"), MessageAnswer::No, MessageIcon::Question,
                               MessageButtons::YesNoCancel, window.windowTitle());
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_EQ(list.RowCount(), 3);
        platform.ExpectMessage(Text("Skutečně smazat?"), MessageAnswer::Yes);
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_EQ(list.RowCount(), 2);
        EXPECT_EQ(RowOf(list, cyril), -1);
    });
    EXPECT_EQ(Column("SELECT Jmeno FROM Majitele"), (Texts{"Jana", "Chána"}));
}

TEST_F(ExhibitorListTest, DeletingAnOwnerLeavesTheDogs) {
    AddDog("Max", cyril);
    Open([this](QWidget& window) {
        List(window).SelectRow(RowOf(List(window), cyril));
        platform.ExpectMessage(Text("Skutečně smazat?"), MessageAnswer::Yes);
        QTest::keyClick(&List(window), Qt::Key_Delete);
    });
    EXPECT_EQ(Column("SELECT MajitelID FROM Psi WHERE Jmeno = 'Max'"),
              Texts{std::to_string(cyril)});
}

TEST_F(ExhibitorListTest, TheMenuLeadsToTheOwnersDogs) {
    tree.AddNode(u"P%1"_s.arg(bara), Text("Bára"));
    Open([this](QWidget& window) {
        ReportList& list = List(window);
        platform.ExpectMenu(bara);
        RightClick(list, RowOf(list, jana));
        EXPECT_EQ(platform.LastMenuLines(),
                  (QStringList{Text("%1 F Bára").arg(bara), Text("%1 P Rex").arg(rex), Text("---"),
                               Text("-3 Zobrazit platby")}));
        EXPECT_EQ(tree.selected, u"P%1"_s.arg(bara));
        EXPECT_TRUE(window.isVisible());
        platform.ExpectMenu(rex);
        RightClick(list, RowOf(list, jana));
        EXPECT_EQ(tree.selected, u"P%1"_s.arg(bara)) << "Rex is not on the tree";
        platform.ExpectMenu(0);
        RightClick(list, RowOf(list, cyril));
        EXPECT_EQ(platform.LastMenuLines(), (QStringList{Text("---"), Text("-3 Zobrazit platby")}));
    });
}

TEST_F(ExhibitorListTest, ARightClickBelowTheRowsOpensNothing) {
    Open([](QWidget& window) {
        ReportList& list = List(window);
        QTest::mouseClick(list.viewport(), Qt::RightButton, {},
                          list.viewport()->rect().bottomLeft() + QPoint(5, -5));
    });
}

// kept: figures-one-column-left
TEST_F(ExhibitorListTest, AfterTheStatementTheFiguresStandOneColumnTooFarLeft) {
    Open([this](QWidget& window) {
        ReportList& list = List(window);
        const int row = RowOf(list, jana);
        platform.ExpectMenu(-3);
        WhileOpen([&] { RightClick(list, row); },
                  [this](QWidget& statement) {
                      EXPECT_EQ(statement.objectName(), Text("frmUhrady"));
                      EXPECT_EQ(Module().PaymentsOwner, jana);
                      Pay(bara, Currency::FromUnits(1));
                  });
        EXPECT_EQ(Line(list, row), "Jana|Lesní 1|Kolín|012 34|ČR|777 123|jana@lesni.cz|2|"
                                   "1 201,00 Kč|1 199,00 Kč|- 750,00 Kč");
        EXPECT_EQ(list.Row(row).cells[9].colour, QColor(0, 180, 0));
    });
    Open([this](QWidget& window) {
        EXPECT_EQ(List(window).CellText(RowOf(List(window), jana), 8), Text("1 950,00 Kč"));
    });
}

TEST_F(ExhibitorListTest, AfterTheStatementTheColourFollowsTheOddDifference) {
    const int eva = AddOwner("Eva");
    AddDog("Max", eva);
    Open([&](QWidget& window) {
        ReportList& list = List(window);
        for (const auto& [owner, colour] : {std::pair(eva, std::optional(QColor(255, 0, 0))),
                                            std::pair(cyril, std::optional<QColor>())}) {
            const int row = RowOf(list, owner);
            platform.ExpectMenu(-3);
            WhileOpen([&] { RightClick(list, row); }, [](QWidget&) {});
            EXPECT_EQ(list.Row(row).cells[9].colour, colour);
        }
        EXPECT_EQ(list.CellText(RowOf(list, eva), 9), Text("- 1,00 Kč"));
        EXPECT_EQ(list.CellText(RowOf(list, cyril), 9), Text(" 0,00 Kč"));
    });
}

TEST_F(ExhibitorListTest, IsAWindowThatReadsWell) {
    frmVystavovatele window(nullptr);
    WalkWindow(window);
}

} // namespace

} // namespace lorvo::test
