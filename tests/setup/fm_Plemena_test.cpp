#include "setup/fm_Plemena.h"

#include "setup/breed_register.h"
#include "setup/breed_tree.h"
#include "setup/setup_fixture.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QStatusBar>
#include <QTimer>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class BreedRegisterTest : public SetupTest {
  protected:
    void OpenRegister(const std::function<void(QWidget&)>& inside) {
        Open<fm_Plemena>([&](QWidget& window) {
            tree_ = &Control<BreedTree>(window, "tvwPlemena");
            inside(window);
            result = ResultOf(window);
        });
    }
    static const RegisterResult& ResultOf(const QWidget& window) {
        return static_cast<const fm_Plemena&>(window).Result();
    }
    static int OwnBreed(const char* name, int parent, Assignments more = {}) {
        more.insert(more.end(), {{"Parent", parent}, {"Vlastni", true}});
        return AddBreed(name, more);
    }
    BreedTree& Tree() { return *tree_; }
    BreedNode& Node(int ID) {
        BreedNode* node = Tree().Model().Find(ID);
        if (!node)
            throw std::runtime_error("no node " + std::to_string(ID));
        return *node;
    }
    void Select(int ID) { Tree().SelectNode(Node(ID)); }
    void Key(Qt::Key key) { QTest::keyClick(&Tree(), key); }
    /// Ticks or unticks by the keyboard.
    void ToggleTick(int ID) {
        Select(ID);
        Key(Qt::Key_Space);
    }
    int Selected() { return Tree().SelectedNode() ? Tree().SelectedNode()->ID : 0; }
    std::string Cells(int ID) {
        QStringList cells;
        for (const QString& cell : Node(ID).cells)
            cells << cell;
        return cells.join(u'|').toStdString();
    }
    QVariant Data(int ID, int role) { return Tree().Model().IndexOf(Node(ID)).data(role); }
    void RenameInPlace(int ID, const char* text) {
        Select(ID);
        Key(Qt::Key_F2);
        TypeInPlace(Tree(), Text(text));
    }
    void RightClick(int ID) {
        Select(ID);
        QTest::mouseClick(Tree().viewport(), Qt::RightButton, {},
                          Tree().visualRect(Tree().Model().IndexOf(Node(ID))).center());
    }
    std::string Status(QWidget& window) {
        return Control<QLabel>(window, "sbPlemena(1)").text().toStdString();
    }
    std::string Field(const char* field, int ID) {
        return One(std::string("SELECT ") + field +
                   " FROM Plemena WHERE ID = " + std::to_string(ID));
    }

    RegisterResult result; ///< of the visit that has ended last

  private:
    BreedTree* tree_ = nullptr;
};

TEST_F(BreedRegisterTest, ShowsBreedsWithTheirSubgroupsByName) {
    const int ring = Add("Kruhy", {{"Nazev", Text("Kruh A")}});
    const int vipet = AddBreed("Vipet ", {{"FCI", 10}, {"ID_Kruhu", ring}, {"Pouzivat", true}});
    const int pudl = AddBreed("Pudl", {{"ID_Kruhu", 99}, {"Pouzivat", Value()}});
    const int brown = OwnBreed("Pudl hnědý", pudl, {{"FCI", 9}});
    AddDog("Rex", vipet);
    AddDog("Bob", vipet);
    OpenRegister([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Seznam plemen");
        EXPECT_EQ(Cells(vipet), "Vipet (Orig)|Kruh A|10|2|Ano|Ne");
        EXPECT_EQ(Cells(pudl), "Pudl (Orig)||-nezařazeno-|0|Ne|Ne") << "a ring that is gone";
        EXPECT_EQ(Cells(brown), "Pudl hnědý (Orig)|-nezařazeno-|9|0|Ne|Ano");
        EXPECT_EQ(Tree().Model().InOrder(),
                  (std::vector<BreedNode*>{&Node(pudl), &Node(brown), &Node(vipet)}));
        EXPECT_EQ(Data(vipet, Qt::UserRole), u"C1"_s);
        EXPECT_EQ(Data(vipet, Qt::CheckStateRole), Qt::Checked);
        EXPECT_EQ(Data(pudl, Qt::CheckStateRole), Qt::Unchecked);
        EXPECT_EQ(Data(vipet, Qt::BackgroundRole).value<QColor>(), QColor(224, 255, 255));
        EXPECT_EQ(Data(pudl, Qt::BackgroundRole).value<QColor>(), QColor(255, 255, 255));
        EXPECT_EQ(Data(brown, Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 255));
        EXPECT_EQ(Data(pudl, Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 0));
        EXPECT_EQ(Data(brown, Qt::AccessibleTextRole), u"Pudl hnědý (Orig), vlastní"_s);
        EXPECT_EQ(Data(pudl, Qt::AccessibleTextRole), u"Pudl (Orig)"_s);
        EXPECT_EQ(Status(window), "Celkem 3 plemena, z toho 1 použito.");
    });
}

