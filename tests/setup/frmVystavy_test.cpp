#include "setup/frmVystavy.h"
#include "setup/setup_fixture.h"
#include "store/vystavy.h"

namespace lorvo::test {
namespace {

class ShowListTest : public SetupTest {
  protected:
    void OpenList(const std::function<void(QWidget&, ReportList&)>& inside) {
        Open<frmVystavy>([&](QWidget& window) { inside(window, List(window, "lvwList")); });
    }
};

TEST_F(ShowListTest, ListsShowsAsStoredWithTheirDogs) {
    const int spring = AddShow("Jarní");
    AddShow("Alpská");
    Enter(1, spring);
    Enter(2, spring);
    OpenList([&](QWidget& window, ReportList& list) {
        EXPECT_EQ(window.windowTitle(), u"Výstavy");
        EXPECT_EQ(RowsOf(list), (Texts{"Jarní|2", "Alpská|0"}));
        EXPECT_EQ(list.Row(0).key, u"V1");
        EXPECT_EQ(list.Row(0).tag, u"1");
    });
}

TEST_F(ShowListTest, AnAddedShowIsStoredAtOnceAndItsNameEditedInPlace) {
    OpenList([&](QWidget& window, ReportList& list) {
        Command(window, "VYSTAVY:ADD");
        EXPECT_EQ(RowsOf(list), Texts{"Nová výstava|"});
        EXPECT_EQ(list.Row(0).key, u"C1");
        EXPECT_EQ(list.SelectedRow(), 0);
        EXPECT_EQ(One("SELECT Nazev FROM Vystavy"), "Nová výstava");
        TypeInPlace(list, Text("Krajská 'A'"));
        EXPECT_EQ(RowsOf(list), Texts{"Krajská 'A'|"});
    });
    EXPECT_EQ(One("SELECT Nazev FROM Vystavy"), "Krajská 'A'");
    EXPECT_TRUE(IsNull("SELECT PoplatkyIClass1D1 FROM Vystavy"));
}

TEST_F(ShowListTest, TwoShowsMayBearTheNewNameButNotByRenaming) {
    OpenList([&](QWidget& window, ReportList& list) {
        for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
            Command(window, "VYSTAVY:ADD");
            QTest::keyClick(EditorOf(list), key);
            QCoreApplication::processEvents();
        }
        EXPECT_EQ(RowsOf(list), (Texts{"Nová výstava|", "Nová výstava|"}));
        platform.ExpectMessage(Text("Výstava s tímto názvem již existuje!"), MessageAnswer::Ok,
                               MessageIcon::Stop, MessageButtons::Ok, Text("Výstavy"));
        Rename(list, 1, "nová výstava");
        EXPECT_TRUE(EditorOf(list)) << "the edit goes on";
        TypeInPlace(list, Text("Druhá"));
        EXPECT_EQ(RowsOf(list), (Texts{"Nová výstava|", "Druhá|"}));
    });
    EXPECT_EQ(Column("SELECT Nazev FROM Vystavy"), (Texts{"Nová výstava", "Druhá"}));
}

// kept: same-name-in-other-capitals
TEST_F(ShowListTest, OtherCapitalsOfItsOwnNameAreRefused) {
    AddShow("Krajská");
    OpenList([&](QWidget&, ReportList& list) {
        platform.ExpectMessage(Text("Výstava s tímto názvem již existuje!"));
        Rename(list, 0, "KRAJSKÁ");
        QTest::keyClick(EditorOf(list), Qt::Key_Escape);
        QCoreApplication::processEvents();
        EXPECT_EQ(RowsOf(list), Texts{"Krajská|0"});
    });
    EXPECT_EQ(One("SELECT Nazev FROM Vystavy"), "Krajská");
}

TEST_F(ShowListTest, AnEmptyNameIsRefusedAndTheOldOneStays) {
    AddShow("Krajská");
    OpenList([&](QWidget&, ReportList& list) {
        platform.ExpectMessage(Text("Název musí být zadán!"), MessageAnswer::Ok, MessageIcon::Stop);
        Rename(list, 0, "");
        EXPECT_FALSE(EditorOf(list));
        EXPECT_EQ(RowsOf(list), Texts{"Krajská|0"});
    });
    EXPECT_EQ(One("SELECT Nazev FROM Vystavy"), "Krajská");
}

// kept: psu-for-every-number
TEST_F(ShowListTest, AShowWithDogsCannotBeDeletedEvenWhenItIsTheLast) {
    const int show = AddShow("Krajská");
    Enter(1, show);
    OpenList([&](QWidget& window, ReportList& list) {
        list.SelectRow(0);
        platform.ExpectMessage(
            Text("Tuto výstavu není možno smazat, protože je v ní přihlášeno 1 psů."),
            MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok, Text("Výstavy"));
        Command(window, "VYSTAVY:DELETE");
    });
    EXPECT_EQ(CountShows(), 1);
}

TEST_F(ShowListTest, TheLastShowStays) {
    AddShow("Krajská");
    OpenList([&](QWidget&, ReportList& list) {
        list.SelectRow(0);
        platform.ExpectMessage(
            Text("Tuto výstavu není možno smazat. Alespoň jedna výstava musí zůstat"));
        QTest::keyClick(&list, Qt::Key_Delete);
    });
    EXPECT_EQ(CountShows(), 1);
}

TEST_F(ShowListTest, OnlyYesDeletes) {
    AddShow("Hlavní");
    AddShow("Krajská");
    OpenList([&](QWidget& window, ReportList& list) {
        for (const auto answer : {MessageAnswer::No, MessageAnswer::Cancel}) {
            list.SelectRow(1);
            platform.ExpectMessage(Text("Skutečně smazat?"), answer, MessageIcon::Question,
                                   MessageButtons::YesNoCancel, Text("Výstavy"));
            Command(window, "VYSTAVY:DELETE");
        }
        EXPECT_EQ(CountShows(), 2);
        platform.ExpectMessage(Text("Skutečně smazat?"), MessageAnswer::Yes);
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_EQ(RowsOf(list), Texts{"Hlavní|0"});
    });
    EXPECT_EQ(One("SELECT Nazev FROM Vystavy"), "Hlavní");
}

TEST_F(ShowListTest, AShowJustAddedCanBeDeleted) {
    AddShow("Hlavní");
    OpenList([&](QWidget& window, ReportList& list) {
        Command(window, "VYSTAVY:ADD");
        TypeInPlace(list, Text("Omyl"));
        platform.ExpectMessage(Text("Skutečně smazat?"), MessageAnswer::Yes);
        QTest::keyClick(&list, Qt::Key_Delete);
    });
    EXPECT_EQ(One("SELECT Nazev FROM Vystavy"), "Hlavní");
}

TEST_F(ShowListTest, WithoutASelectionNothingHappens) {
    AddShow("Hlavní");
    OpenList([&](QWidget& window, ReportList& list) {
        list.selectionModel()->clear();
        Command(window, "VYSTAVY:EDIT");
        Command(window, "VYSTAVY:DELETE");
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_TRUE(platform.messages.empty());
    });
}

TEST_F(ShowListTest, ADoubleClickOpensTheEditorAndItsNameComesBackIntoTheRow) {
    AddShow("Hlavní");
    AddShow("Krajská");
    OpenList([&](QWidget&, ReportList& list) {
        WhileOpen([&] { DoubleClick(list, 1); },
                  [&](QWidget& editor) {
                      EXPECT_EQ(editor.objectName(), u"frmVystava");
                      Box(editor, "txtName").setText(Text("  Oblastní "));
                      Press(editor, "cmdOK");
                  });
        EXPECT_EQ(RowsOf(list), (Texts{"Hlavní|0", "Oblastní|0"}));
    });
}

TEST_F(ShowListTest, TheButtonAndEscapeClose) {
    OpenList([&](QWidget& window, ReportList&) {
        EXPECT_EQ(Control<QPushButton>(window, "cmdOK").text(), u"Zavřít");
        Press(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    });
    OpenList([&](QWidget& window, ReportList& list) {
        QTest::keyClick(&list, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
}

} // namespace
} // namespace lorvo::test
