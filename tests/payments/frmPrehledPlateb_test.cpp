#include "payments/frmPrehledPlateb.h"

#include "payments/payments_fixture.h"
#include "store/majitele.h"
#include "store/meny.h"
#include "store/psi.h"
#include "store/uhrady.h"
#include "support/window_walk.h"

#include <QHeaderView>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class OverviewTest : public PaymentsTest {
  protected:
    static void Open(const std::function<void(QWidget&)>& inside) {
        PaymentsTest::Open<frmPrehledPlateb>(inside);
    }
    static void Select(ReportList& list, const std::vector<int>& positions) {
        list.clearSelection();
        for (const int position : positions)
            list.selectionModel()->select(list.model()->index(position, 0),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    static Texts Printed() { return Column("SELECT Printed FROM Uhrady ORDER BY ID"); }
    static void ClickHeading(ReportList& list, int column) {
        QHeaderView& header = *list.header();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(column) + 10, header.height() / 2});
    }
};

TEST_F(OverviewTest, ListsAllPaymentsByOwner) {
    AddPayment(brok, 7, 1,
               {{"Kc", Currency::FromRaw(1'785'000)},
                {"Uhrada", 0},
                {"Ucet", Text("5/0800")},
                {"Printed", true}});
    const int first = AddPayment(rex, 1234);
    Module().MainCurrency = Text("CZK");
    Open([&](QWidget& window) {
        ReportList& list = List(window);
        EXPECT_EQ(window.windowTitle(), Text("Přehled plateb"));
        EXPECT_EQ(Headings(list), "Jméno|Jméno psa|Datum|Částka v Kč|Vytištěno|Způsob úhrady|"
                                  "Číslo účtu|Částka|Měna");
        EXPECT_EQ(Lines(list),
                  (Texts{"Malá Jana, Kolín|Rex|1.5.2005|1 234,00 CZK|Ne|hotově||1234|Kč",
                         "Čech Petr, Zlín|Brok|1.5.2005| 178,50 CZK|Ano|převodem|5/0800|7|EUR"}));
        EXPECT_EQ(list.Row(0).key, u"P%1"_s.arg(first));
        EXPECT_EQ(list.Row(0).cells[4].icon, 2);
        EXPECT_EQ(list.Row(1).cells[4].icon, 3);
        EXPECT_FALSE(list.model()->index(0, 4).data(Qt::DecorationRole).value<QIcon>().isNull());
    });
}

TEST_F(OverviewTest, PaymentsWithoutTheirDogOrOwnerAreLeftOut) {
    AddPayment(rex, 1);
    AddPayment(brok, 2);
    AddPayment(alik, 3);
    DeleteDog(rex);
    DeleteOwner(petr);
    Open([](QWidget& window) {
        ASSERT_EQ(List(window).RowCount(), 1);
        EXPECT_EQ(List(window).CellText(0, 1), Text("Alík"));
    });
}

TEST_F(OverviewTest, AnIncompleteOwnerHasNoName) {
    AddPayment(AddDog("Ben", Add("Majitele", {{"Jmeno", Text("Eva")}})), 1);
    Open([](QWidget& window) { EXPECT_EQ(List(window).CellText(0, 0), QString()); });
}

TEST_F(OverviewTest, AMissingCurrencyFailsTheLoading) {
    AddPayment(rex, 1);
    AddPayment(rex, 2, 99);
    frmPrehledPlateb window(nullptr);
    EXPECT_THROW(OpenModal(window), StoreError);
}

TEST_F(OverviewTest, AMissingWayOfPaymentFailsTheLoading) {
    AddPayment(rex, 1, koruna, {{"Uhrada", Value()}});
    frmPrehledPlateb window(nullptr);
    EXPECT_THROW(OpenModal(window), StoreError);
}

TEST_F(OverviewTest, WithNoRowSelectedTheRightButtonOpensNothing) {
    AddPayment(rex, 1);
    Open([](QWidget& window) {
        List(window).clearSelection();
        RightClick(List(window), -1);
    });
}

TEST_F(OverviewTest, MarksExactlyTheSelectedRows) {
    for (int amount = 1; amount <= 5; ++amount)
        AddPayment(rex, amount);
    Open([this](QWidget& window) {
        ReportList& list = List(window);
        Select(list, {1, 3, 4});
        platform.ExpectMenu(0);
        RightClick(list, 3);
        EXPECT_EQ(platform.LastMenuLines(), (QStringList{Text("100 Označit jako vytištěné"),
                                                         Text("101 Označit jako nevytištěné")}));
        EXPECT_EQ(Printed(), (Texts{"0", "0", "0", "0", "0"}));
        platform.ExpectMenu(100);
        RightClick(list, 3);
        EXPECT_EQ(Printed(), (Texts{"0", "-1", "0", "-1", "-1"}));
        EXPECT_EQ(list.CellText(1, 4), Text("Ano"));
        EXPECT_EQ(list.Row(1).cells[4].icon, 3);
        EXPECT_EQ(list.CellText(2, 4), Text("Ne"));
        Select(list, {1, 2});
        platform.ExpectMenu(101);
        RightClick(list, 2);
        EXPECT_EQ(Printed(), (Texts{"0", "0", "0", "-1", "-1"}));
        EXPECT_EQ(list.CellText(1, 4), Text("Ne"));
        EXPECT_EQ(list.Row(1).cells[4].icon, 2);
        EXPECT_EQ(platform.waitCursorDepth, 0);
    });
}

TEST_F(OverviewTest, AFailureShowsNothingAsPrinted) {
    const int first = AddPayment(rex, 1);
    const int gone = AddPayment(rex, 2);
    const auto mark = [&] {
        Open([&](QWidget& window) {
            ReportList& list = List(window);
            DeletePayment(gone);
            Select(list, {0, 1});
            platform.ExpectMenu(100);
            RightClick(list, 0);
            EXPECT_EQ(list.CellText(0, 4), Text("Ne"));
        });
    };
    EXPECT_THROW(mark(), StoreError);
    EXPECT_EQ(Column("SELECT ID FROM Uhrady"), Texts{std::to_string(first)});
}

TEST_F(OverviewTest, ASortedListKeepsItsOrderWhileItIsMarked) {
    for (const int dog : {rex, alik, brok})
        AddPayment(dog, 1);
    Open([this](QWidget& window) {
        ReportList& list = List(window);
        ClickHeading(list, 4);
        ClickHeading(list, 1);
        const auto dogs = [&list] {
            Texts names;
            for (int position = 0; position < list.RowCount(); ++position)
                names.push_back(list.CellText(position, 1).toStdString());
            return names;
        };
        EXPECT_EQ(dogs(), (Texts{"Alík", "Brok", "Rex"}));
        ClickHeading(list, 4);
        const Texts before = dogs();
        Select(list, {1});
        platform.ExpectMenu(100);
        RightClick(list, 1);
        EXPECT_EQ(dogs(), before);
        EXPECT_EQ(list.CellText(1, 4), Text("Ano"));
    });
}

TEST_F(OverviewTest, RefusesEditingInPlace) {
    AddPayment(rex, 1);
    Open([](QWidget& window) {
        EXPECT_EQ(List(window).editTriggers(), QAbstractItemView::NoEditTriggers);
        EXPECT_EQ(List(window).selectionMode(), QAbstractItemView::ExtendedSelection);
    });
}

TEST_F(OverviewTest, IsAWindowThatReadsWell) {
    frmPrehledPlateb window(nullptr);
    WalkWindow(window);
}

} // namespace

} // namespace lorvo::test
