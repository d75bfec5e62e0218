#include "payments/frmUhrady.h"

#include "payments/payments_fixture.h"
#include "store/meny.h"
#include "store/psi.h"
#include "support/window_walk.h"

#include <QGroupBox>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class StatementTest : public PaymentsTest {
  protected:
    static void Open(const std::function<void(QWidget&)>& inside) {
        PaymentsTest::Open<frmUhrady>(inside);
    }
    void AsOwner(int owner) const {
        Module().PaymentsOwner = owner;
        Module().CurrentOwner = owner;
    }
    static DateValue May(int day) { return DateValue::FromCalendar(2005, 5, day); }
    /// Presses the button for a new payment and takes one of that amount.
    static void Take(QWidget& window, const char* amount) {
        WhileOpen([&] { Press(window, "cmdPlatba"); },
                  [&](QWidget& entry) {
                      ASSERT_EQ(entry.objectName(), Text("frmPlatba"));
                      Control<QLineEdit>(entry, "txtCastka").setText(Text(amount));
                      Press(entry, "cmdOK");
                  });
    }
};

// kept: unfilled-price-box
TEST_F(StatementTest, ListsTheDogsPaymentsByDate) {
    Module().MainCurrency = Text("EUR");
    const int late = AddPayment(rex, 300, 1,
                                {{"Datum", May(9).WithSecondOfDay(3661)},
                                 {"Kc", Currency::FromRaw(76'500'000)},
                                 {"Uhrada", 0},
                                 {"Ucet", Text("1/0100")}});
    AddPayment(rex, 12, koruna, {{"Datum", May(2)}});
    AddPayment(alik, 77);
    Open([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Seznam plateb za psa Rex"));
        EXPECT_EQ(Headings(List(window)), "Částka|Datum|Částka v EUR|Způsob úhrady|Číslo účtu");
        EXPECT_EQ(Lines(List(window)),
                  (Texts{"12 Kč|2.5.2005| 12,00 EUR|hotově|",
                         "300 EUR|9.5.2005 1:01:01|7 650,00 EUR|převodem|1/0100"}));
        EXPECT_EQ(List(window).Row(1).key, u"K%1"_s.arg(late));
        EXPECT_EQ(List(window).Row(1).tag, QString::number(late));
        EXPECT_FALSE(Control<QGroupBox>(window, "fraCena").isVisible());
    });
}

TEST_F(StatementTest, ADogWithoutPaymentsHasAnEmptyList) {
    Open([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Seznam plateb za psa Rex"));
        EXPECT_EQ(List(window).RowCount(), 0);
    });
}

TEST_F(StatementTest, ListsAnOwnersPaymentsDogByDog) {
    AddPayment(alik, 1, koruna, {{"Datum", May(1)}});
    AddPayment(rex, 2, koruna, {{"Datum", May(8)}});
    AddPayment(rex, 3, koruna, {{"Datum", May(4)}});
    AddPayment(brok, 4);
    AsOwner(jana);
    Open([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Seznam plateb vystavovatele Jana"));
        EXPECT_EQ(Headings(List(window)), "Částka|Pes|Datum|Částka v Kč|Způsob úhrady|Číslo účtu");
        EXPECT_EQ(Lines(List(window)),
                  (Texts{"3 Kč|Rex|4.5.2005| 3,00 Kč|hotově|", "2 Kč|Rex|8.5.2005| 2,00 Kč|hotově|",
                         "1 Kč|Alík|1.5.2005| 1,00 Kč|hotově|"}));
    });
}

// kept: statement-names-the-owner-under-work
TEST_F(StatementTest, TheCaptionNamesTheOwnerUnderWork) {
    AsOwner(jana);
    Module().CurrentOwner = petr;
    Open([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Seznam plateb vystavovatele Petr"));
    });
    Module().CurrentOwner = 0;
    Open([](QWidget& window) { EXPECT_EQ(window.windowTitle(), Text("Seznam plateb")); });
}

TEST_F(StatementTest, TheHeadingOfTheMainCurrencyIsPutBack) {
    Module().MainCurrency = Text("EUR");
    for (const int owner : {0, jana}) {
        AsOwner(owner);
        frmUhrady window(nullptr);
        WhileOpen([&] { OpenModal(window); }, [](QWidget&) {});
        EXPECT_TRUE(Headings(List(window)).find("Částka v Kč") != std::string::npos);
    }
}

TEST_F(StatementTest, TheColumnOfDogsLeavesTheWidthsOfTheOthersAlone) {
    const auto widths = [](const ReportList& list) {
        Texts texts;
        for (int column = 0; column < list.ColumnCount() - 1; ++column) // the last fills the list
            texts.push_back(std::to_string(list.columnWidth(column)));
        return texts;
    };
    Open([](QWidget& window) { List(window).SetColumnWidths({151, 152, 153, 154}); });
    for (const char* dogs : {"201", "202"}) {
        AsOwner(jana);
        Open([&](QWidget& window) {
            List(window).setColumnWidth(1, std::stoi(dogs));
            EXPECT_EQ(widths(List(window)), (Texts{"151", dogs, "152", "153", "154"}));
        });
        Open([&](QWidget& window) { EXPECT_EQ(widths(List(window))[1], dogs) << "as left"; });
        AsOwner(0);
        Open([&](QWidget& window) {
            EXPECT_EQ(widths(List(window)), (Texts{"151", "152", "153", "154"}));
        });
    }
}