TEST(RegisterStatus, TakesTheWordFromTheWholeNumber) {
    EXPECT_EQ(RegisterStatus(0, 0), u"Celkem 0 plemen, z toho 0 použito.");
    EXPECT_EQ(RegisterStatus(1, 1), u"Celkem 1 plemeno, z toho 1 použito.");
    EXPECT_EQ(RegisterStatus(2, 1), u"Celkem 2 plemena, z toho 1 použito.");
    EXPECT_EQ(RegisterStatus(4, 0), u"Celkem 4 plemena, z toho 0 použito.");
    EXPECT_EQ(RegisterStatus(5, 0), u"Celkem 5 plemen, z toho 0 použito.");
    EXPECT_EQ(RegisterStatus(21, 2), u"Celkem 21 plemen, z toho 2 použito.");
}

TEST_F(BreedRegisterTest, AVisitWithoutADeedLeavesTheTreeAsItIs) {
    Module().BreedsDirty = true;
    OpenRegister([](QWidget&) {});
    EXPECT_FALSE(Module().BreedsDirty);
    EXPECT_FALSE(result.changed);
    EXPECT_EQ(result.jumpTo, 0);
}

TEST_F(BreedRegisterTest, ATickPutsTheBreedToUseAndUntickingKeepsItsRing) {
    const int breed = AddBreed("Pudl", {{"ID_Kruhu", 7}});
    OpenRegister([&](QWidget& window) {
        ToggleTick(breed);
        EXPECT_EQ(Field("Pouzivat", breed), "-1");
        EXPECT_EQ(Node(breed).cells[kBreedUsed], u"Ano");
        EXPECT_TRUE(Node(breed).inUse);
        EXPECT_EQ(Status(window), "Celkem 1 plemeno, z toho 1 použito.");
        EXPECT_TRUE(Module().BreedsDirty);
        EXPECT_TRUE(ResultOf(window).changed);
        ToggleTick(breed);
        EXPECT_EQ(Field("Pouzivat", breed), "0");
        EXPECT_EQ(Field("ID_Kruhu", breed), "7");
        EXPECT_EQ(Node(breed).cells[kBreedUsed], u"Ne");
        EXPECT_FALSE(Node(breed).inUse);
    });
}

TEST_F(BreedRegisterTest, ABreedWithDogsKeepsItsTick) {
    const int breed = AddBreed("Pudl", {{"Pouzivat", true}});
    for (int dog = 0; dog < 3; ++dog)
        AddDog("Rex", breed);
    OpenRegister([&](QWidget&) {
        platform.ExpectMessage(Text("Plemeno nelze skrýt, je použito v 3 případech."),
                               MessageAnswer::Ok, MessageIcon::Information, MessageButtons::Ok,
                               Text("Seznam plemen"),
                               [&] { EXPECT_TRUE(Node(breed).checked) << "ticked already"; });
        ToggleTick(breed);
        EXPECT_TRUE(Node(breed).checked);
    });
    EXPECT_EQ(Field("Pouzivat", breed), "-1");
    EXPECT_TRUE(result.changed) << "even for a refused tick";
    EXPECT_FALSE(Module().BreedsDirty);
}

