// The page of the currencies and the editor of one, inside a window that refills the page when it
// comes back to the front, as the settings do.

#include "app/module_values.h"
#include "forms/report_list.h"
#include "payments/currency_list.h"
#include "payments/frmEditCurrency.h"
#include "store/meny.h"
#include "store/routines_fixture.h"
#include "support/modal_driver.h"
#include "support/recording_platform.h"
#include "support/window_walk.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class CurrencyHost : public Form {
  public:
    CurrencyHost()
        : Form("host", u"Nastavení"_s, Border::Sizable, nullptr), page_(new CurrencyList(this)) {
        (new QVBoxLayout(this))->addWidget(page_);
    }
    void Activated() override { page_->Refill(); }

  private:
    CurrencyList* page_;
};

class CurrenciesTest : public RoutinesTest {
  protected:
    CurrenciesTest() {
        Module() = ModuleValues();
        Module().MainCurrency = Text("Kč");
    }
    ~CurrenciesTest() override { Module() = ModuleValues(); }

    static void AddCrownAndEuro() {
        AddCurrency("Koruna", "Kč", Currency::FromUnits(1), true);
        AddCurrency("Euro", "EUR", Currency::FromRaw(253'350));
    }
    static void AddPayment(int currency) { Add("Uhrady", {{"Mena", currency}}); }

    void OpenPage(const std::function<void(QWidget&, ReportList&)>& inside) {
        CurrencyHost host;
        WhileOpen(
            [&] { OpenModal(host); },
            [&](QWidget& window) { inside(window, Control<ReportList>(window, "lvwCurrencies")); });
    }
    void OpenEditor(int currency, const std::function<void(QWidget&)>& inside) {
        frmEditCurrency editor(
            currency, [this](bool main) { told << main; }, nullptr);
        WhileOpen([&] { OpenModal(editor); }, inside);
    }
    static void Command(QWidget& window, const char* command) {
        Control<QAction>(window, ("CURRENCIESLIST:" + std::string(command)).c_str()).trigger();
    }
    static QLineEdit& Box(QWidget& window, int index) {
        return Control<QLineEdit>(window, ("txtEditCurr(" + std::to_string(index) + ")").c_str());
    }
    static QCheckBox& Main(QWidget& window) { return Control<QCheckBox>(window, "chkMainCurr"); }
    static bool CanStore(QWidget& window) {
        return Control<QPushButton>(window, "cmdOK").isEnabled();
    }
    static void FillIn(QWidget& window, const char* name, const char* abbreviation,
                       const char* rate) {
        Box(window, 0).setText(Text(name));
        Box(window, 1).setText(Text(abbreviation));
        if (Box(window, 2).isEnabled())
            Box(window, 2).setText(Text(rate));
    }
    static void Press(QWidget& window, const char* button) {
        Control<QPushButton>(window, button).click();
    }
    static Texts Rows(const ReportList& list) {
        Texts rows;
        for (int row = 0; row < list.RowCount(); ++row)
            rows.push_back((list.CellText(row, 0) + u'|' + list.CellText(row, 1) + u'|' +
                            list.CellText(row, 2))
                               .toStdString());
        return rows;
    }
    static Texts BoldRows(const ReportList& list) {
        Texts names;
        for (int row = 0; row < list.RowCount(); ++row)
            if (list.Row(row).bold)
                names.push_back(list.CellText(row, 0).toStdString());
        return names;
    }
    static Texts Stored() {
        Texts rows;
        for (const Meny& currency : Currencies())
            rows.push_back((currency.Nazev + u'|' + currency.Zkratka + u'|').toStdString() +
                           currency.Kurs.ToPlainText(',') + (currency.Hlavni ? "|main" : "|"));
        return rows;
    }

    RecordingPlatform platform;
    QList<bool> told;
};

TEST_F(CurrenciesTest, ThePageShowsTheRatesAndTheMainOneBold) {
    AddCrownAndEuro();
    Module().MainCurrency = Text("SKK");
    OpenPage([&](QWidget&, ReportList& list) {
        EXPECT_EQ(Rows(list), (Texts{"Koruna|Kč|1", "Euro|EUR|25,335"}));
        EXPECT_EQ(BoldRows(list), Texts{"Koruna"});
        EXPECT_EQ(list.Row(1).key, u"C2");
        EXPECT_EQ(list.model()->headerData(2, Qt::Horizontal).toString(),
                  u"Kurs (x SKK/ 1 jednotka)");
        list.SelectRow(0);
        QTest::keyClick(&list, Qt::Key_F2);
        EXPECT_TRUE(list.findChildren<QLineEdit*>().isEmpty()) << "no editing in place";
    });
}

TEST_F(CurrenciesTest, TheFirstCurrencyIsTheMainOne) {
    OpenPage([&](QWidget& window, ReportList& list) {
        WhileOpen([&] { Command(window, "ADD"); },
                  [&](QWidget& editor) {
                      EXPECT_EQ(editor.windowTitle(), u"Přidat měnu");
                      EXPECT_TRUE(Main(editor).isChecked());
                      EXPECT_EQ(Box(editor, 2).text(), u"1");
                      EXPECT_FALSE(Box(editor, 2).isEnabled());
                      EXPECT_FALSE(CanStore(editor));
                      FillIn(editor, " Koruna ", " Kč ", "");
                      Press(editor, "cmdOK");
                      EXPECT_FALSE(editor.isVisible());
                  });
        EXPECT_EQ(BoldRows(list), Texts{"Koruna"});
    });
    EXPECT_EQ(Stored(), Texts{"Koruna|Kč|1|main"});
}

TEST_F(CurrenciesTest, TheFirstCurrencyMayBeUnmarked) {
    OpenEditor(0, [&](QWidget& editor) {
        Main(editor).click();
        EXPECT_TRUE(Box(editor, 2).isEnabled());
        EXPECT_EQ(Box(editor, 2).text(), u"1");
        FillIn(editor, "Koruna", "Kč", "1");
        Press(editor, "cmdOK");
    });
    EXPECT_EQ(Stored(), Texts{"Koruna|Kč|1|"});
}

TEST_F(CurrenciesTest, OKNeedsNameAbbreviationAndANumber) {
    AddCrownAndEuro();
    OpenEditor(2, [&](QWidget& editor) {
        EXPECT_EQ(editor.windowTitle(), u"Upravit měnu");
        EXPECT_EQ(Box(editor, 2).text(), u"25,335");
        EXPECT_TRUE(CanStore(editor));
        for (const char* rate : {"", "x", "1,2,3"}) {
            Box(editor, 2).setText(Text(rate));
            EXPECT_FALSE(CanStore(editor)) << rate;
        }
        for (const char* rate : {"0", "-2", "1 000,5"}) {
            Box(editor, 2).setText(Text(rate));
            EXPECT_TRUE(CanStore(editor)) << rate;
        }
        Box(editor, 1).clear();
        EXPECT_FALSE(CanStore(editor));
        FillIn(editor, "", "EUR", "1");
        EXPECT_FALSE(CanStore(editor));
        FillIn(editor, "Euro", "EUR", "-2,5");
        Press(editor, "cmdOK");
    });
    EXPECT_EQ(Stored()[1], "Euro|EUR|-2,5|");
}

TEST_F(CurrenciesTest, AMarkedCurrencyTakesTheMarkFromAllOfOtherNames) {
    AddCrownAndEuro();
    AddCurrency("d'Or", "OR", Currency::FromUnits(3), true);
    OpenEditor(2, [&](QWidget& editor) {
        Main(editor).click();
        EXPECT_EQ(Box(editor, 2).text(), u"1");
        Box(editor, 0).setText(Text("d'Or"));
        Press(editor, "cmdOK");
    });
    EXPECT_EQ(Stored(), (Texts{"Koruna|Kč|1|", "d'Or|EUR|1|main", "d'Or|OR|3|main"}))
        << "of the same name both stay marked";
}

TEST_F(CurrenciesTest, TheEditorReportsBeforeTheOthersLoseTheirMark) {
    AddCrownAndEuro();
    Texts atReport;
    frmEditCurrency editor(
        2, [&](bool) { atReport = Stored(); }, nullptr);
    WhileOpen([&] { OpenModal(editor); },
              [&](QWidget& window) {
                  Main(window).click();
                  Press(window, "cmdOK");
              });
    EXPECT_EQ(atReport, (Texts{"Koruna|Kč|1|main", "Euro|EUR|1|main"}));
    EXPECT_EQ(Stored(), (Texts{"Koruna|Kč|1|", "Euro|EUR|1|main"}));
}

TEST_F(CurrenciesTest, AnAmpersandInTheMainCurrencyIsSeenInTheRatesCaption) {
    Module().MainCurrency = Text("K&č");
    OpenEditor(0, [](QWidget& window) {
        const QList<QLabel*> labels = window.findChildren<QLabel*>();
        const auto caption = std::ranges::find_if(
            labels, [&](const QLabel* label) { return label->buddy() == &Box(window, 2); });
        ASSERT_NE(caption, labels.end());
        EXPECT_EQ((*caption)->text(), u"Kurs (x K&&č/ 1 jednotka)") << "doubled it is a letter";
    });
}

TEST_F(CurrenciesTest, AllRowsTakeTheEditorsMarkUntilThePageComesToTheFront) {
    AddCrownAndEuro();
    OpenPage([&](QWidget& window, ReportList& list) {
        std::vector<Texts> bold;
        QObject::connect(list.model(), &QAbstractItemModel::modelReset, &list,
                         [&] { bold.push_back(BoldRows(list)); });
        const auto storeSelected = [&](int row, bool mark) {
            list.SelectRow(row);
            WhileOpen([&] { Command(window, "EDIT"); },
                      [&](QWidget& editor) {
                          if (mark)
                              Main(editor).click();
                          Press(editor, "cmdOK");
                      });
        };
        storeSelected(1, false);
        EXPECT_EQ(bold, (std::vector<Texts>{{}, {"Koruna"}}));
        bold.clear();
        storeSelected(1, true);
        EXPECT_EQ(bold, (std::vector<Texts>{{"Koruna", "Euro"}, {"Euro"}}));
    });
}

TEST_F(CurrenciesTest, APaymentFixesTheMarksOfAllCurrencies) {
    AddCrownAndEuro();
    AddPayment(2);
    for (const int currency : {0, 1, 2})
        OpenEditor(currency, [&](QWidget& editor) { EXPECT_FALSE(Main(editor).isEnabled()); });
}

TEST_F(CurrenciesTest, ARateOutOfRangeIsRefusedByName) {
    OpenEditor(0, [&](QWidget& editor) {
        Main(editor).click();
        FillIn(editor, "Koruna", "Kč", "99999999999999999999");
        EXPECT_TRUE(CanStore(editor));
        platform.ExpectMessage(
            Text("Kurs: Číslo 99999999999999999999 je mimo rozsah, který lze uložit."));
        Press(editor, "cmdOK");
        EXPECT_TRUE(editor.isVisible());
    });
    EXPECT_TRUE(Stored().empty());
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(CurrenciesTest, StornoWritesNothing) {
    AddCrownAndEuro();
    const Texts before = Stored();
    OpenEditor(1, [&](QWidget& editor) {
        FillIn(editor, "Jiná", "J", "9");
        Press(editor, "cmdCancel");
    });
    OpenEditor(1, [&](QWidget& editor) { QTest::keyClick(&editor, Qt::Key_Escape); });
    EXPECT_EQ(Stored(), before);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(CurrenciesTest, EditingNeedsARow) {
    AddCrownAndEuro();
    OpenPage([&](QWidget& window, ReportList& list) {
        platform.ExpectMessage(Text("Nebyla vybrána žádná měna"), MessageAnswer::Ok,
                               MessageIcon::Information, MessageButtons::Ok, Text("Nastavení"));
        Command(window, "EDIT");
        Command(window, "DELETE");
        QTest::keyClick(&list, Qt::Key_Delete);
    });
    EXPECT_EQ(Stored().size(), 2u);
}

TEST_F(CurrenciesTest, ADoubleClickEditsAndSelectsTheRowAgain) {
    AddCrownAndEuro();
    OpenPage([&](QWidget&, ReportList& list) {
        const QPoint middle = list.visualRect(list.model()->index(1, 0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
        WhileOpen([&] { QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middle); },
                  [&](QWidget& editor) {
                      EXPECT_EQ(Box(editor, 0).text(), u"Euro");
                      Press(editor, "cmdCancel");
                  });
        EXPECT_EQ(list.SelectedRow(), 1);
    });
}

TEST_F(CurrenciesTest, TheCommandDeletesOnlyWhatNoPaymentUses) {
    AddCrownAndEuro();
    AddPayment(2);
    OpenPage([&](QWidget& window, ReportList& list) {
        list.SelectRow(1);
        platform.ExpectMessage(Text("Měnu nelze odstranit, je použita v 1 platbách."),
                               MessageAnswer::Ok, MessageIcon::Information, MessageButtons::Ok,
                               Text("Nastavení"));
        Command(window, "DELETE");
        list.SelectRow(0);
        platform.ExpectMessage(Text("Určitě chcete ze seznamu odstranit měnu Koruna?"),
                               MessageAnswer::Cancel, MessageIcon::Question,
                               MessageButtons::OkCancel, Text("Nastavení"));
        Command(window, "DELETE");
        EXPECT_EQ(Stored().size(), 2u);
        platform.ExpectMessage(Text("Určitě chcete ze seznamu odstranit měnu Koruna?"),
                               MessageAnswer::Ok);
        Command(window, "DELETE");
        EXPECT_EQ(Rows(list), Texts{"Euro|EUR|25,335"}) << "the main one can go too";
    });
}

// kept: two-roads-of-deleting-a-currency
TEST_F(CurrenciesTest, TheKeyDeletesEvenWhatPaymentsUse) {
    AddCrownAndEuro();
    AddPayment(2);
    OpenPage([&](QWidget&, ReportList& list) {
        list.SelectRow(1);
        for (const auto answer : {MessageAnswer::No, MessageAnswer::Yes}) {
            EXPECT_EQ(Stored().size(), 2u);
            platform.ExpectMessage(Text("Určitě chcete ze seznamu odstranit měnu Euro?"), answer,
                                   MessageIcon::Question, MessageButtons::YesNoCancel,
                                   Text("Nastavení"));
            QTest::keyClick(&list, Qt::Key_Delete);
        }
    });
    EXPECT_EQ(Stored(), Texts{"Koruna|Kč|1|main"});
}

TEST_F(CurrenciesTest, TheEditorIsReadInOrder) {
    OpenEditor(0, [](QWidget& editor) { WalkWindow(editor); });
}

} // namespace
} // namespace lorvo::test
