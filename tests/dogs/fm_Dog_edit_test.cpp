#include "dogs/dog_editor_fixture.h"
#include "store/psi_ve_vystavach.h"

#include <QTest>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class EditDogTest : public DogEditorTest {};

TEST_F(EditDogTest, ShowsTheDogAndItsOwner) {
    const int dog = StoredDog({{"ChovnaStanice", Text("z Lhoty")},
                               {"Otec", Text("Argo")},
                               {"Matka", Text("Bára")},
                               {"Chovatel", Text("Jan Novák")},
                               {"PK", Text("ČMKU 1/03")},
                               {"Poznamka", Text("kouše")},
                               {"PohlaviPes", false}});
    EditDog(dog, [&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), Text("Upravit psa"));
        EXPECT_EQ(Box(window, 0).text(), Text("Rex"));
        EXPECT_EQ(Control<QComboBox>(window, "icStanice").currentText(), Text("z Lhoty"));
        EXPECT_EQ(Control<QComboBox>(window, "icOtec").currentText(), Text("Argo"));
        EXPECT_EQ(Control<QComboBox>(window, "icMatka").currentText(), Text("Bára"));
        EXPECT_TRUE(Control<QRadioButton>(window, "optGender(1)").isChecked());
        EXPECT_EQ(Control<QDateEdit>(window, "dtBorn").text(), Text("14.5.2003"));
        EXPECT_TRUE(Class(window, 5).isChecked());
        EXPECT_EQ(Box(window, 1).text(), Text("Jan Novák"));
        EXPECT_EQ(Box(window, 2).text(), Text("ČMKU 1/03"));
        EXPECT_EQ(Box(window, 3).text(), Text("kouše"));
        EXPECT_EQ(Control<QComboBox>(window, "cmbOwners").currentText(), Text("Jana  Kolín"));
        EXPECT_EQ(Control<QComboBox>(window, "cmbOwners").currentData().toInt(), jana);
        EXPECT_EQ(Box(window, 7).text(), Text("Jana"));
        EXPECT_EQ(Box(window, 4).text(), Text("Malá"));
        EXPECT_EQ(Box(window, 8).text(), Text("Lesní 1"));
        EXPECT_EQ(Box(window, 9).text(), Text("012 34"));
        EXPECT_EQ(Box(window, 10).text(), Text("Kolín"));
        EXPECT_EQ(Box(window, 6).text(), Text("777 123"));
        EXPECT_EQ(Box(window, 11).text(), Text("jana@lesni.cz"));
        EXPECT_TRUE(IsEnabled(window, "cmd_OK"));
    });
    EXPECT_EQ(Module().CurrentDogID, dog);
}