TEST_F(BreedRegisterTest, ABreedAndItsSubgroupsAreNeverUsedTogether) {
    const int pudl = AddBreed("Pudl", {{"Pouzivat", true}});
    const int brown = OwnBreed("Hnědý", pudl);
    OpenRegister([&](QWidget&) {
        platform.ExpectMessage(Text("Nelze použít skupinu, protože je použito nadřazené plemeno."),
                               MessageAnswer::Ok, MessageIcon::Information);
        ToggleTick(brown);
        EXPECT_FALSE(Node(brown).checked);
        EXPECT_EQ(Field("Pouzivat", brown), "0");
        ToggleTick(pudl);
        ToggleTick(brown);
        EXPECT_EQ(Field("Pouzivat", brown), "-1");
        platform.ExpectMessage(
            Text("Nelze použít plemeno, protože je použita některá z podskupin."),
            MessageAnswer::Ok, MessageIcon::Information);
        ToggleTick(pudl);
        EXPECT_FALSE(Node(pudl).checked);
        ToggleTick(brown);
        ToggleTick(pudl);
    });
    EXPECT_EQ(Field("Pouzivat", pudl), "-1");
    EXPECT_EQ(Field("Pouzivat", brown), "0");
}

// kept: storno-leaves-the-new-breed
TEST_F(BreedRegisterTest, AddingASubgroupStoresItBeforeItIsNamed) {
    const int pudl = AddBreed("Pudl", {{"FCI", 9}, {"ID_Kruhu", 3}, {"Pouzivat", true}});
    OpenRegister([&](QWidget& window) {
        Select(pudl);
        WhileOpen([&] { Command(window, "PLEMENA:ADD"); },
                  [&](QWidget& naming) {
                      EXPECT_EQ(naming.windowTitle(), u"Přejmenovat plemeno");
                      EXPECT_EQ(Box(naming, "txtPlemenoName").text(), u"Nové plemeno");
                      EXPECT_EQ(Box(naming, "txtPlemenoNameOrig").text(), u"");
                      EXPECT_EQ(Cells(2), "Nové plemeno|-nezařazeno-|9|0||");
                      EXPECT_EQ(Selected(), 2);
                      EXPECT_TRUE(Node(2).blue);
                      Press(naming, "cmdCancel");
                  });
        EXPECT_EQ(Node(2).cells[kBreedName], u"Nové plemeno");
    });
    EXPECT_EQ(Field("Nazev", 2), "Nové plemeno");
    EXPECT_EQ(Field("Parent", 2), std::to_string(pudl));
    EXPECT_EQ(Field("Vlastni", 2), "-1");
    EXPECT_EQ(Field("FCI", 2), "9");
    EXPECT_EQ(Field("ID_Kruhu", 2), "0");
    EXPECT_EQ(Field("Pouzivat", 2), "0");
    EXPECT_FALSE(Module().BreedsDirty);
}

TEST_F(BreedRegisterTest, NamingTakesWhatIsTyped) {
    const int pudl = AddBreed("Pudl");
    OpenRegister([&](QWidget& window) {
        Select(pudl);
        WhileOpen([&] { Command(window, "PLEMENA:ADD"); },
                  [&](QWidget& naming) {
                      Box(naming, "txtPlemenoName").setText(Text(" Pudl"));
                      Box(naming, "txtPlemenoNameOrig").setText(Text(" "));
                      Press(naming, "cmdOK");
                      EXPECT_FALSE(naming.isVisible());
                  });
        EXPECT_EQ(Node(2).cells[kBreedName], u" Pudl ()");
        EXPECT_TRUE(Module().BreedsDirty) << "the tree shows the name";
        Select(2);
        WhileOpen([&] { Command(window, "PLEMENA:EDIT"); },
                  [&](QWidget& naming) {
                      Box(naming, "txtPlemenoName").clear();
                      Box(naming, "txtPlemenoNameOrig").setText(Text("Poodle"));
                      Press(naming, "cmdOK");
                  });
        EXPECT_EQ(Node(2).cells[kBreedName], u" (Poodle)");
    });
    EXPECT_EQ(Field("Nazev", 2), "");
    EXPECT_EQ(Field("NazevOrig", 2), "Poodle");
}

