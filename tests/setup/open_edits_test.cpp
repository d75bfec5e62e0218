// An edit in place that is left open ends before anything else acts: real keys and clicks, window
// by window.

#include "setup/breed_tree.h"
#include "setup/fm_Colors.h"
#include "setup/fm_Plemena.h"
#include "setup/fm_Souteze.h"
#include "setup/fm_classes.h"
#include "setup/frmOceneni.h"
#include "setup/frmVystavy.h"
#include "setup/setup_fixture.h"

#include <QToolButton>
#include <algorithm>

namespace lorvo::test {
namespace {

class OpenEditsTest : public SetupTest {
  protected:
    /// A click on a button of the window's bar, as the mouse makes it.
    static void ClickTool(QWidget& window, const char* key) {
        const QList<QToolButton*> buttons = window.findChildren<QToolButton*>();
        const auto button = std::ranges::find_if(buttons, [key](const QToolButton* each) {
            return each->defaultAction() && each->defaultAction()->objectName() == Text(key);
        });
        ASSERT_NE(button, buttons.end()) << "no button " << key;
        QTest::mouseClick(*button, Qt::LeftButton);
        Settle();
    }
    static void ClickRow(QTreeView& list, int row) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(row, 0)).center());
        Settle();
    }
    /// Types into the edit that goes on and leaves it open.
    static void TypeOnly(const QWidget& view, const char* text) {
        QLineEdit* editor = EditorOf(view);
        ASSERT_TRUE(editor) << "no edit in place";
        editor->selectAll();
        for (const QChar letter : Text(text))
            QTest::sendKeyEvent(QTest::Click, editor, Qt::Key_unknown, QString(letter), {});
    }
    static void StartRename(QTreeView& list, int row, const char* text) {
        list.setCurrentIndex(list.model()->index(row, 0));
        QTest::keyClick(&list, Qt::Key_F2);
        TypeOnly(list, text);
    }
    static void Escape(const QWidget& view) {
        QTest::keyClick(EditorOf(view), Qt::Key_Escape);
        Settle();
    }
    static Texts Names(const char* table) {
        return Column(std::string("SELECT Nazev FROM ") + table);
    }
    /// `Window` is a code list of that table: what is typed into a new row is stored before the
    /// deletion looks for it.
    template<class Window>
    void AddTypeDelete(const char* list, const char* table, const char* question) {
        Open<Window>([&](QWidget& window) {
            ClickTool(window, "Add");
            TypeOnly(List(window, list), "Nej");
            platform.ExpectMessage(Text(question), MessageAnswer::No);
            ClickTool(window, "Remove");
            EXPECT_EQ(RowsOf(List(window, list)), Texts{"Nej|"});
        });
        EXPECT_EQ(Names(table), Texts{"Nej"});
    }
    template<class Window> void AddEscapeDelete(const char* list, const char* table) {
        Open<Window>([&](QWidget& window) {
            ClickTool(window, "Add");
            TypeOnly(List(window, list), "Nej");
            Escape(List(window, list));
            EXPECT_EQ(List(window, list).RowCount(), 0) << "the row is given up";
            ClickTool(window, "Remove");
            QTest::keyClick(&List(window, list), Qt::Key_Delete);
        });
        EXPECT_TRUE(Names(table).empty());
    }
};

TEST_F(OpenEditsTest, ACodeListStoresTheNewRowBeforeItIsDeleted) {
    AddTypeDelete<frmOceneni>("lvwOceneni", "Oceneni", "Skutečně smazat ocenění?");
    AddTypeDelete<fm_Colors>("lvwColors", "Barvy", "Skutečně smazat barvu?");
}

TEST_F(OpenEditsTest, EscTakesANewRowOfACodeListAway) {
    AddEscapeDelete<frmOceneni>("lvwOceneni", "Oceneni");
    AddEscapeDelete<fm_Colors>("lvwColors", "Barvy");
}

