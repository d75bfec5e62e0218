// Catalogue numbers given and taken by the settings' buttons, over the real tree.

#include "office/tree/tree_loader.h"
#include "platform/values/errors.h"
#include "setup/fm_Settings.h"
#include "setup/setup_fixture.h"
#include "store/psi_lists.h"

namespace lorvo::test {
namespace {

/// A main window with the real nodes.
class NodesWindow : public RecordingMainWindow {
  public:
    void LoadData() override {
        ++loads;
        LoadTree(nodes, look);
    }
    TreeNodes& Nodes() override { return nodes; }

    TreeNodes nodes;
    int loads = 0;
};

class NumbersTest : public SetupTest {
  protected:
    static int AddRing(const char* name) { return Add("Kruhy", {{"Nazev", Text(name)}}); }
    static int UsedBreed(const char* name, int ring) {
        return AddBreed(name, {{"Pouzivat", true}, {"ID_Kruhu", ring}});
    }
    /// Two rings, one breed each, three dogs of two classes in the first.
    void AddTwoRings() {
        const int pudl = UsedBreed("Pudl", AddRing("A"));
        const int vipet = UsedBreed("Vipet", AddRing("B"));
        AddDog("Zar", pudl, {{"Trida", 5}});
        AddDog("Cit", pudl, {{"Trida", 6}});
        AddDog("Aja", pudl, {{"Trida", 5}, {"PohlaviPes", false}});
        AddDog("Bob", vipet);
    }
    void Generate(MessageAnswer answer = MessageAnswer::Yes) {
        Click("cmdGenerateNumbers", "Určitě vygenerovat pořadová čísla psů?", answer);
    }
    void Remove(MessageAnswer answer = MessageAnswer::Yes) {
        Click("cmdRemoveNumbers", "Určitě zrušit pořadová čísla psů?", answer);
    }
    /// "Zar=1 Cit=0 ..." by name.
    static std::string Numbers() {
        QStringList numbers;
        for (const Psi& dog : DogsByName())
            numbers << dog.Jmeno + u'=' + QString::number(dog.Cislo.value_or(0));
        return numbers.join(u' ').toStdString();
    }

    NodesWindow main;
    bool generateAfter = false;
    bool removeAfter = false;

