#include "payments/frmPlatba.h"

#include "app/common_routines.h"
#include "payments/payments_fixture.h"
#include "store/meny.h"
#include "support/window_walk.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QCompleter>
#include <QDateEdit>
#include <random>

namespace lorvo::test {

namespace {

class PaymentEntryTest : public PaymentsTest {
  protected:
    static QLineEdit& Amount(QWidget& window) { return Control<QLineEdit>(window, "txtCastka"); }
    static QLineEdit& Account(QWidget& window) { return Control<QLineEdit>(window, "acUcet"); }
    static QComboBox& Currencies(QWidget& window) { return Control<QComboBox>(window, "cmbMena"); }
    static QComboBox& Modes(QWidget& window) { return Control<QComboBox>(window, "cmbZpusob"); }
    static std::string Converted(QWidget& window) {
        return Control<QLabel>(window, "lblPrepocteno").text().toStdString();
    }
    static bool IsDefault(QWidget& window) {
        return Control<QPushButton>(window, "cmdOK").isDefault();
    }
    static Texts Suggestions(QWidget& window) {
        const QAbstractItemModel& model = *Account(window).completer()->model();
        Texts texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts.push_back(model.index(row, 0).data().toString().toStdString());
        return texts;
    }
    static void Open(const std::function<void(QWidget&)>& inside) {
        PaymentsTest::Open<frmPlatba>(inside);
    }
    /// Takes a payment of that amount and expects it to be stored.
    static void Take(const char* amount, const char* currency = "Koruna (Kč)") {
        Open([&](QWidget& window) {
            Currencies(window).setCurrentText(Text(currency));
            Amount(window).setText(Text(amount));
            Press(window, "cmdOK");
            EXPECT_FALSE(window.isVisible());
        });
    }
};

TEST_F(PaymentEntryTest, OpensOnTheDogTodayAndTheMainCurrency) {
    Open([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Příjem platby - Rex z Lesa"));
        EXPECT_EQ(Currencies(window).count(), 3);
        EXPECT_EQ(Currencies(window).currentText(), Text("Koruna (Kč)"));
        EXPECT_EQ(Amount(window).text(), Text("0"));
        EXPECT_EQ(Converted(window), " 0,00 Kč");
        EXPECT_EQ(Modes(window).currentText(), Text("převodem"));
        EXPECT_EQ(Modes(window).count(), 3);
        EXPECT_TRUE(Account(window).isEnabled());
        EXPECT_EQ(Control<QDateEdit>(window, "dtPrijata").date(), QDate(2005, 5, 14));
        int prices = 0;
        for (const QLabel* label : window.findChildren<QLabel*>())
            prices += label->text() == Text("0 Kč") ? 1 : 0;
        EXPECT_EQ(prices, 3);
    });
}

TEST_F(PaymentEntryTest, WithoutAMainCurrencyTheFirstIsChosen) {
    SetMainMark(koruna, false);
    Open([](QWidget& window) {
        EXPECT_EQ(Currencies(window).currentText(), Text("Euro (EUR)"));
        EXPECT_TRUE(Control<QPushButton>(window, "cmdOK").isEnabled());
    });
}

TEST_F(PaymentEntryTest, WithoutAnyCurrencyNothingCanBeTaken) {
    DeleteAllCurrencies();
    Open([](QWidget& window) {
        EXPECT_FALSE(Control<QPushButton>(window, "cmdOK").isEnabled());
        Amount(window).setText(Text("5"));
        EXPECT_EQ(Converted(window), "...");
    });
}

TEST_F(PaymentEntryTest, StoresAllThatThePaymentIs) {
    Open([](QWidget& window) {
        Currencies(window).setCurrentText(Text("Euro (EUR)"));
        Amount(window).setText(Text("20"));
        Account(window).setText(Text("19-2000145399/0800"));
        Control<QDateEdit>(window, "dtPrijata").setDate({2005, 5, 12});
        Press(window, "cmdOK");
    });
    ASSERT_EQ(CountStored(), 1u);
    EXPECT_EQ(LastPayment("ID_Psa"), std::to_string(rex));
    EXPECT_EQ(LastPayment("Datum"), "2005-05-12T08:01:01");
    EXPECT_EQ(LastPayment("Castka"), "20");
    EXPECT_EQ(LastPayment("Mena"), "1");
    EXPECT_EQ(LastPayment("Kurs"), "25.5");
    EXPECT_EQ(LastPayment("Kc"), "510");
    EXPECT_EQ(LastPayment("Uhrada"), "0");
    EXPECT_EQ(LastPayment("Ucet"), "19-2000145399/0800");
    EXPECT_EQ(LastPayment("Printed"), "0");
}

TEST_F(PaymentEntryTest, StornoStoresNothing) {
    Open([](QWidget& window) {
        Amount(window).setText(Text("20"));
        Press(window, "cmdCancel");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(CountStored(), 0u);
    EXPECT_TRUE(Module().LastPaymentDate.IsZero());
}

// kept: two-zeros-are-an-amount
TEST_F(PaymentEntryTest, RefusesNothingAndZeroButStoresTwoZeros) {
    Open([this](QWidget& window) {
        for (const char* refused : {"0", ""}) {
            Amount(window).setText(Text(refused));
            platform.ExpectMessage(Text("Částka nesprávně zadána"), MessageAnswer::Ok,
                                   MessageIcon::Information, MessageButtons::Ok,
                                   window.windowTitle());
            Press(window, "cmdOK");
            EXPECT_TRUE(window.isVisible());
        }
        EXPECT_EQ(CountStored(), 0u);
        Amount(window).setText(Text("00"));
        Press(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(LastPayment("Castka"), "0");
}

// kept: account-of-cash
TEST_F(PaymentEntryTest, OnlyATransferNeedsAnAccountButWhatStandsThereIsKept) {
    Open([](QWidget& window) {
        Account(window).setText(Text("123/0100"));
        Modes(window).setCurrentText(Text("hotově"));
        EXPECT_FALSE(Account(window).isEnabled());
        Modes(window).setCurrentText(Text("složenkou"));
        EXPECT_FALSE(Account(window).isEnabled());
        Modes(window).setCurrentText(Text("převodem"));
        EXPECT_TRUE(Account(window).isEnabled());
        Modes(window).setCurrentText(Text("hotově"));
        Amount(window).setText(Text("300"));
        Press(window, "cmdOK");
    });
    EXPECT_EQ(LastPayment("Uhrada"), "1");
    EXPECT_EQ(LastPayment("Ucet"), "123/0100");
}

TEST_F(PaymentEntryTest, ConvertsWhileTheAmountIsTypedAndTheCurrencyChosen) {
    Open([](QWidget& window) {
        Amount(window).setText(Text("1000"));
        EXPECT_EQ(Converted(window), "1 000,00 Kč");
        Currencies(window).setCurrentText(Text("Zlotý (PLN)"));
        EXPECT_EQ(Converted(window), "6 234,50 Kč");
        Amount(window).clear();
        EXPECT_EQ(Converted(window), "...");
        Amount(window).setText(Text("999999999"));
        EXPECT_NE(Converted(window), "...");
        Amount(window).setText(Text("dvě"));
        EXPECT_EQ(Converted(window), "...");
    });
}

TEST_F(PaymentEntryTest, TenDigitsAreNotConvertedButStored) {
    Open([](QWidget& window) {
        Amount(window).setText(Text("1234567890"));
        EXPECT_EQ(Converted(window), "...");
        Press(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(LastPayment("Kc"), "1234567890");
}

TEST_F(PaymentEntryTest, AnAmountTooLargeIsRefusedByName) {
    Open([this](QWidget& window) {
        const QString digits(40, u'9');
        Amount(window).setText(digits);
        platform.ExpectMessage(
            Text("Částka: Číslo ") + digits + Text(" je mimo rozsah, který lze uložit."),
            MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok, window.windowTitle());
        Press(window, "cmdOK");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(Amount(window).text(), digits);
    });
    EXPECT_EQ(CountStored(), 0u);
    EXPECT_TRUE(Module().LastPaymentDate.IsZero());
}

TEST_F(PaymentEntryTest, AnAmountTooLargeOnlyWhenConvertedIsRefusedToo) {
    AddCurrency("Diamant", "D", Currency::FromUnits(900'000'000'000));
    Open([this](QWidget& window) {
        Currencies(window).setCurrentText(Text("Diamant (D)"));
        Amount(window).setText(Text("99999"));
        EXPECT_EQ(Converted(window), "...");
        platform.ExpectMessage(
            Text("Částka: Číslo 900000000000 × 99999 je mimo rozsah, který lze uložit."));
        Press(window, "cmdOK");
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_EQ(CountStored(), 0u);
}

TEST_F(PaymentEntryTest, TheNextPaymentOpensOnTheDateOfTheLast) {
    Open([](QWidget& window) {
        Control<QDateEdit>(window, "dtPrijata").setDate({2005, 4, 30});
        Amount(window).setText(Text("5"));
        Press(window, "cmdOK");
    });
    EXPECT_EQ(Module().LastPaymentDate, DateValue::FromCalendar(2005, 4, 30));
    Open([](QWidget& window) {
        EXPECT_EQ(Control<QDateEdit>(window, "dtPrijata").date(), QDate(2005, 4, 30));
    });
}

TEST_F(PaymentEntryTest, ALaterRateChangesNoPaymentTaken) {
    Take("10", "Euro (EUR)");
    Meny euro = CurrencyByID(1).value();
    euro.Kurs = Currency::FromUnits(30);
    UpdateCurrency(euro);
    EXPECT_EQ(LastPayment("Kurs"), "25.5");
    EXPECT_EQ(LastPayment("Kc"), "255");
    Take("10", "Euro (EUR)");
    EXPECT_EQ(LastPayment("Kc"), "300");
}

TEST_F(PaymentEntryTest, SuggestsTheAccountsOfAllTheOwnersDogs) {
    AddPayment(rex, 1, koruna, {{"Ucet", Text("111/0100")}});
    AddPayment(alik, 1, koruna, {{"Ucet", Text("222/0100")}});
    AddPayment(alik, 1, koruna, {{"Ucet", Text("111/0100")}});
    AddPayment(alik, 1);
    AddPayment(brok, 1, koruna, {{"Ucet", Text("333/0100")}});
    Open([](QWidget& window) {
        EXPECT_EQ(Suggestions(window), (Texts{"111/0100", "222/0100", "111/0100"}));
    });
    Module().CurrentDogID = brok;
    Open([](QWidget& window) { EXPECT_EQ(Suggestions(window), Texts{"333/0100"}); });
}

TEST_F(PaymentEntryTest, EnterStoresExceptInTheAccountBox) {
    Open([](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_TRUE(Amount(window).hasFocus());
        EXPECT_EQ(Amount(window).selectedText(), Text("0"));
        QTest::keyClicks(&Amount(window), Text("35a0,"));
        EXPECT_EQ(Amount(window).text(), Text("350"));
        EXPECT_TRUE(IsDefault(window));
        QTest::keyClick(&window, Qt::Key_Tab);
        QTest::keyClick(&window, Qt::Key_Tab);
        ASSERT_TRUE(Account(window).hasFocus());
        EXPECT_FALSE(IsDefault(window));
        QTest::keyClicks(&Account(window), Text("77/0300"));
        QTest::keyClick(&Account(window), Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        QTest::keyClick(&window, Qt::Key_Tab);
        EXPECT_TRUE(IsDefault(window));
        QTest::keyClick(&Control<QDateEdit>(window, "dtPrijata"), Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(LastPayment("Castka"), "350");
    EXPECT_EQ(LastPayment("Ucet"), "77/0300");
}

TEST_F(PaymentEntryTest, AnAccountTypedToItsEndLeavesNoListOpen) {
    AddPayment(alik, 1, koruna, {{"Ucet", Text("222/0100")}});
    AddPayment(alik, 1, koruna, {{"Ucet", Text("222/0100")}});
    Open([](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        Account(window).setFocus();
        QTest::keyClicks(&Account(window), Text("222/010"));
        EXPECT_TRUE(QApplication::activePopupWidget());
        QTest::keyClicks(&Account(window), Text("0"));
        QCoreApplication::processEvents();
        EXPECT_FALSE(QApplication::activePopupWidget());
        Press(window, "cmdCancel");
    });
}

TEST_F(PaymentEntryTest, EnterTakesTheSuggestion) {
    AddPayment(alik, 1, koruna, {{"Ucet", Text("222/0100")}});
    Open([](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        Account(window).setFocus();
        QTest::keyClicks(&Account(window), Text("22"));
        QWidget* offer = QApplication::activePopupWidget();
        ASSERT_TRUE(offer);
        EXPECT_FALSE(IsDefault(window));
        QTest::keyClick(offer, Qt::Key_Down);
        QTest::keyClick(offer, Qt::Key_Return);
        EXPECT_EQ(Account(window).text(), Text("222/0100"));
        EXPECT_TRUE(window.isVisible());
        EXPECT_FALSE(IsDefault(window));
    });
}

TEST_F(PaymentEntryTest, AClickTakesASuggestionOfTheWindowsOwnList) {
    AddPayment(alik, 1, koruna, {{"Ucet", Text("222/0100")}});
    Open([](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        Account(window).setFocus();
        QTest::keyClicks(&Account(window), Text("22"));
        auto* offer = qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
        ASSERT_TRUE(offer);
        ASSERT_TRUE(offer->parentWidget());
        EXPECT_EQ(offer->parentWidget()->window(), &window);
        QTest::mouseClick(offer->viewport(), Qt::LeftButton, {},
                          offer->visualRect(offer->model()->index(0, 0)).center());
        EXPECT_EQ(Account(window).text(), Text("222/0100"));
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(PaymentEntryTest, AClickIntoTheAmountSelectsIt) {
    Open([](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        Amount(window).setText(Text("1500"));
        Account(window).setFocus();
        QTest::mouseClick(&Amount(window), Qt::LeftButton);
        QCoreApplication::processEvents();
        EXPECT_EQ(Amount(window).selectedText(), Text("1500"));
    });
}

TEST_F(PaymentEntryTest, ADogThatIsGoneIsAFailure) {
    Module().CurrentDogID = 999;
    frmPlatba window(nullptr);
    EXPECT_THROW(OpenModal(window), StoreError);
}

TEST_F(PaymentEntryTest, ConvertsByTheExactProductWhateverTheRate) {
    std::mt19937 random(7);
    for (int round = 0; round < 25; ++round) {
        const Currency rate = Currency::FromRaw(static_cast<int>(random() % 2'000'000));
        const int amount = 1 + static_cast<int>(random() % 99'999);
        // By whole numbers alone: the rate counts ten-thousandths and the amount whole units.
        const Currency expected = Currency::FromRaw(rate.Raw() * amount);
        AddCurrency(("Měna " + std::to_string(round)).c_str(), "M", rate);
        Open([&](QWidget& window) {
            Currencies(window).setCurrentIndex(Currencies(window).count() - 1);
            Amount(window).setText(QString::number(amount));
            EXPECT_EQ(Converted(window), AmountText(expected).toStdString());
            Press(window, "cmdOK");
        });
        EXPECT_EQ(LastPayment("Kc"), expected.ToPlainText('.'));
        EXPECT_EQ(LastPayment("Kurs"), rate.ToPlainText('.'));
    }
}

TEST_F(PaymentEntryTest, IsAWindowThatReadsWell) {
    frmPlatba window(nullptr);
    WalkWindow(window);
}

} // namespace

} // namespace lorvo::test