TEST_F(BreedRegisterTest, ASubgroupGetsNoSubgroups) {
    const int brown = OwnBreed("Hnědý", AddBreed("Pudl"));
    OpenRegister([&](QWidget& window) {
        Select(brown);
        Command(window, "PLEMENA:ADD");
        Tree().selectionModel()->clear();
        for (const char* key : {"PLEMENA:ADD", "PLEMENA:EDIT", "PLEMENA:DELETE"})
            Command(window, key);
        EXPECT_TRUE(platform.messages.empty());
    });
    EXPECT_EQ(Column("SELECT ID FROM Plemena").size(), 2u);
}

TEST_F(BreedRegisterTest, BreedsOfTheOfficialListCannotBeRenamedOrDeleted) {
    const int pudl = AddBreed("Pudl");
    OpenRegister([&](QWidget& window) {
        Select(pudl);
        platform.ExpectMessage(Text("Základní plemena nelze přejmenovat"), MessageAnswer::Ok,
                               MessageIcon::Information);
        Command(window, "PLEMENA:EDIT");
        platform.ExpectMessage(Text("Základní plemena nelze mazat"), MessageAnswer::Ok,
                               MessageIcon::Information);
        Command(window, "PLEMENA:DELETE");
        platform.ExpectMessage(Text("Toto plemeno nelze přejmenovat, název je převzat z FCI."),
                               MessageAnswer::Ok, MessageIcon::Information);
        Key(Qt::Key_F2);
        EXPECT_FALSE(EditorOf(Tree()));
    });
    EXPECT_EQ(Field("Nazev", pudl), "Pudl");
}

TEST_F(BreedRegisterTest, RenamingInPlaceTakesTheWholeTextOfTheCell) {
    const int pudl = AddBreed("Pudl");
    const int brown = OwnBreed("Hnědý", pudl);
    OpenRegister([&](QWidget& window) {
        Select(brown);
        Key(Qt::Key_F2);
        ASSERT_TRUE(EditorOf(Tree()));
        EXPECT_EQ(EditorOf(Tree())->text(), u"Hnědý (Orig)");
        QTest::keyClick(EditorOf(Tree()), Qt::Key_Return);
        QCoreApplication::processEvents();
        EXPECT_EQ(Field("Nazev", brown), "Hnědý") << "nothing was typed";
        Key(Qt::Key_F2);
        TypeInPlace(Tree(), Text("Pudl 'hnědý'"));
        EXPECT_EQ(Node(brown).cells[kBreedName], u"Pudl 'hnědý'");
        EXPECT_EQ(Status(window), "Celkem 2 plemen.");
        EXPECT_TRUE(Module().BreedsDirty);
    });
    EXPECT_EQ(Field("Nazev", brown), "Pudl 'hnědý'");
}

TEST_F(BreedRegisterTest, EmptyAndUsedNamesAreRefusedInPlace) {
    const int brown = OwnBreed("Hnědý", AddBreed("Pudl"));
    OpenRegister([&](QWidget&) {
        platform.ExpectMessage(Text("Název musí být zadán!"));
        RenameInPlace(brown, "");
        platform.ExpectMessage(Text("Tento název plemene již existuje!"));
        RenameInPlace(brown, "PUDL");
        platform.ExpectMessage(Text("Tento název plemene již existuje!"));
        RenameInPlace(brown, "hnědý");
        EXPECT_EQ(Node(brown).cells[kBreedName], u"Hnědý (Orig)");
        EXPECT_FALSE(Module().BreedsDirty);
    });
    EXPECT_EQ(Field("Nazev", brown), "Hnědý");
}