TEST_F(EditDogTest, LeavesTheFirstDogsMarkTheNumberAndTheClosingAsTheyAre) {
    const int dog = StoredDog({{"PrvniPes", true}, {"Cislo", 17}, {"PrvniUzaverka", false}});
    EditDog(dog, [&](QWidget& window) {
        Box(window, 0).setText(Text("Alík"));
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(Dog("PrvniPes"), "-1");
    EXPECT_EQ(Dog("Cislo"), "17");
    EXPECT_EQ(Dog("PrvniUzaverka"), "0");
}

TEST_F(EditDogTest, PatchesTheNodeAndTheTitleWithoutMovingTheNode) {
    const int dog = StoredDog({{"Cislo", 17}, {"ChovnaStanice", Text("z Lhoty")}});
    EditDog(dog, [&](QWidget& window) {
        Box(window, 0).setText(Text("Alík"));
        Class(window, 6).click();
        Press(window, "cmd_OK");
    });
    const QString node = Node(dog);
    EXPECT_EQ(tree.calls,
              (QStringList{u"ShowNodeInfo %1"_s.arg(node), u"SetItemTitle Alík z Lhoty"_s,
                           u"SetNodeText %1 Alík 17"_s.arg(node), u"SelectNode %1"_s.arg(node)}));
    EXPECT_EQ(tree.ParentOf(node), Breed());
    EXPECT_EQ(Dog("Trida"), "6");
}

TEST_F(EditDogTest, ADogWithoutANumberShowsItsBareName) {
    const int dog = StoredDog({{"Cislo", 0}});
    EditDog(dog, [&](QWidget& window) { Press(window, "cmd_OK"); });
    EXPECT_EQ(tree.NodeText(Node(dog)), Text("Rex"));
}

// kept: saving-a-dog-empties-its-shows
TEST_F(EditDogTest, TakesTheDogOutOfAllShows) {
    const int dog = StoredDog();
    const int other = StoredDog();
    AddDogToShows(dog, {1, 2});
    AddDogToShows(other, {1});
    EditDog(dog, [&](QWidget& window) { Press(window, "cmd_OK"); });
    EXPECT_TRUE(ShowsOfDog(dog).empty());
    EXPECT_EQ(ShowsOfDog(other), std::vector<int>{1});
}

TEST_F(EditDogTest, KeepsAColourOnlyWhileItHasAName) {
    const int black = Add("Barvy", {{"Nazev", Text("černá")}});
    const int nameless = Add("Barvy", {{"Nazev", Text("")}});
    const int notGiven = Add("Barvy", {{"Nazev", Text("Nezadáno")}});
    const auto colourAfterSaving = [&](int colour) {
        const int dog = StoredDog({{"BarvaID", colour}});
        EditDog(dog, [&](QWidget& window) { Press(window, "cmd_OK"); });
        return DogByID(dog)->BarvaID;
    };
    EXPECT_EQ(colourAfterSaving(black), black);
    EXPECT_EQ(colourAfterSaving(nameless), 0);
    EXPECT_EQ(colourAfterSaving(notGiven), 0);
    EXPECT_EQ(colourAfterSaving(99), 0);
    EXPECT_EQ(colourAfterSaving(0), 0);
}

TEST_F(EditDogTest, AClassThatTheAgeNoLongerAllowsIsDroppedAndTakesOKAway) {
    const int dog = StoredDog({{"Trida", 1}});
    EditDog(dog, [&](QWidget& window) {
        EXPECT_FALSE(Class(window, 1).isChecked());
        EXPECT_FALSE(Class(window, 1).isEnabled());
        EXPECT_FALSE(IsEnabled(window, "cmd_OK"));
        Class(window, 5).click();
        EXPECT_TRUE(IsEnabled(window, "cmd_OK"));
    });
}

TEST_F(EditDogTest, ADogWhoseOwnerIsGoneCantBeSaved) {
    const int dog = StoredDog({{"MajitelID", 99}});
    platform.ExpectMessage(Text("Jméno  majitele musí být vyplněno"), MessageAnswer::Ok,
                           MessageIcon::Stop, MessageButtons::Ok, Text("Upravit psa"));
    EditDog(dog, [&](QWidget& window) {
        EXPECT_EQ(Control<QComboBox>(window, "cmbOwners").currentIndex(), -1);
        EXPECT_EQ(Box(window, 7).text(), QString());
        Press(window, "cmd_OK");
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(EditDogTest, ANameTypedForAnOwnerWhoIsGoneLeavesTheDogAsItIs) {
    const int dog = StoredDog({{"MajitelID", 99}});
    platform.ExpectMessage(Text("Pes nemá majitele. Vyberte ho v seznamu, nebo ho zadejte po "
                                "stisku tlačítka „Přidat nového“."));
    EditDog(dog, [&](QWidget& window) {
        Press(window, "cmdAddName");
        Press(window, "cmdAddNameCancel");
        Box(window, 7).setText(Text("Alena"));
        Press(window, "cmd_OK");
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_EQ(Dog("MajitelID", "Rex"), "99");
}

TEST_F(EditDogTest, APercentSignInTheNameStaysAPercentSign) {
    const int dog = StoredDog({{"Cislo", 12}});
    EditDog(dog, [&](QWidget& window) {
        Box(window, 0).setText(Text("Sto %1 a %2"));
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(tree.NodeText(Node(dog)), Text("Sto %1 a %2 12"));
}

TEST_F(EditDogTest, ANodeThatIsNoDogsIsNotTakenForTheDogOfItsNumber) {
    const int dog = StoredDog();
    tree.selected = u"R%1"_s.arg(dog);
    fm_Dog window({false, breed}, nullptr);
    WhileOpen([&] { OpenModal(window); },
              [&](QWidget& open) { EXPECT_EQ(Box(open, 0).text(), QString()); });
    EXPECT_EQ(Module().CurrentDogID, 0);
}

TEST_F(EditDogTest, ADogThatIsGoneFails) {
    EXPECT_THROW(EditDog(99, [](QWidget&) {}), StoreError);
}

TEST_F(EditDogTest, ABreedOfTheSameNumberIsNotTakenForTheDog) {
    const int dog = StoredDog();
    tree.selected = u"R%1"_s.arg(dog);
    fm_Dog window({false, breed}, nullptr);
    WhileOpen([&] { OpenModal(window); },
              [](QWidget& open) { EXPECT_EQ(Box(open, 0).text(), QString()); });
}

TEST_F(EditDogTest, WithoutADogSelectedTheWindowStaysEmpty) {
    tree.selected.clear();
    fm_Dog window({false, breed}, nullptr);
    WhileOpen([&] { OpenModal(window); },
              [&](QWidget& open) {
                  EXPECT_EQ(open.windowTitle(), Text("Upravit psa"));
                  EXPECT_EQ(Box(open, 0).text(), QString());
                  EXPECT_FALSE(Control<QLabel>(open, "Label8").text().contains(u'='));
              });
    EXPECT_EQ(Module().CurrentDogID, 0);
}

TEST_F(EditDogTest, ADogWithoutADateOfBirthShowsToday) {
    const int dog = StoredDog({{"DatumNar", Value()}});
    EditDog(dog, [&](QWidget& window) {
        EXPECT_EQ(Control<QDateEdit>(window, "dtBorn").date(), QDate(2005, 5, 1));
    });
}

/// Types into the month alone, digit by digit.
void TypeMonth(QDateEdit& born, const char* digits) {
    born.setFocus();
    born.setSelectedSection(QDateTimeEdit::MonthSection);
    QTest::keyClicks(&born, QString::fromLatin1(digits));
}

TEST_F(EditDogTest, ADateOnTheWayKeepsTheChosenClass) {
    const int dog = StoredDog({{"DatumNar", DateValue::FromCalendar(2004, 10, 20)}, {"Trida", 2}});
    EditDog(dog, [&](QWidget& window) {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        auto& born = Control<QDateEdit>(window, "dtBorn");
        ASSERT_TRUE(Class(window, 2).isChecked());
        TypeMonth(born, "1");
        EXPECT_FALSE(Class(window, 2).isChecked());
        QTest::keyClicks(&born, Text("0"));
        EXPECT_EQ(born.date(), QDate(2004, 10, 20));
        EXPECT_TRUE(Class(window, 2).isChecked());
        TypeMonth(born, "1");
        QTest::keyClick(&born, Qt::Key_Tab);
        TypeMonth(born, "10");
        EXPECT_EQ(born.date(), QDate(2004, 10, 20));
        EXPECT_FALSE(Class(window, 2).isChecked());
    });
}

} // namespace
} // namespace lorvo::test