TEST_F(OpenEditsTest, EscLeavesAStoredRowOfACodeListAlone) {
    Add("Barvy", {{"Nazev", Text("hnědá")}});
    Open<fm_Colors>([&](QWidget& window) {
        StartRename(List(window, "lvwColors"), 0, "bílá");
        Escape(List(window, "lvwColors"));
        EXPECT_EQ(RowsOf(List(window, "lvwColors")), Texts{"hnědá|0"});
    });
    EXPECT_EQ(Names("Barvy"), Texts{"hnědá"});
}

TEST_F(OpenEditsTest, AnotherNewRowBeginsAfterTheFirstIsStored) {
    Open<frmOceneni>([&](QWidget& window) {
        ReportList& list = List(window, "lvwOceneni");
        ClickTool(window, "Add");
        TypeOnly(list, "CAC");
        ClickTool(window, "Add");
        TypeOnly(list, "CACIB");
        ClickTool(window, "Edit");
        EXPECT_EQ(RowsOf(list), (Texts{"CAC|", "CACIB|"}));
    });
    EXPECT_EQ(Names("Oceneni"), (Texts{"CAC", "CACIB"}));
}

TEST_F(OpenEditsTest, TheEditorOfACompetitionShowsTheNameJustTyped) {
    Add("Souteze", {{"Nazev", Text("Páry")}});
    Open<fm_Souteze>([&](QWidget& window) {
        StartRename(List(window, "lvwSouteze"), 0, "Smečky");
        WhileOpen([&] { ClickTool(window, "Edit"); },
                  [&](QWidget& editor) {
                      EXPECT_EQ(Box(editor, "txtNazev(0)").text(), u"Smečky");
                      Press(editor, "cmdOK");
                  });
    });
    EXPECT_EQ(Names("Souteze"), Texts{"Smečky"});
}

TEST_F(OpenEditsTest, ACompetitionsQuestionNamesTheNameJustTyped) {
    Add("Souteze", {{"Nazev", Text("Páry")}});
    Open<fm_Souteze>([&](QWidget& window) {
        StartRename(List(window, "lvwSouteze"), 0, "Smečky");
        platform.ExpectMessage(Text("Určitě chcete odstranit soutěž Smečky?"), MessageAnswer::Yes);
        ClickTool(window, "Remove");
    });
    EXPECT_TRUE(Names("Souteze").empty());
}

TEST_F(OpenEditsTest, TheEditorOfAShowShowsTheNameJustTyped) {
    Open<frmVystavy>([&](QWidget& window) {
        ClickTool(window, "VYSTAVY:ADD");
        TypeOnly(List(window, "lvwList"), "Krajská");
        WhileOpen([&] { ClickTool(window, "VYSTAVY:EDIT"); },
                  [&](QWidget& editor) {
                      EXPECT_EQ(Box(editor, "txtName").text(), u"Krajská");
                      Box(editor, "txtPrice1(0)").setText(Text("300"));
                      Press(editor, "cmdOK");
                  });
        EXPECT_EQ(RowsOf(List(window, "lvwList")), Texts{"Krajská|"});
    });
    EXPECT_EQ(Names("Vystavy"), Texts{"Krajská"});
}

TEST_F(OpenEditsTest, ARefusedNameKeepsTheCommandFromActing) {
    AddShow("Hlavní");
    AddShow("Krajská");
    Open<frmVystavy>([&](QWidget& window) {
        ReportList& list = List(window, "lvwList");
        StartRename(list, 1, "hlavní");
        platform.ExpectMessage(Text("Výstava s tímto názvem již existuje!"));
        ClickTool(window, "VYSTAVY:EDIT");
        EXPECT_TRUE(EditorOf(list)) << "the edit goes on";
        EXPECT_EQ(list.SelectedRow(), 1);
        Escape(list);
    });
    EXPECT_EQ(Names("Vystavy"), (Texts{"Hlavní", "Krajská"}));
}

