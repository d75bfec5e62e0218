#include "setup/fm_Souteze.h"

#include "setup/setup_fixture.h"
#include "store/souteze.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class CompetitionsTest : public SetupTest {
  protected:
    void OpenList(const std::function<void(QWidget&, ReportList&)>& inside) {
        Open<fm_Souteze>([&](QWidget& window) { inside(window, List(window, "lvwSouteze")); });
    }
    static int AddCompetition(const char* name, Assignments more = {}) {
        more.insert(more.begin(), {"Nazev", Text(name)});
        return Add("Souteze", more);
    }
    static void EnterDogs(int competition, int count) {
        for (int dog = 1; dog <= count; ++dog)
            AddLink("Vazby_Souteze", {{"ID_Psa", dog}, {"ID_Souteze", competition}});
    }
    /// Presses a button of the bar that opens a window.
    static void OpenBy(QWidget& window, const char* key,
                       const std::function<void(QWidget&)>& inside) {
        WhileOpen([&] { Command(window, key); }, inside);
    }
    static bool LoggedOn(QWidget& window) { return Control<QAction>(window, "Logged").isEnabled(); }
    static Texts Names() { return Column("SELECT Nazev FROM Souteze"); }
};

TEST_F(CompetitionsTest, ListsThemAsStoredWithPriceAndDogs) {
    const int child = AddCompetition("Dítě a pes", {{"Cena", Currency::FromRaw(1005000)}});
    AddCompetition("Páry");
    EnterDogs(child, 2);
    OpenList([&](QWidget& window, ReportList& list) {
        EXPECT_EQ(window.windowTitle(), u"Soutěže");
        EXPECT_EQ(RowsOf(list), (Texts{"Dítě a pes|100,5|2", "Páry||0"}));
        EXPECT_EQ(list.Row(0).key, u"C1");
        EXPECT_EQ(list.SelectedRow(), 0);
        EXPECT_TRUE(LoggedOn(window));
        list.header()->resizeSections(QHeaderView::ResizeToContents);
        QTest::mouseClick(list.header()->viewport(), Qt::LeftButton, {},
                          {list.header()->sectionViewportPosition(0) + 10, 5});
        EXPECT_EQ(RowsOf(list), (Texts{"Páry||0", "Dítě a pes|100,5|2"}));
    });
}

TEST_F(CompetitionsTest, EntriesStayShutInAnEmptyListUntilItIsOpenedAnew) {
    OpenList([&](QWidget& window, ReportList& list) {
        EXPECT_FALSE(LoggedOn(window));
        OpenBy(window, "Add", [&](QWidget& editor) {
            EXPECT_EQ(editor.windowTitle(), u"Přidat soutěž");
            Box(editor, "txtNazev(0)").setText(Text("Páry"));
            Press(editor, "cmdOK");
        });
        EXPECT_EQ(list.SelectedRow(), 0);
        EXPECT_FALSE(LoggedOn(window));
        Command(window, "Logged");
    });
    OpenList([&](QWidget& window, ReportList& list) {
        EXPECT_TRUE(LoggedOn(window));
        platform.ExpectMessage(Text("Určitě chcete odstranit soutěž Páry?"), MessageAnswer::No,
                               MessageIcon::Question, MessageButtons::YesNo, Text("Soutěže"));
        Command(window, "Remove");
        platform.ExpectMessage(Text("Určitě chcete odstranit soutěž Páry?"), MessageAnswer::Yes);
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_EQ(list.RowCount(), 0);
        EXPECT_FALSE(LoggedOn(window));
        for (const char* key : {"Edit", "Remove"})
            Command(window, key);
    });
    EXPECT_TRUE(Names().empty());
}

TEST_F(CompetitionsTest, TheNextChoiceAfterADeletionOffersTheEntriesAgain) {
    AddCompetition("Páry");
    AddCompetition("Dítě");
    OpenList([&](QWidget& window, ReportList& list) {
        platform.ExpectMessage(Text("Určitě chcete odstranit soutěž Páry?"), MessageAnswer::Yes);
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_EQ(LoggedOn(window), list.SelectedRow() >= 0);
        list.SelectRow(0);
        EXPECT_TRUE(LoggedOn(window));
    });
}