TEST_F(BreedRegisterTest, DeletesAnOwnBreedWithoutDogs) {
    const int pudl = AddBreed("Pudl");
    const int brown = OwnBreed("Hnědý", pudl);
    const int black = OwnBreed("Černý", pudl);
    const int dog = AddDog("Rex", black);
    OpenRegister([&](QWidget& window) {
        Select(black);
        platform.ExpectMessage(Text("Toto plemeno není možno smazat, protože je použito (1x)"));
        Command(window, "PLEMENA:DELETE");
        Select(brown);
        platform.ExpectMessage(Text("Skutečně smazat?"), MessageAnswer::Cancel,
                               MessageIcon::Question, MessageButtons::YesNoCancel,
                               Text("Seznam plemen"));
        Key(Qt::Key_Delete);
        EXPECT_FALSE(Module().BreedsDirty);
        platform.ExpectMessage(Text("Skutečně smazat?"), MessageAnswer::Yes);
        Key(Qt::Key_Delete);
        EXPECT_FALSE(Tree().Model().Find(brown));
        EXPECT_TRUE(Tree().isExpanded(Tree().Model().IndexOf(Node(pudl))));
        EXPECT_TRUE(Module().BreedsDirty);
        EXPECT_FALSE(ResultOf(window).changed);
    });
    EXPECT_EQ(Column("SELECT Nazev FROM Plemena"), (Texts{"Pudl", "Černý"}));
    EXPECT_EQ(One("SELECT PlemenoID FROM Psi WHERE ID = " + std::to_string(dog)),
              std::to_string(black));
}

TEST_F(BreedRegisterTest, TheUnreachableFilterShowsUsedBreedsAlone) {
    const int pudl = AddBreed("Pudl", {{"Pouzivat", true}});
    const int vipet = AddBreed("Vipet");
    const int orphan = OwnBreed("Malý", vipet, {{"Pouzivat", true}});
    OpenRegister([&](QWidget& window) {
        EXPECT_TRUE(Control<QAction>(window, "PLEMENA:HIDEUNUSED").associatedObjects().isEmpty());
        Select(pudl);
        platform.ExpectMenu(10000 + Add("Kruhy", {{"Nazev", Text("Kruh A")}}));
        RightClick(pudl);
        EXPECT_TRUE(ResultOf(window).changed);
        Command(window, "PLEMENA:HIDEUNUSED");
        EXPECT_EQ(Tree().Model().InOrder(), std::vector<BreedNode*>{&Node(pudl)});
        EXPECT_FALSE(ResultOf(window).changed) << "loading clears it";
        Command(window, "PLEMENA:HIDEUNUSED");
        EXPECT_TRUE(Tree().Model().Find(orphan));
    });
}

TEST_F(BreedRegisterTest, GridLinesFollowThePreference) {
    const int pudl = AddBreed("Pudl");
    const auto lineBelow = [&] {
        QRgb painted = 0;
        OpenRegister([&](QWidget&) {
            const QRect row = Tree().visualRect(Tree().Model().IndexOf(Node(pudl)));
            painted = Tree().viewport()->grab().toImage().pixel(row.right() - 2, row.bottom());
        });
        return painted;
    };
    const QRgb without = lineBelow();
    platform.settings[Text("Sys\\ShowGrid")] = Text("1");
    EXPECT_NE(lineBelow(), without);
}

TEST_F(BreedRegisterTest, TheMenuOpensByItsKeyToo) {
    const int pudl = AddBreed("Pudl", {{"Pouzivat", true}});
    OpenRegister([&](QWidget& window) {
        Select(pudl);
        platform.ExpectMenu(10000 + Add("Kruhy", {{"Nazev", Text("Kruh A")}}));
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
        QCoreApplication::sendEvent(&Tree(), &event);
        EXPECT_TRUE(ResultOf(window).changed);
    });
}