  private:
    void Click(const char* button, const char* question, MessageAnswer answer) {
        Open<fm_Settings>([&](QWidget& window) {
            platform.ExpectMessage(Text(question), answer, MessageIcon::Question,
                                   MessageButtons::YesNo, Text("Nastavení"));
            Press(window, button);
            EXPECT_EQ(platform.waitCursorDepth, 0);
            generateAfter = IsEnabled(window, "cmdGenerateNumbers");
            removeAfter = IsEnabled(window, "cmdRemoveNumbers");
        });
    }
};

TEST_F(NumbersTest, RingsInTheirOrderFromOne) {
    AddTwoRings();
    main.LoadData();
    Generate();
    EXPECT_EQ(Numbers(), "Aja=3 Bob=4 Cit=2 Zar=1");
    EXPECT_FALSE(generateAfter);
    EXPECT_TRUE(removeAfter);
    EXPECT_EQ(main.nodes.Get(Text("P4")).text, u"4 Bob");
    EXPECT_EQ(main.loads, 1) << "the tree isn't built anew";
}

TEST_F(NumbersTest, WithClassesShownTheClassComesBeforeTheSex) {
    AddTwoRings();
    main.look.showClasses = true;
    main.LoadData();
    Generate();
    EXPECT_EQ(Numbers(), "Aja=2 Bob=4 Cit=3 Zar=1");
}

TEST_F(NumbersTest, ABreedWithoutARingKeepsTheRingsFromNumbers) {
    AddTwoRings();
    AddDog("Max", UsedBreed("Akita", 0));
    main.LoadData();
    Generate();
    EXPECT_EQ(Numbers(), "Aja=0 Bob=0 Cit=0 Max=1 Zar=0");
    EXPECT_FALSE(generateAfter);
}

TEST_F(NumbersTest, AnEmptyLastBreedWithoutARingLetsTheRingsThroughUnlessItHasClasses) {
    AddTwoRings();
    UsedBreed("Akita", 0);
    main.LoadData();
    Generate();
    EXPECT_EQ(Numbers(), "Aja=3 Bob=4 Cit=2 Zar=1");
    RemoveDogNumbers();
    main.look.showClasses = true;
    main.LoadData();
    Generate();
    EXPECT_EQ(Numbers(), "Aja=0 Bob=0 Cit=0 Zar=0");
    EXPECT_TRUE(removeAfter) << "as if there were numbers";
    EXPECT_FALSE(generateAfter);
}

TEST_F(NumbersTest, OnlyYesActs) {
    AddTwoRings();
    main.LoadData();
    Generate(MessageAnswer::No);
    EXPECT_EQ(Numbers(), "Aja=0 Bob=0 Cit=0 Zar=0");
    EXPECT_TRUE(generateAfter);
    Generate();
    Remove(MessageAnswer::No);
    EXPECT_EQ(CountNumberedDogs(), 4);
}

TEST_F(NumbersTest, RemovingBringsTheBareNamesBack) {
    AddTwoRings();
    main.LoadData();
    Generate();
    Remove();
    EXPECT_EQ(CountNumberedDogs(), 0);
    EXPECT_EQ(main.loads, 2);
    EXPECT_EQ(main.nodes.Get(Text("P4")).text, u"Bob");
    EXPECT_TRUE(generateAfter);
    EXPECT_FALSE(removeAfter);
}

TEST_F(NumbersTest, RemovingWithoutDogsLeavesTheButtonsAlone) {
    const int dog = AddDog("Rex", 1, {{"Cislo", 1}});
    Open<fm_Settings>([&](QWidget& window) {
        DeleteDog(dog);
        platform.ExpectMessage(Text("Určitě zrušit pořadová čísla psů?"), MessageAnswer::Yes);
        Press(window, "cmdRemoveNumbers");
        EXPECT_TRUE(IsEnabled(window, "cmdRemoveNumbers"));
        EXPECT_FALSE(IsEnabled(window, "cmdGenerateNumbers"));
    });
    EXPECT_EQ(main.loads, 0);
}

TEST_F(NumbersTest, ADogAddedAfterwardsGetsNoneUntilTheNumbersAreRemoved) {
    AddTwoRings();
    main.LoadData();
    Generate();
    AddDog("Nov", 1);
    Open<fm_Settings>([&](QWidget& window) {
        EXPECT_FALSE(IsEnabled(window, "cmdGenerateNumbers"));
        EXPECT_TRUE(IsEnabled(window, "cmdRemoveNumbers"));
    });
}

TEST_F(NumbersTest, AFailureHalfwayLeavesTheEarlierDogsNumbered) {
    AddTwoRings();
    main.LoadData();
    DeleteDog(3);
    EXPECT_THROW(Generate(), StoreError);
    EXPECT_EQ(Numbers(), "Bob=0 Cit=2 Zar=1");
    EXPECT_EQ(main.nodes.Get(Text("P1")).text, u"Zar") << "the tree shows what is stored alone";
}

TEST_F(NumbersTest, AfterwardsTheKeyboardStandsOnOK) {
    AddTwoRings();
    main.LoadData();
    Open<fm_Settings>([&](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        for (const char* button : {"cmdGenerateNumbers", "cmdRemoveNumbers"}) {
            Control<QPushButton>(window, button).setFocus();
            platform.ExpectMessage(button == std::string("cmdGenerateNumbers")
                                       ? Text("Určitě vygenerovat pořadová čísla psů?")
                                       : Text("Určitě zrušit pořadová čísla psů?"),
                                   MessageAnswer::Yes);
            QTest::keyClick(window.focusWidget(), Qt::Key_Space);
            EXPECT_EQ(window.focusWidget()->objectName(), u"cmdOK") << button;
        }
    });
}

} // namespace
} // namespace lorvo::test