TEST_F(CompetitionsTest, RefusalsFollowTheNumberOfDogs) {
    const std::pair<int, const char*> kRefusals[] = {
        {1, "Soutěž nelze odstranit, je v ní přihlášen 1 pes."},
        {3, "Soutěž nelze odstranit, jsou v ní přihlášeni 3 psi."},
        {7, "Soutěž nelze odstranit, je v ní přihlášeno 7 psů."},
        {21, "Soutěž nelze odstranit, je v ní přihlášeno 21 psů."}};
    for (const auto& [dogs, text] : kRefusals)
        EnterDogs(AddCompetition("Páry"), dogs);
    OpenList([&](QWidget& window, ReportList& list) {
        for (int row = 0; row < list.RowCount(); ++row) {
            list.SelectRow(row);
            platform.ExpectMessage(Text(kRefusals[row].second), MessageAnswer::Ok,
                                   MessageIcon::Information, MessageButtons::Ok, Text("Soutěže"));
            Command(window, "Remove");
        }
    });
    EXPECT_EQ(Names().size(), 4u);
}

// kept: refusal-by-the-list
TEST_F(CompetitionsTest, TheRefusalGoesByTheListAndNotByTheStore) {
    const int pairs = AddCompetition("Páry");
    OpenList([&](QWidget& window, ReportList&) {
        EnterDogs(pairs, 1);
        platform.ExpectMessage(Text("Určitě chcete odstranit soutěž Páry?"), MessageAnswer::Yes);
        Command(window, "Remove");
    });
    EXPECT_TRUE(Names().empty());
}

// kept: rename-without-duplicates
TEST_F(CompetitionsTest, RenamingInPlaceLooksForNoDuplicates) {
    AddCompetition("Páry");
    AddCompetition("Dítě");
    OpenList([&](QWidget&, ReportList& list) {
        platform.ExpectMessage(Text("Název musí být zadán!"));
        Rename(list, 1, "");
        EXPECT_EQ(list.CellText(1, 0), u"Dítě");
        Rename(list, 1, "Páry");
        EXPECT_EQ(list.CellText(1, 0), u"Páry");
    });
    EXPECT_EQ(Names(), (Texts{"Páry", "Páry"}));
}

TEST_F(CompetitionsTest, TheEditorRefusesTheNameOfAnother) {
    AddCompetition("Páry");
    AddCompetition("Dítě 'A'");
    OpenList([&](QWidget& window, ReportList& list) {
        list.SelectRow(1);
        OpenBy(window, "Edit", [&](QWidget& editor) {
            EXPECT_EQ(editor.windowTitle(), u"Upravit soutěž");
            Box(editor, "txtNazev(0)").setText(Text("PÁRY"));
            platform.ExpectMessage(Text("Soutěž PÁRY už existuje. použijte jiný název."),
                                   MessageAnswer::Ok, MessageIcon::Exclamation, MessageButtons::Ok,
                                   Text("Upravit soutěž"));
            Press(editor, "cmdOK");
            EXPECT_TRUE(editor.isVisible());
            Box(editor, "txtNazev(0)").setText(Text("DÍTĚ 'a'"));
            Press(editor, "cmdOK");
            EXPECT_FALSE(editor.isVisible());
        });
        EXPECT_EQ(list.SelectedRow(), 0) << "a renamed one isn't found again";
        OpenBy(window, "Add", [&](QWidget& editor) {
            Box(editor, "txtNazev(0)").setText(Text("páry"));
            platform.ExpectMessage(Text("Soutěž páry už existuje. použijte jiný název."));
            Press(editor, "cmdOK");
            QTest::keyClick(&editor, Qt::Key_Escape);
            EXPECT_FALSE(editor.isVisible());
        });
    });
    EXPECT_EQ(Names(), (Texts{"Páry", "DÍTĚ 'a'"}));
}

TEST_F(CompetitionsTest, ADoubleClickEditsAndComesBackToTheRow) {
    AddCompetition("Páry");
    AddCompetition("Dítě", {{"Parova", true},
                            {"NazevPar1", Text("otec")},
                            {"NazevPar2", Text("syn")},
                            {"Cena", Currency::FromUnits(50)}});
    OpenList([&](QWidget&, ReportList& list) {
        WhileOpen([&] { DoubleClick(list, 1); },
                  [&](QWidget& editor) {
                      EXPECT_EQ(Box(editor, "txtNazev(0)").text(), u"Dítě");
                      EXPECT_FALSE(Box(editor, "txtNazev(1)").isVisible());
                      EXPECT_FALSE(Box(editor, "txtNazev(2)").isVisible());
                      EXPECT_EQ(Box(editor, "txtNazev(3)").text(), u"50");
                      EXPECT_TRUE(Tick(editor, "chkPairs").isChecked());
                      EXPECT_TRUE(Tick(editor, "chkPairs").isEnabled());
                      EXPECT_FALSE(Control<QLabel>(editor, "lblErr").isVisible());
                      Box(editor, "txtNazev(3)").setText(Text("75"));
                      Press(editor, "cmdOK");
                  });
        EXPECT_EQ(list.SelectedRow(), 1);
        EXPECT_EQ(list.CellText(1, 1), u"75");
    });
    const auto stored = CompetitionByID(2);
    EXPECT_EQ(stored->NazevPar1, u"otec");
    EXPECT_EQ(stored->NazevPar2, u"syn");
    EXPECT_TRUE(stored->Parova);
}

