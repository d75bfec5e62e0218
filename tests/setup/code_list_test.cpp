// The lists edited in place: colours, awards, classes; and the name of a ring.

#include "setup/fm_Colors.h"
#include "setup/fm_classes.h"
#include "setup/frmNazevKruhu.h"
#include "setup/frmOceneni.h"
#include "setup/setup_fixture.h"

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class CodeListTest : public SetupTest {
  protected:
    void OpenColours(const std::function<void(QWidget&, ReportList&)>& inside) {
        Open<fm_Colors>([&](QWidget& window) { inside(window, List(window, "lvwColors")); });
    }
    void OpenAwards(const std::function<void(QWidget&, ReportList&)>& inside) {
        Open<frmOceneni>([&](QWidget& window) { inside(window, List(window, "lvwOceneni")); });
    }
    void OpenClasses(const std::function<void(QWidget&, ReportList&)>& inside) {
        Open<fm_classes>([&](QWidget& window) { inside(window, List(window, "lvwClasses")); });
    }
    static int AddColour(const char* name) { return Add("Barvy", {{"Nazev", Text(name)}}); }
    static int AddAward(const char* name) { return Add("Oceneni", {{"Nazev", Text(name)}}); }
    static Texts ColourNames() { return Column("SELECT Nazev FROM Barvy"); }
    static Texts AwardNames() { return Column("SELECT Nazev FROM Oceneni"); }
    static void Leave(QWidget& view) {
        QTest::keyClick(EditorOf(view), Qt::Key_Return);
        QCoreApplication::processEvents();
    }
};

TEST_F(CodeListTest, ColoursStandAsStoredWithTheirUses) {
    const int brown = AddColour("hnědá");
    AddColour("bílá");
    AddDog("Rex", 1, {{"BarvaID", brown}});
    AddDog("Bob", 1, {{"BarvaID", brown}});
    OpenColours([&](QWidget& window, ReportList& list) {
        EXPECT_EQ(window.windowTitle(), u"Barvy");
        EXPECT_EQ(RowsOf(list), (Texts{"hnědá|2", "bílá|0"}));
        EXPECT_EQ(list.model()->headerData(0, Qt::Horizontal), u"Barva"_s);
        EXPECT_EQ(list.model()->headerData(1, Qt::Horizontal), u"Použita"_s);
        list.SelectRow(0);
        platform.ExpectMessage(Text("Tuto barvu není možno smazat, protože je použita (2x)"),
                               MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok,
                               Text("Barvy"));
        Command(window, "Remove");
    });
    EXPECT_EQ(ColourNames().size(), 2u);
}

// kept: untouched-edit-commits
TEST_F(CodeListTest, EnterAloneStoresANewColourOnce) {
    OpenColours([&](QWidget& window, ReportList& list) {
        Command(window, "Add");
        EXPECT_EQ(list.Row(0).key, u"Cnew");
        EXPECT_TRUE(ColourNames().empty()) << "not before the edit has ended";
        Leave(list);
        EXPECT_EQ(list.Row(0).key, u"C1");
        EXPECT_EQ(RowsOf(list), Texts{"Nová barva|"});
        Command(window, "Add");
        platform.ExpectMessage(Text("Barva s tímto názvem již existuje!"), MessageAnswer::Ok,
                               MessageIcon::Stop, MessageButtons::Ok, Text("Barvy"));
        Leave(list);
        EXPECT_EQ(RowsOf(list), Texts{"Nová barva|"});
    });
    EXPECT_EQ(ColourNames(), Texts{"Nová barva"});
}

TEST_F(CodeListTest, ANameInUseShowsButIsNotStored) {
    AddColour("hnědá");
    AddColour("bílá");
    OpenColours([&](QWidget& window, ReportList& list) {
        platform.ExpectMessage(Text("Barva s tímto názvem již existuje!"));
        Rename(list, 1, "HNĚDÁ");
        EXPECT_EQ(RowsOf(list), (Texts{"hnědá|0", "HNĚDÁ|0"}));
        list.SelectRow(0);
        Command(window, "Edit");
        platform.ExpectMessage(Text("Barva s tímto názvem již existuje!"));
        Leave(list);
        Rename(list, 0, "d'or");
    });
    EXPECT_EQ(ColourNames(), (Texts{"d'or", "bílá"}));
    OpenColours([&](QWidget&, ReportList& list) {
        EXPECT_EQ(RowsOf(list), (Texts{"d'or|0", "bílá|0"}));
    });
}