TEST_F(StatementTest, AmountsWithDecimalsAreSeenWhole) {
    AddPayment(
        rex, 1, 1,
        {{"Castka", Currency::FromRaw(999'991'234)}, {"Kc", Currency::FromRaw(1'234'567'890'000)}});
    Open([](QWidget& window) {
        const ReportList& list = List(window);
        EXPECT_EQ(Line(list, 0), "99999,1234 EUR|1.5.2005|123456 789,00 Kč|hotově|");
        for (int column = 0; column < list.ColumnCount(); ++column)
            EXPECT_LE(list.sizeHintForIndex(list.model()->index(0, column)).width(),
                      list.columnWidth(column))
                << column;
    });
}

TEST_F(StatementTest, ANewPaymentOfTheDogShowsAtOnce) {
    Open([](QWidget& window) {
        Take(window, "450");
        EXPECT_EQ(Lines(List(window)), Texts{"450 Kč|14.5.2005 8:01:01| 450,00 Kč|převodem|"});
    });
    EXPECT_EQ(LastPayment("ID_Psa"), std::to_string(rex));
}

TEST_F(StatementTest, AnOwnersOnlyDogIsTakenWithoutAsking) {
    AsOwner(petr);
    Open([](QWidget& window) {
        Take(window, "20");
        Take(window, "30");
        EXPECT_EQ(List(window).RowCount(), 2);
        EXPECT_EQ(List(window).ColumnCount(), 6);
    });
    EXPECT_EQ(Module().CurrentDogID, brok);
    EXPECT_EQ(LastPayment("ID_Psa"), std::to_string(brok));
}

TEST_F(StatementTest, OfMoreDogsTheClerkPicksOne) {
    AsOwner(jana);
    Module().CurrentDogID = brok;
    Open([this](QWidget& window) {
        platform.ExpectMenu(0);
        Press(window, "cmdPlatba");
        EXPECT_EQ(platform.LastMenuLines(),
                  (QStringList{u"%1 Alík"_s.arg(alik), u"%1 Rex"_s.arg(rex)}));
        EXPECT_EQ(Module().CurrentDogID, brok);
        platform.ExpectMenu(alik);
        Take(window, "60");
        EXPECT_EQ(List(window).RowCount(), 1);
    });
    EXPECT_EQ(Module().CurrentDogID, alik);
    EXPECT_EQ(LastPayment("ID_Psa"), std::to_string(alik));
}

TEST_F(StatementTest, AnOwnerWithoutDogsTakesNothing) {
    AsOwner(Add("Majitele", {{"Jmeno", Text("Eva")}}));
    Open([](QWidget& window) {
        Press(window, "cmdPlatba");
        EXPECT_EQ(QApplication::activeModalWidget(), &window);
    });
    EXPECT_EQ(CountStored(), 0u);
}

TEST_F(StatementTest, PaymentsOfADeletedDogStandInNoStatement) {
    AddPayment(rex, 1);
    AddPayment(alik, 2);
    DeleteDog(rex);
    AsOwner(jana);
    Open([](QWidget& window) {
        EXPECT_EQ(Lines(List(window)), Texts{"2 Kč|Alík|1.5.2005| 2,00 Kč|hotově|"});
    });
    AsOwner(0);
    frmUhrady window(nullptr);
    EXPECT_THROW(OpenModal(window), StoreError);
}

TEST_F(StatementTest, DeletesByButtonAndByKeyAfterAsking) {
    for (const int amount : {1, 2, 3})
        AddPayment(rex, amount);
    Open([this](QWidget& window) {
        const QString question = Text("Skutečně smazat platbu?");
        Press(window, "cmdDelete");
        List(window).SelectRow(1);
        platform.ExpectMessage(question, MessageAnswer::Cancel, MessageIcon::Question,
                               MessageButtons::OkCancel, window.windowTitle());
        Press(window, "cmdDelete");
        EXPECT_EQ(CountStored(), 3u);
        platform.ExpectMessage(question);
        Press(window, "cmdDelete");
        EXPECT_EQ(Column("SELECT Castka FROM Uhrady"), (Texts{"1", "3"}));
        List(window).SelectRow(0);
        platform.ExpectMessage(question);
        QTest::keyClick(&List(window), Qt::Key_Delete);
        EXPECT_EQ(Lines(List(window)), Texts{"3 Kč|1.5.2005| 3,00 Kč|hotově|"});
    });
    EXPECT_EQ(Column("SELECT Castka FROM Uhrady"), Texts{"3"});
}

TEST_F(StatementTest, AMissingCurrencyBreaksADogsStatementAndLeavesAGapInAnOwners) {
    AddPayment(rex, 5, 99);
    AddPayment(rex, 6, koruna, {{"Uhrada", 7}});
    AddPayment(alik, 7);
    AsOwner(jana);
    Open([](QWidget& window) {
        EXPECT_EQ(Lines(List(window)),
                  (Texts{"5 |Rex|1.5.2005| 5,00 Kč|hotově|", "6 Kč|Rex|1.5.2005| 6,00 Kč||",
                         "7 Kč|Alík|1.5.2005| 7,00 Kč|hotově|"}));
    });
    AsOwner(0);
    frmUhrady window(nullptr);
    EXPECT_THROW(OpenModal(window), StoreError);
}

TEST_F(StatementTest, AWayOfPaymentThatIsMissingIsNotTheFirstOne) {
    AddPayment(rex, 5, koruna, {{"Uhrada", Value()}});
    AsOwner(jana);
    Open([](QWidget& window) {
        EXPECT_EQ(Lines(List(window)), Texts{"5 Kč|Rex|1.5.2005| 5,00 Kč||"});
    });
    AsOwner(0);
    frmUhrady window(nullptr);
    EXPECT_THROW(OpenModal(window), StoreError);
}

TEST_F(StatementTest, IsAWindowThatReadsWell) {
    frmUhrady window(nullptr);
    WalkWindow(window);
}

} // namespace

} // namespace lorvo::test