TEST_F(CompetitionsTest, WithDogsEnteredThePairsAreSettled) {
    const int pairs = AddCompetition("Páry", {{"Parova", true}});
    EnterDogs(pairs, 1);
    OpenList([&](QWidget& window, ReportList&) {
        OpenBy(window, "Edit", [&](QWidget& editor) {
            EXPECT_FALSE(Tick(editor, "chkPairs").isEnabled());
            EXPECT_TRUE(Control<QLabel>(editor, "lblErr").isVisible());
            EXPECT_EQ(Box(editor, "txtNazev(3)").text(), u"0") << "a Null price";
            Press(editor, "cmdOK");
        });
    });
    EXPECT_TRUE(CompetitionByID(pairs)->Parova);
    EXPECT_EQ(CompetitionByID(pairs)->Cena, Currency());
}

TEST_F(CompetitionsTest, OKNeedsANameBlanksWillDo) {
    OpenList([&](QWidget& window, ReportList&) {
        OpenBy(window, "Add", [&](QWidget& editor) {
            EXPECT_FALSE(IsEnabled(editor, "cmdOK"));
            Box(editor, "txtNazev(0)").setText(Text(" "));
            EXPECT_TRUE(IsEnabled(editor, "cmdOK"));
            Box(editor, "txtNazev(0)").clear();
            EXPECT_FALSE(IsEnabled(editor, "cmdOK"));
            Box(editor, "txtNazev(0)").setText(Text(" "));
            Box(editor, "txtNazev(3)").clear();
            Press(editor, "cmdOK");
        });
    });
    EXPECT_EQ(Names(), Texts{" "});
    EXPECT_FALSE(CompetitionByID(1)->Cena);
}

TEST_F(CompetitionsTest, ThePriceTakesDigitsAndAPastedTextIsRefusedByName) {
    OpenList([&](QWidget& window, ReportList&) {
        OpenBy(window, "Add", [&](QWidget& editor) {
            Box(editor, "txtNazev(0)").setText(Text("Páry"));
            QLineEdit& price = Box(editor, "txtNazev(3)");
            price.setFocus();
            price.selectAll();
            QTest::keyClicks(&price, u"1x2"_s);
            EXPECT_EQ(price.text(), u"12");
            QApplication::clipboard()->setText(Text("moc"));
            price.selectAll();
            QTest::keyClick(&price, Qt::Key_V, Qt::ControlModifier);
            platform.ExpectMessage(Text(
                "Cena za účast (Kč): Text „moc“ není částka, zapište ji například jako 1234,50."));
            Press(editor, "cmdOK");
            EXPECT_TRUE(editor.isVisible());
        });
    });
    EXPECT_TRUE(Names().empty());
}

TEST_F(CompetitionsTest, EntriesOpenForTheSelectedOneAndTheCountsAreReadAnew) {
    AddCompetition("Páry");
    const int child = AddCompetition("Dítě");
    EnterDogs(child, 2);
    OpenList([&](QWidget& window, ReportList& list) {
        list.SelectRow(1);
        OpenBy(window, "Logged", [&](QWidget& entries) {
            EXPECT_EQ(entries.objectName(), u"frmPsiVSoutezi");
            Press(entries, "cmdCancel");
        });
        EXPECT_EQ(list.CellText(1, 2), u"2");
        OpenBy(window, "Logged", [&](QWidget& entries) { Press(entries, "cmdOK"); });
        EXPECT_EQ(list.SelectedRow(), 1);
        EXPECT_EQ(list.CellText(1, 2), u"0") << "OK empties the competition";
    });
}

TEST_F(CompetitionsTest, EscapeCloses) {
    OpenList([&](QWidget& window, ReportList& list) {
        QTest::keyClick(&list, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
}

} // namespace
} // namespace lorvo::test