TEST_F(CodeListTest, AnEmptyNameStaysInTheListAlone) {
    AddColour("hnědá");
    OpenColours([&](QWidget& window, ReportList& list) {
        platform.ExpectMessage(Text("Název musí být zadán!"));
        Rename(list, 0, "");
        EXPECT_EQ(RowsOf(list), Texts{"|0"});
        Command(window, "Add");
        platform.ExpectMessage(Text("Název musí být zadán!"));
        TypeInPlace(list, {});
        EXPECT_EQ(list.Row(1).key, u"Cnew");
        list.SelectRow(1);
        Command(window, "Edit");
        TypeInPlace(list, Text("bílá"));
        EXPECT_EQ(list.Row(1).key, u"C2");
    });
    EXPECT_EQ(ColourNames(), (Texts{"hnědá", "bílá"}));
}

TEST_F(CodeListTest, ARowLeftUnstoredCannotBeDeleted) {
    const auto deleteUnstored = [&] {
        OpenColours([&](QWidget& window, ReportList& list) {
            Command(window, "Add");
            platform.ExpectMessage(Text("Název musí být zadán!"));
            TypeInPlace(list, {});
            QTest::keyClick(&list, Qt::Key_Delete);
        });
    };
    EXPECT_THROW(deleteUnstored(), StoreError);
}

