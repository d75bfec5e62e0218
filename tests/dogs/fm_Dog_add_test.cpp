#include "dogs/dog_editor_fixture.h"

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class AddDogTest : public DogEditorTest {};

TEST_F(AddDogTest, StoresWhatTheBoxesHold) {
    AddDog([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Přidat psa"));
        FillIn(window);
        Control<QRadioButton>(window, "optGender(1)").click();
        Control<QComboBox>(window, "icStanice").setEditText(Text("z Lhoty"));
        Control<QComboBox>(window, "icOtec").setEditText(Text("Argo"));
        Control<QComboBox>(window, "icMatka").setEditText(Text("Bára"));
        Box(window, 1).setText(Text("Jan Novák"));
        Box(window, 2).setText(Text("ČMKU 1/03"));
        Box(window, 3).setText(Text("kouše"));
        Press(window, "cmd_OK");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(Dog("ChovnaStanice"), "z Lhoty");
    EXPECT_EQ(Dog("Otec"), "Argo");
    EXPECT_EQ(Dog("Matka"), "Bára");
    EXPECT_EQ(Dog("Chovatel"), "Jan Novák");
    EXPECT_EQ(Dog("PK"), "ČMKU 1/03");
    EXPECT_EQ(Dog("Poznamka"), "kouše");
    EXPECT_EQ(Dog("PohlaviPes"), "0");
    EXPECT_EQ(Dog("Trida"), "5");
    EXPECT_EQ(Dog("PlemenoID"), std::to_string(breed));
    EXPECT_EQ(Dog("MajitelID"), std::to_string(petr));
    EXPECT_EQ(Dog("BarvaID"), "0");
    EXPECT_EQ(Dog("PrvniUzaverka"), "-1");
    EXPECT_TRUE(IsNull("SELECT Cislo FROM Psi"));
    EXPECT_THROW(TheDataModule().rsPsi.Eof(), StoreError) << "left open";
}

TEST_F(AddDogTest, StoresTheDateOfBirthWithoutATime) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(DogByID(Module().CurrentDogID)->DatumNar, DateValue::FromCalendar(2003, 5, 14));
}

TEST_F(AddDogTest, AddsTheNodeToItsBreedAndSelectsIt) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        Press(window, "cmd_OK");
    });
    const QString node = Node(Module().CurrentDogID);
    EXPECT_EQ(tree.calls, (QStringList{u"AddDogNode %1 %2 Alík male"_s.arg(Breed(), node),
                                       u"SelectNode %1"_s.arg(node)}));
    EXPECT_EQ(Dog("MajitelID"), std::to_string(petr));
}

TEST_F(AddDogTest, AddsTheNodeToItsClassWhileTheTreeShowsClasses) {
    tree.look.showClasses = true;
    const QString node = u"TR%1|5"_s.arg(breed);
    tree.AddNode(node, Text("otevřená"), Breed());
    AddDog([&](QWidget& window) {
        FillIn(window);
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(tree.ParentOf(tree.selected), node);
}

TEST_F(AddDogTest, TheOnlyDogOfAnOwnerIsTheFirstOneAndTheNextIsNot) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        Press(window, "cmd_OK");
    });
    AddDog([&](QWidget& window) {
        FillIn(window, "Bára");
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(Dog("PrvniPes", "Alík"), "-1");
    EXPECT_EQ(Dog("PrvniPes", "Bára"), "0");
}

TEST_F(AddDogTest, CutsTextsAtTheirWidths) {
    const QString longText(200, u'x');
    AddDog([&](QWidget& window) {
        FillIn(window);
        Box(window, 0).setText(longText);
        for (const char* combo : {"icStanice", "icOtec", "icMatka"})
            Control<QComboBox>(window, combo).setEditText(longText);
        for (const int box : {1, 2, 3})
            Box(window, box).setText(longText);
        Press(window, "cmd_OK");
    });
    const auto dog = DogByID(Module().CurrentDogID);
    ASSERT_TRUE(dog);
    EXPECT_EQ(dog->Jmeno.size(), 50);
    EXPECT_EQ(dog->ChovnaStanice.size(), 150);
    EXPECT_EQ(dog->Otec.size(), 100);
    EXPECT_EQ(dog->Matka.size(), 100);
    EXPECT_EQ(dog->Chovatel.size(), 150);
    EXPECT_EQ(dog->PK.size(), 150);
    EXPECT_EQ(dog->Poznamka.size(), 150);
    EXPECT_EQ(tree.NodeText(tree.selected).size(), 50);
}

TEST_F(AddDogTest, OKNeedsANameAndAClass) {
    AddDog([&](QWidget& window) {
        EXPECT_FALSE(IsEnabled(window, "cmd_OK"));
        SetBorn(window, 2003, 5, 14);
        Class(window, 5).click();
        EXPECT_FALSE(IsEnabled(window, "cmd_OK"));
        Box(window, 0).setText(Text("Alík"));
        EXPECT_TRUE(IsEnabled(window, "cmd_OK"));
        Box(window, 0).clear();
        EXPECT_FALSE(IsEnabled(window, "cmd_OK"));
    });
}

TEST_F(AddDogTest, StornoAndTheCloseBoxWriteNothing) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        Press(window, "cmdAddName");
        Press(window, "cmdCancel");
    });
    AddDog([&](QWidget& window) {
        FillIn(window);
        window.close();
    });
    EXPECT_EQ(CountDogs(), 0);
    EXPECT_EQ(Column("SELECT ID FROM Majitele").size(), 2u);
    EXPECT_TRUE(tree.calls.isEmpty());
    EXPECT_TRUE(platform.settings.contains(Text("Form Positions\\fm_Dog\\WindowState")));
}

TEST_F(AddDogTest, StartsWithADogAndTodaysDate) {
    AddDog([&](QWidget& window) {
        EXPECT_TRUE(Control<QRadioButton>(window, "optGender(0)").isChecked());
        EXPECT_EQ(Control<QDateEdit>(window, "dtBorn").date(), QDate(2005, 5, 1));
        EXPECT_EQ(Control<QComboBox>(window, "cmbOwners").currentIndex(), -1);
    });
}

TEST_F(AddDogTest, ANodeThatIsGoneFailsWithTheDogStored) {
    tree.look.showClasses = true;
    EXPECT_THROW(AddDog([&](QWidget& window) {
                     FillIn(window);
                     Press(window, "cmd_OK");
                 }),
                 Error);
    EXPECT_EQ(CountDogs(), 1);
}

} // namespace
} // namespace lorvo::test