TEST_F(OpenEditsTest, AShowsNameThatExistsGoesOnBeingEditedHoweverItIsLeft) {
    AddShow("Hlavní");
    AddShow("Krajská");
    const auto leave = [&](const std::function<void(ReportList&)>& how) {
        Open<frmVystavy>([&](QWidget& window) {
            ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
            ReportList& list = List(window, "lvwList");
            StartRename(list, 1, "hlavní");
            platform.ExpectMessage(Text("Výstava s tímto názvem již existuje!"));
            how(list);
            Settle();
            EXPECT_EQ(list.SelectedRow(), 1);
            ASSERT_TRUE(EditorOf(list)) << "the edit goes on";
            EXPECT_EQ(EditorOf(list)->text(), u"Krajská");
            Escape(list);
        });
    };
    leave([](ReportList& list) { QTest::keyClick(EditorOf(list), Qt::Key_Return); });
    leave([](ReportList& list) { QTest::keyClick(EditorOf(list), Qt::Key_Tab); });
    leave([](ReportList& list) { ClickRow(list, 0); });
    leave([](ReportList& list) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.viewport()->rect().bottomLeft() + QPoint(5, -5));
        Settle();
    });
    EXPECT_EQ(Names("Vystavy"), (Texts{"Hlavní", "Krajská"}));
}

TEST_F(OpenEditsTest, ANewClassNameStandsWhateverButtonIsClicked) {
    Open<fm_classes>([&](QWidget& window) {
        StartRename(List(window, "lvwClasses"), 8, "čestná");
        ClickTool(window, "Add");
        EXPECT_EQ(Module().ClassNames[8], u"čestná");
    });
}

class OpenBreedEditsTest : public OpenEditsTest {
  protected:
    OpenBreedEditsTest() {
        AddBreed("Pudl", {{"Vlastni", true}, {"NazevOrig", Text("")}});
        AddBreed("Vipet", {{"Vlastni", true}, {"NazevOrig", Text("")}});
    }
    static BreedTree& Tree(QWidget& window) { return Control<BreedTree>(window, "tvwPlemena"); }
};

TEST_F(OpenBreedEditsTest, TheNamingOfABreedShowsTheNameJustTyped) {
    Open<fm_Plemena>([&](QWidget& window) {
        StartRename(Tree(window), 0, "Pudl malý");
        WhileOpen([&] { ClickTool(window, "PLEMENA:EDIT"); },
                  [&](QWidget& naming) {
                      EXPECT_EQ(Box(naming, "txtPlemenoName").text(), u"Pudl malý");
                      Press(naming, "cmdOK");
                  });
    });
    EXPECT_EQ(Names("Plemena"), (Texts{"Pudl malý", "Vipet"}));
}

TEST_F(OpenBreedEditsTest, ASubgroupIsAddedAfterTheNameIsStored) {
    Open<fm_Plemena>([&](QWidget& window) {
        StartRename(Tree(window), 0, "Pudl malý");
        WhileOpen([&] { ClickTool(window, "PLEMENA:ADD"); },
                  [&](QWidget& naming) { Press(naming, "cmdCancel"); });
    });
    EXPECT_EQ(Names("Plemena"), (Texts{"Pudl malý", "Vipet", "Nové plemeno"}));
}

TEST_F(OpenBreedEditsTest, ClosingTheWindowStoresTheNameJustTyped) {
    Open<fm_Plemena>([&](QWidget& window) {
        StartRename(Tree(window), 0, "Pudl malý");
        window.close();
    });
    EXPECT_EQ(Names("Plemena"), (Texts{"Pudl malý", "Vipet"}));
    EXPECT_TRUE(Module().BreedsDirty);
}

TEST_F(OpenBreedEditsTest, AClickOnAnotherBreedStoresTheNameOnTheOneEdited) {
    Open<fm_Plemena>([&](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        StartRename(Tree(window), 0, "Pudl malý");
        ClickRow(Tree(window), 1);
        EXPECT_EQ(Tree(window).SelectedNode()->ID, 2);
    });
    EXPECT_EQ(Names("Plemena"), (Texts{"Pudl malý", "Vipet"}));
}

} // namespace
} // namespace lorvo::test