TEST_F(BreedRegisterTest, HelpTellsInFourLines) {
    OpenRegister([&](QWidget& window) {
        platform.ExpectMessage(
            Text("V seznamu jsou všechna plemena podle oficiálního seznamu FCI.\nZatrhněte ta "
                 "plemena, která chcete vystavovat.\nPro každé z plemen můžete vytvořit libovolný "
                 "počet podskupin - např. Pudl černý, Pudl hnědý, z nichž každá bude v hlavním "
                 "stromu zobrazena jako nezávislý uzel. To může být užitečné, pokud děláte výstavy "
                 "jednoho nebo jen několika málo plemen.\nPozor! Nelze používat zároveň plemeno a "
                 "jeho podskupiny."),
            MessageAnswer::Ok, MessageIcon::Information);
        Command(window, "PLEMENA:HELP");
    });
}

TEST_F(BreedRegisterTest, TheMenuOfABaseBreedGreysWhatNeedsAnOwnOne) {
    Add("Kruhy", {{"Nazev", Text("Zadní")}});
    const int ring = Add("Kruhy", {{"Nazev", Text("Přední")}});
    const int pudl = AddBreed("Pudl", {{"FCI", 2}, {"ID_Kruhu", ring}, {"Pouzivat", true}});
    OpenRegister([&](QWidget&) {
        platform.ExpectMenu(0);
        RightClick(pudl);
        QStringList expected = {Text("Zařadit do FCI"), Text("  20000 -nezařazeno- (-)"),
                                Text("  20001 FCI 1 (-)"), Text("  0 [x] FCI 2")};
        for (int fci = 3; fci <= 10; ++fci)
            expected << u"  %1 FCI %2 (-)"_s.arg(20000 + fci).arg(fci);
        expected << Text("Zařadit do kruhu") << Text("  10001 Zadní") << Text("  10002 [x] Přední")
                 << Text("602 Odstranit plemeno (-)") << Text("603 Přejít na plemeno ve stromečku");
        QStringList lines = platform.LastMenuLines();
        lines.replaceInStrings(u"  [x] FCI 2"_s, u"  0 [x] FCI 2"_s);
        EXPECT_EQ(lines, expected);
    });
}

// kept: unassigned-word-in-wrong-cell
TEST_F(BreedRegisterTest, FciGroupsOfAnOwnBreedGoToTheirCells) {
    const int own = OwnBreed("Hnědý", AddBreed("Pudl"), {{"FCI", 9}});
    OpenRegister([&](QWidget& window) {
        platform.ExpectMenu(20003);
        RightClick(own);
        EXPECT_EQ(Node(own).cells[kBreedFci], u"3");
        EXPECT_EQ(Field("FCI", own), "3");
        EXPECT_TRUE(ResultOf(window).changed);
        platform.ExpectMenu(20000);
        RightClick(own);
        EXPECT_EQ(Field("FCI", own), "0");
        EXPECT_EQ(Node(own).cells[kBreedUsed], u"-nezařazeno-") << "the wrong cell";
        EXPECT_EQ(Node(own).cells[kBreedFci], u"3") << "as before";
    });
}

TEST_F(BreedRegisterTest, AnyBreedGoesToARingEvenUnused) {
    const int ring = Add("Kruhy", {{"Nazev", Text("Kruh A")}});
    const int pudl = AddBreed("Pudl");
    OpenRegister([&](QWidget&) {
        platform.ExpectMenu(10000 + ring, [](const std::vector<MenuEntry>& entries) {
            EXPECT_FALSE(entries[3].enabled) << "no node to jump to";
        });
        RightClick(pudl);
        EXPECT_EQ(Node(pudl).cells[kBreedRing], u"Kruh A");
    });
    EXPECT_EQ(Field("ID_Kruhu", pudl), std::to_string(ring));
    EXPECT_TRUE(result.changed);
    EXPECT_FALSE(Module().BreedsDirty);
}

