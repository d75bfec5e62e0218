#include "setup/frmWizard.h"

#include "forms/controls.h"
#include "setup/breed_tree.h"
#include "setup/setup_fixture.h"

#include <QFile>
#include <set>

namespace lorvo::test {
namespace {

class WizardTest : public SetupTest {
  protected:
    static void Forward(QWidget& window, int steps = 1) {
        for (int step = 0; step < steps; ++step)
            Press(window, "cmdFwd");
    }
    /// The number of the only page shown, -1 when that isn't one.
    static int Page(QWidget& window) {
        int shown = -1;
        for (int page = 0; page < 5; ++page) {
            if (!Control<QWidget>(window, ("picWiz(" + std::to_string(page) + ")").c_str())
                     .isVisible())
                continue;
            EXPECT_EQ(shown, -1);
            shown = page;
        }
        return shown;
    }
    static QString ForwardCaption(QWidget& window) {
        return Control<QPushButton>(window, "cmdFwd").text();
    }
};

TEST_F(WizardTest, StepsThroughItsPages) {
    Open<frmWizard>([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Průvodce");
        EXPECT_EQ(Control<QLabel>(window, "lblTitle").text(), u"Průvodce nastavením");
        EXPECT_FALSE(IsEnabled(window, "cmdBack"));
        const char* const kFocused[] = {"", "dtDatum", "txtNazevVystavy", "txtNazevMeny", ""};
        for (int page = 0; page < 5; ++page) {
            EXPECT_EQ(Page(window), page);
            EXPECT_EQ(ForwardCaption(window), page == 4 ? u"Dokončit" : u"Dále >");
            EXPECT_EQ(IsEnabled(window, "cmdBack"), page > 0);
            if (*kFocused[page]) {
                EXPECT_EQ(window.focusWidget()->objectName(), QString::fromLatin1(kFocused[page]));
            }
            if (page < 4)
                Forward(window);
        }
        Press(window, "cmdBack");
        EXPECT_EQ(Page(window), 3);
        EXPECT_EQ(ForwardCaption(window), u"Dále >");
        Forward(window, 2);
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(WizardTest, StartsWithItsDefaults) {
    platform.currencySymbol = Text("€");
    Open<frmWizard>([&](QWidget& window) {
        EXPECT_EQ(Control<QDateEdit>(window, "dtDatum").date(), QDate(2000, 1, 1));
        EXPECT_EQ(Box(window, "txtNazevVystavy").text(), u"Hlavní výstava");
        EXPECT_EQ(Box(window, "txtNazevMeny").text(), u"Koruna česká");
        EXPECT_EQ(Box(window, "txtCurrency").text(), u"€");
        EXPECT_EQ(Control<QLabel>(window, "lblText(0)").text(),
                  Text("Vítejte v průvodci. S jeho pomocí můžete pohodlně nastavit všechny všechny "
                       "údaje, potřebné k tomu, abyste mohli začít přidávat psy do výstavy. "
                       "Klikněte na tlačítko Dále."));
    });
    platform.currencySymbol = QString();
    Open<frmWizard>([&](QWidget& window) { EXPECT_EQ(Box(window, "txtCurrency").text(), u"Kč"); });
}

TEST_F(WizardTest, ShowsTheBreedsUntickedInTwoColumnsAndClearsTheFlag) {
    Module().BreedsDirty = true;
    const int pudl = AddBreed("Pudl", {{"Pouzivat", true}, {"FCI", 9}});
    const int brown = AddBreed("Hnědý", {{"Parent", pudl}, {"Vlastni", true}});
    Open<frmWizard>([&](QWidget& window) {
        auto& breeds = Control<BreedTree>(window, "tvwWizardPlemena");
        BreedTreeModel& model = breeds.Model();
        EXPECT_EQ(model.columnCount(), 2);
        const QModelIndex first = model.IndexOf(*model.Find(pudl));
        const QModelIndex second = model.IndexOf(*model.Find(brown));
        EXPECT_EQ(first.data(), Text("Pudl (Orig)"));
        EXPECT_EQ(first.siblingAtColumn(1).data(), Text("9"));
        EXPECT_EQ(first.data(Qt::CheckStateRole), Qt::Unchecked);
        EXPECT_EQ(second.parent(), first);
        EXPECT_EQ(second.siblingAtColumn(1).data(), Text("-nezařazeno-"));
        EXPECT_EQ(second.data(Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 255));
    });
    EXPECT_FALSE(Module().BreedsDirty);
}

TEST_F(WizardTest, TheTextStandsAtTheTopOfEachPage) {
    Open<frmWizard>([&](QWidget& window) {
        std::set<int> places;
        for (int page = 0; page < 5; ++page) {
            QCoreApplication::processEvents();
            auto& text = Control<QLabel>(window, ("lblText(" + std::to_string(page) + ")").c_str());
            ASSERT_TRUE(text.isVisible()) << page;
            places.insert(text.mapTo(&window, QPoint()).y());
            if (page < 4)
                Press(window, "cmdFwd");
        }
        EXPECT_EQ(places.size(), 1u);
    });
}

TEST_F(WizardTest, EnterOnABreedOpensItAndFinishesNothing) {
    const int pudl = AddBreed("Pudl");
    AddBreed("Hnědý", {{"Parent", pudl}});
    Open<frmWizard>([&](QWidget& window) {
        for (int page = 0; page < 4; ++page)
            Press(window, "cmdFwd");
        auto& breeds = Control<BreedTree>(window, "tvwWizardPlemena");
        breeds.SelectNode(*breeds.Model().Find(pudl));
        for (const bool expanded : {true, false}) {
            QTest::keyClick(&breeds, Qt::Key_Return);
            EXPECT_EQ(breeds.isExpanded(breeds.currentIndex()), expanded);
            EXPECT_TRUE(window.isVisible());
        }
    });
}

TEST_F(WizardTest, FinishingStoresNothing) {
    const int pudl = AddBreed("Pudl");
    AddShow("Krajská");
    const auto bytes = [] {
        QFile file(TheDataModule().Conn1.Path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QByteArray before = bytes();
    Open<frmWizard>([&](QWidget& window) {
        Forward(window);
        Control<QDateEdit>(window, "dtDatum").setDate({2005, 5, 14});
        Forward(window);
        Box(window, "txtNazevVystavy").setText(Text("Jiná"));
        Forward(window);
        Box(window, "txtCurrency").setText(Text("EUR"));
        Forward(window);
        auto& breeds = Control<BreedTree>(window, "tvwWizardPlemena");
        breeds.SelectNode(*breeds.Model().Find(pudl));
        QTest::keyClick(&breeds, Qt::Key_Space);
        EXPECT_TRUE(breeds.Model().Find(pudl)->checked);
        EXPECT_FALSE(Control<QWidget>(window, "Frame2").isVisible());
        QStringList summary;
        for (const char* caption :
             {"Datum výstavy", "Název hlavní výstavy", "Název hlavní měny", "Zkratka hlavní měny"})
            for (const QLabel* label : Control<QWidget>(window, "Frame2").findChildren<QLabel*>())
                if (label->accessibleName() == Text(caption))
                    summary << label->text();
        EXPECT_EQ(summary, (QStringList{Text("14.5.2005"), Text("Jiná"), Text("Koruna česká"),
                                        Text("EUR")}));
        Forward(window);
    });
    EXPECT_EQ(bytes(), before);
    EXPECT_TRUE(Column("SELECT ID FROM Meny").empty());
    EXPECT_TRUE(Column("SELECT DatumVystavy FROM Ostatni").empty());
    EXPECT_EQ(One("SELECT Nazev FROM Vystavy"), "Krajská");
    EXPECT_EQ(One("SELECT Pouzivat FROM Plemena"), "0");
}

TEST_F(WizardTest, StornoAndEscapeAskAndTheFrameDoesNot) {
    const auto expectQuestion = [&](MessageAnswer answer) {
        platform.ExpectMessage(Text("Určitě chcete ukončit průvodce?"), answer,
                               MessageIcon::Question, MessageButtons::YesNo, Text("Průvodce"));
    };
    Open<frmWizard>([&](QWidget& window) {
        Forward(window, 2);
        expectQuestion(MessageAnswer::No);
        Press(window, "cmdCancel");
        EXPECT_EQ(Page(window), 2);
        expectQuestion(MessageAnswer::No);
        QTest::keyClick(&Box(window, "txtNazevVystavy"), Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible());
        expectQuestion(MessageAnswer::Yes);
        Press(window, "cmdCancel");
        EXPECT_FALSE(window.isVisible());
    });
    Open<frmWizard>([&](QWidget& window) {
        window.close();
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(WizardTest, EnterInABoxGoesToTheNextPage) {
    Open<frmWizard>([&](QWidget& window) {
        Forward(window, 2);
        QTest::keyClick(&Box(window, "txtNazevVystavy"), Qt::Key_Return);
        EXPECT_EQ(Page(window), 3);
    });
}

} // namespace
} // namespace lorvo::test