TEST_F(CodeListTest, OnlyYesDeletesAColour) {
    AddColour("hnědá");
    OpenColours([&](QWidget& window, ReportList& list) {
        Command(window, "Remove");
        Command(window, "Edit");
        EXPECT_FALSE(EditorOf(list)) << "nothing is selected";
        list.SelectRow(0);
        platform.ExpectMessage(Text("Skutečně smazat barvu?"), MessageAnswer::No,
                               MessageIcon::Question, MessageButtons::YesNoCancel, Text("Barvy"));
        Command(window, "Remove");
        platform.ExpectMessage(Text("Skutečně smazat barvu?"), MessageAnswer::Yes);
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_EQ(list.RowCount(), 0);
        QTest::keyClick(&list, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_TRUE(ColourNames().empty());
}

// kept: awards-among-colours
TEST_F(CodeListTest, AwardsLookForTheirNamesAmongTheColours) {
    AddColour("Zlatá");
    AddAward("CAC");
    OpenAwards([&](QWidget& window, ReportList& list) {
        EXPECT_EQ(window.windowTitle(), u"Ocenění ve výstavních třídách");
        EXPECT_EQ(list.model()->headerData(0, Qt::Horizontal), u"Barva"_s);
        EXPECT_EQ(list.model()->headerData(1, Qt::Horizontal), u"Použito"_s);
        Command(window, "Add");
        EXPECT_EQ(EditorOf(list)->text(), u"Nové ocenění");
        TypeInPlace(list, Text("CAC"));
        Command(window, "Add");
        platform.ExpectMessage(Text("Ocenění s tímto názvem již existuje!"), MessageAnswer::Ok,
                               MessageIcon::Stop);
        TypeInPlace(list, Text("zlatá"));
        EXPECT_EQ(RowsOf(list), (Texts{"CAC|0", "CAC|"}));
    });
    EXPECT_EQ(AwardNames(), (Texts{"CAC", "CAC"}));
}

// kept: deleted-award-comes-back
TEST_F(CodeListTest, ADeletedAwardIsBackAtTheNextOpening) {
    const int award = AddAward("CAC");
    OpenAwards([&](QWidget&, ReportList& list) {
        list.SelectRow(0);
        platform.ExpectMessage(Text("Skutečně smazat ocenění?"), MessageAnswer::Yes,
                               MessageIcon::Question, MessageButtons::YesNoCancel);
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_EQ(list.RowCount(), 0);
    });
    AddLink("PsiOceneni", {{"IDPsa", 1}, {"IDOceneni", award}});
    OpenAwards([&](QWidget& window, ReportList& list) {
        EXPECT_EQ(RowsOf(list), Texts{"CAC|1"});
        list.SelectRow(0);
        platform.ExpectMessage(Text("Toto ocenění není možno smazat, protože je použito (1x)"));
        Command(window, "Remove");
    });
    EXPECT_EQ(AwardNames(), Texts{"CAC"});
}

TEST_F(CodeListTest, ClassesShowEightNamesAndTwoFreePlaces) {
    Module().BreedsDirty = true;
    AddDog("Rex", 1, {{"Trida", 5}});
    OpenClasses([&](QWidget& window, ReportList& list) {
        EXPECT_EQ(window.windowTitle(), u"Třídy");
        EXPECT_FALSE(Module().BreedsDirty);
        ASSERT_EQ(list.RowCount(), 10);
        EXPECT_EQ(list.CellText(0, 0), Module().ClassNames[0]);
        EXPECT_EQ(list.CellText(4, 1), u"1");
        EXPECT_EQ(list.CellText(7, 1), u"0");
        for (const int free : {8, 9}) {
            EXPECT_EQ(list.CellText(free, 0), u"-nepoužito-");
            EXPECT_EQ(list.CellText(free, 1), u"");
            EXPECT_EQ(list.Row(free).key, u"C%1"_s.arg(free + 1));
        }
    });
}

// kept: dead-toolbar-of-classes
TEST_F(CodeListTest, AClassIsRenamedForTheRunAlone) {
    OpenClasses([&](QWidget& window, ReportList& list) {
        for (const char* button : {"Add", "Edit", "Remove"}) {
            list.SelectRow(0);
            Command(window, button);
            EXPECT_FALSE(EditorOf(list)) << button;
        }
        EXPECT_EQ(list.RowCount(), 10);
        platform.ExpectMessage(Text("Název musí být zadán!"));
        Rename(list, 0, "");
        EXPECT_EQ(list.CellText(0, 0), Module().ClassNames[0]);
        EXPECT_FALSE(Module().BreedsDirty);
        Rename(list, 8, "čestná");
    });
    EXPECT_EQ(Module().ClassNames[8], u"čestná");
    EXPECT_TRUE(Module().BreedsDirty);
    EXPECT_EQ(platform.settings.count(Text("Sys\\ClassNames")), 0u);
}

class RingNameTest : public SetupTest {
  protected:
    RingNameTest() : ring(Add("Kruhy", {{"Nazev", Text("Kruh A")}})) {
        tree.AddNode(Key(), Text("Kruh A"));
        tree.selected = Key();
    }
    QString Key() const { return u"K%1"_s.arg(ring); }

    int ring;
};

TEST_F(RingNameTest, StoresTheNameAsTypedAndShowsItInTheTree) {
    Open<frmNazevKruhu>([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Název kruhu");
        EXPECT_EQ(Box(window, "txtName").text(), u"Kruh A");
        Box(window, "txtName").clear();
        EXPECT_FALSE(IsEnabled(window, "cmdOK"));
        Box(window, "txtName").setText(Text(" Kruh 'B' "));
        QTest::keyClick(&Box(window, "txtName"), Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(One("SELECT Nazev FROM Kruhy"), " Kruh 'B' ");
    EXPECT_EQ(tree.NodeText(Key()), u" Kruh 'B' ");
}

TEST_F(RingNameTest, StornoWritesNothing) {
    Open<frmNazevKruhu>([&](QWidget& window) {
        Box(window, "txtName").setText(Text("Jiný"));
        Press(window, "cmdCancel");
    });
    EXPECT_EQ(One("SELECT Nazev FROM Kruhy"), "Kruh A");
    EXPECT_EQ(tree.NodeText(Key()), u"Kruh A");
}

} // namespace
} // namespace lorvo::test