TEST_F(BreedRegisterTest, TheMenuDeletesAndMarksTheListChangedEvenWhenRefused) {
    const int own = OwnBreed("Hnědý", AddBreed("Pudl"));
    OpenRegister([&](QWidget&) {
        platform.ExpectMenu(602);
        platform.ExpectMessage(Text("Skutečně smazat?"), MessageAnswer::No);
        RightClick(own);
    });
    EXPECT_TRUE(result.changed);
    EXPECT_EQ(Field("Nazev", own), "Hnědý");
}

TEST_F(BreedRegisterTest, TheMenuJumpsToABreedInUse) {
    const int pudl = AddBreed("Pudl", {{"Pouzivat", true}});
    OpenRegister([&](QWidget& window) {
        platform.ExpectMenu(603);
        RightClick(pudl);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(result.jumpTo, pudl);
}

TEST_F(BreedRegisterTest, ALetterJumpsToTheNextBreedOfThatInitial) {
    const int pudl = AddBreed("Pudl");
    const int mops = OwnBreed("pudl malý", pudl);
    const int cau = AddBreed("Čau-čau");
    const int vipet = AddBreed("Vipet");
    const int pekines = AddBreed("Pekinéz");
    OpenRegister([&](QWidget&) {
        Select(vipet);
        QTest::keyClick(&Tree(), 'p');
        EXPECT_EQ(Selected(), pekines) << "wraps to the first";
        QTest::keyClick(&Tree(), 'P', Qt::ShiftModifier);
        EXPECT_EQ(Selected(), pudl);
        QTest::keyClick(&Tree(), 'p');
        EXPECT_EQ(Selected(), mops) << "subgroups too, below a collapsed breed";
        QTest::keyClick(&Tree(), 'x');
        EXPECT_EQ(Selected(), mops) << "no such breed";
        QTest::sendKeyEvent(QTest::Click, &Tree(), Qt::Key_unknown, Text("č"), {});
        EXPECT_EQ(Selected(), cau);
        QTest::keyClick(&Tree(), 'v');
        QTest::keyClick(&Tree(), '7');
        EXPECT_EQ(Selected(), vipet);
    });
}

TEST_F(BreedRegisterTest, NoBreedIsChosenAtFirstNorAfterADeletion) {
    const int pudl = AddBreed("Pudl");
    const int brown = OwnBreed("hnědý", pudl);
    OwnBreed("malý", pudl);
    OpenRegister([&](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_EQ(Selected(), 0);
        EXPECT_FALSE(Tree().currentIndex().isValid());
        Select(brown);
        platform.ExpectMessage(Text("Skutečně smazat?"), MessageAnswer::Yes);
        Key(Qt::Key_Delete);
        EXPECT_EQ(Selected(), 0);
        Key(Qt::Key_Delete);
    });
    EXPECT_EQ(Column("SELECT Nazev FROM Plemena"), (Texts{"Pudl", "malý"}));
}

TEST_F(BreedRegisterTest, ABlankWithinATypedNameTicksNothingAndOneOfItsOwnDoes) {
    const int jack = AddBreed("Jack Russell terier");
    const int usual = QApplication::keyboardInputInterval();
    OpenRegister([&](QWidget&) {
        QApplication::setKeyboardInputInterval(60'000);
        QTest::keyClicks(&Tree(), u"jack "_s);
        EXPECT_EQ(Selected(), jack);
        EXPECT_FALSE(Node(jack).checked);
        QApplication::setKeyboardInputInterval(1);
        QTest::qWait(5);
        Key(Qt::Key_Space);
        EXPECT_TRUE(Node(jack).checked);
    });
    QApplication::setKeyboardInputInterval(usual);
    EXPECT_EQ(Field("Pouzivat", jack), "-1");
}

TEST_F(BreedRegisterTest, EscapeCloses) {
    OpenRegister([&](QWidget& window) {
        Key(Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
}

} // namespace
} // namespace lorvo::test
