#include "dogs/dog_editor_fixture.h"
#include "store/majitele.h"

#include <QAbstractItemView>
#include <QTest>

namespace lorvo::test {
namespace {

class DogOwnerTest : public DogEditorTest {
  protected:
    static Texts OwnersCalled(const char* name, const char* field) {
        return Column(std::string("SELECT ") + field + " FROM Majitele WHERE Jmeno = '" + name +
                      "'");
    }
    /// Presses "Přidat nového" and types an owner.
    static void TypeOwner(QWidget& window, const char* name, const char* postCode) {
        Press(window, "cmdAddName");
        Box(window, 7).setText(Text(name));
        Box(window, 4).setText(Text("Nová"));
        Box(window, 8).setText(Text("Dlouhá 2"));
        Box(window, 9).setText(Text(postCode));
        Box(window, 10).setText(Text("Písek"));
        Box(window, 6).setText(Text("608"));
        Box(window, 11).setText(Text("a@b.cz"));
    }
};

TEST_F(DogOwnerTest, TheListHoldsAllOwnersInCzechOrder) {
    Add("Majitele", {{"Jmeno", Text("Čeněk")}, {"Mesto", Text("Aš")}});
    AddDog([&](QWidget& window) {
        auto& owners = Control<QComboBox>(window, "cmbOwners");
        ASSERT_EQ(owners.count(), 3);
        EXPECT_EQ(owners.itemText(0), Text("Čeněk  Aš"));
        EXPECT_EQ(owners.itemText(1), Text("Jana  Kolín"));
        EXPECT_EQ(owners.itemText(2), Text("Petr  Zlín"));
        EXPECT_EQ(owners.itemData(2).toInt(), petr);
        EXPECT_FALSE(owners.isEditable());
    });
}

TEST_F(DogOwnerTest, TheDroppedDownListIsAsWideAsItsLines) {
    AddDog([&](QWidget& window) {
        auto& owners = Control<QComboBox>(window, "cmbOwners");
        owners.showPopup();
        const QAbstractItemView& list = *owners.view();
        EXPECT_LE(list.visualRect(owners.model()->index(0, 0)).width(), list.viewport()->width());
        owners.hidePopup();
    });
}

// kept: surname-of-the-first-owner
TEST_F(DogOwnerTest, AnotherOwnerFillsTheBoxesButNotTheSurname) {
    EditDog(StoredDog(), [&](QWidget& window) {
        ChooseOwner(window, "Petr  Zlín");
        EXPECT_EQ(Box(window, 7).text(), Text("Petr"));
        EXPECT_EQ(Box(window, 9).text(), Text("760 01"));
        EXPECT_EQ(Box(window, 10).text(), Text("Zlín"));
        EXPECT_EQ(Box(window, 8).text(), QString());
        EXPECT_EQ(Box(window, 4).text(), Text("Malá"));
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(Dog("MajitelID", "Rex"), std::to_string(petr));
    EXPECT_EQ(OwnersCalled("Petr", "Prijmeni"), Texts{"Čech"});
}

TEST_F(DogOwnerTest, TheBoxesAreClosedUntilANewOwnerIsBegun) {
    AddDog([&](QWidget& window) {
        EXPECT_FALSE(IsEnabled(window, "cmdAddNameCancel"));
        for (const int box : {7, 4, 8, 9, 10, 6, 11})
            EXPECT_FALSE(Box(window, box).isEnabled()) << box;
        ChooseOwner(window, "Petr  Zlín");
        Press(window, "cmdAddName");
        EXPECT_TRUE(IsEnabled(window, "cmdAddNameCancel"));
        EXPECT_FALSE(IsEnabled(window, "cmdAddName"));
        EXPECT_FALSE(IsEnabled(window, "cmbOwners"));
        EXPECT_EQ(Control<QComboBox>(window, "cmbOwners").currentText(), QString());
        for (const int box : {7, 4, 8, 9, 10, 6, 11}) {
            EXPECT_TRUE(Box(window, box).isEnabled()) << box;
            EXPECT_EQ(Box(window, box).text(), QString()) << box;
        }
    });
}

TEST_F(DogOwnerTest, ZpetGoesBackToTheOwnerChosenBefore) {
    AddDog([&](QWidget& window) {
        ChooseOwner(window, "Petr  Zlín");
        TypeOwner(window, "Alena", "11000");
        Press(window, "cmdAddNameCancel");
        auto& owners = Control<QComboBox>(window, "cmbOwners");
        EXPECT_EQ(owners.count(), 2);
        EXPECT_TRUE(owners.isEnabled());
        EXPECT_EQ(owners.currentData().toInt(), petr);
        EXPECT_EQ(Box(window, 7).text(), Text("Petr"));
        EXPECT_EQ(Box(window, 9).text(), Text("760 01"));
        EXPECT_TRUE(Box(window, 7).isEnabled());
        EXPECT_TRUE(IsEnabled(window, "cmdAddName"));
        EXPECT_FALSE(IsEnabled(window, "cmdAddNameCancel"));
    });
}

TEST_F(DogOwnerTest, ZpetWithNobodyChosenBeforeEmptiesTheBoxes) {
    platform.ExpectMessage(Text("Jméno  majitele musí být vyplněno"));
    AddDog([&](QWidget& window) {
        FillIn(window);
        Control<QComboBox>(window, "cmbOwners").setCurrentIndex(-1);
        TypeOwner(window, "Alena", "11000");
        Press(window, "cmdAddNameCancel");
        EXPECT_EQ(Control<QComboBox>(window, "cmbOwners").currentIndex(), -1);
        EXPECT_EQ(Box(window, 7).text(), QString());
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(CountDogs(), 0);
}

TEST_F(DogOwnerTest, ABlankWithinATypedNameSearchesOnAndDropsNothingDown) {
    for (const char* name : {"Jan", "Jan Adam", "Jan Novák"})
        Add("Majitele", {{"Jmeno", Text(name)}, {"Mesto", Text("Aš")}});
    AddDog([&](QWidget& window) {
        auto& owners = Control<QComboBox>(window, "cmbOwners");
        owners.setFocus();
        QTest::keyClicks(&owners, Text("jan nov"));
        EXPECT_EQ(owners.currentText(), Text("Jan Novák  Aš"));
        EXPECT_EQ(Box(window, 7).text(), Text("Jan Novák"));
        EXPECT_FALSE(owners.view()->isVisible());
    });
}

TEST_F(DogOwnerTest, ABlankThatBeginsNoNameDropsTheListDown) {
    AddDog([&](QWidget& window) {
        auto& owners = Control<QComboBox>(window, "cmbOwners");
        owners.setFocus();
        QTest::keyClick(&owners, Qt::Key_Space);
        EXPECT_TRUE(owners.view()->isVisible());
        owners.hidePopup();
    });
}

TEST_F(DogOwnerTest, AnOrdinaryPhoneAndAddressFitTheirBoxesAndALongNameShowsItsBeginning) {
    const QString phone = Text("+420 603 111 222, 777 123 456");
    const QString address = Text("jaroslava.prochazkova@seznam-adres.cz");
    const QString name = Text("Jaroslava Procházková-Nováková ze Starého Města pod Landštejnem");
    Add("Majitele", {{"Jmeno", name}, {"Telefon", phone}, {"Email", address}});
    AddDog([&](QWidget& window) {
        ChooseOwner(window, (name + Text("  ")).toUtf8());
        for (const int box : {6, 11}) {
            const QLineEdit& field = Box(window, box);
            EXPECT_LT(field.fontMetrics().horizontalAdvance(field.text()) + 8, field.width());
        }
        EXPECT_EQ(Box(window, 7).cursorPosition(), 0);
        EXPECT_TRUE(Box(window, 7).toolTip().contains(name));
        const QPalette palette = Box(window, 7).palette();
        EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text),
                  palette.color(QPalette::Active, QPalette::Text));
    });
}

TEST_F(DogOwnerTest, ANameTypedWithNobodyChosenGivesTheDogNoOwnerAndIsRefused) {
    platform.ExpectMessage(Text("Pes nemá majitele. Vyberte ho v seznamu, nebo ho zadejte po "
                                "stisku tlačítka „Přidat nového“."),
                           MessageAnswer::Ok, MessageIcon::Stop, MessageButtons::Ok,
                           Text("Přidat psa"));
    AddDog([&](QWidget& window) {
        FillIn(window);
        Control<QComboBox>(window, "cmbOwners").setCurrentIndex(-1);
        Press(window, "cmdAddName");
        Press(window, "cmdAddNameCancel");
        QTest::keyClicks(&Box(window, 7), Text("Alena"));
        Press(window, "cmd_OK");
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_EQ(CountDogs(), 0);
    EXPECT_EQ(Column("SELECT ID FROM Majitele").size(), 2u);
}

TEST_F(DogOwnerTest, ANewOwnerIsStoredAndOwnsTheDog) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        TypeOwner(window, "Alena", "0 12 34");
        Press(window, "cmd_OK");
    });
    const auto owner = OwnerByID(std::stoi(Dog("MajitelID")));
    ASSERT_TRUE(owner);
    EXPECT_EQ(owner->Jmeno, Text("Alena"));
    EXPECT_EQ(owner->Prijmeni, Text("Nová"));
    EXPECT_EQ(owner->Ulice, Text("Dlouhá 2"));
    EXPECT_EQ(owner->Mesto, Text("Písek"));
    EXPECT_EQ(owner->PSC, 1234);
    EXPECT_EQ(owner->Telefon, Text("608"));
    EXPECT_EQ(owner->Email, Text("a@b.cz"));
    EXPECT_EQ(Dog("MajitelID"), std::to_string(owner->ID));
    EXPECT_EQ(Dog("PrvniPes"), "-1");
    EXPECT_EQ(OwnersCalled("Alena", "ID").size(), 1u);
}

TEST_F(DogOwnerTest, ANewOwnerMayBearTheNameOfAnother) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        TypeOwner(window, "Petr", "11000");
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(OwnersCalled("Petr", "ID").size(), 2u);
}

// kept: second-owner-without-surname
TEST_F(DogOwnerTest, ANameThatEndsInABlankIsStoredTwiceTheSecondTimeWithoutASurname) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        TypeOwner(window, "Alena ", "110 00");
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(OwnersCalled("Alena ", "Mesto"), (Texts{"Písek", "Písek"}));
    EXPECT_EQ(OwnersCalled("Alena ", "PSC"), (Texts{"11000", "11000"}));
    EXPECT_EQ(OwnersCalled("Alena ", "Prijmeni"), (Texts{"Nová", ""}));
    EXPECT_EQ(Column("SELECT MIN(ID) FROM Majitele WHERE Jmeno = 'Alena '"),
              Texts{Dog("MajitelID")});
}

TEST_F(DogOwnerTest, ANameWithAnApostropheIsAName) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        TypeOwner(window, "D'Arc", "");
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(OwnerByID(std::stoi(Dog("MajitelID")))->Jmeno, Text("D'Arc"));
    EXPECT_EQ(OwnersNamed(Text("D'Arc")).size(), 1u);
}

TEST_F(DogOwnerTest, AMissingNameIsRefusedEvenWithANewOwner) {
    platform.ExpectMessage(Text("Jméno  majitele musí být vyplněno"), MessageAnswer::Ok,
                           MessageIcon::Stop, MessageButtons::Ok, Text("Přidat psa"));
    AddDog([&](QWidget& window) {
        FillIn(window);
        TypeOwner(window, "", "11000");
        Press(window, "cmd_OK");
        EXPECT_TRUE(window.isVisible());
    });
    EXPECT_EQ(CountDogs(), 0);
    EXPECT_EQ(Column("SELECT ID FROM Majitele").size(), 2u);
}

TEST_F(DogOwnerTest, AWrongPostCodeIsRefusedAndStaysCleaned) {
    const struct {
        const char* typed;
        const char* cleaned;
    } kCases[] = {{"12 3", "123"}, {"1234567", "1234567"}, {"1100a", "1100a"}, {"00", "00"}};
    for (const auto& [typed, cleaned] : kCases) {
        platform.ExpectMessage(Text("Chyba v zadání PSČ"), MessageAnswer::Ok, MessageIcon::Stop,
                               MessageButtons::Ok, Text("Přidat psa"));
        AddDog([&, code = typed, expected = cleaned](QWidget& window) {
            FillIn(window);
            TypeOwner(window, "Alena", code);
            Press(window, "cmd_OK");
            EXPECT_TRUE(window.isVisible());
            EXPECT_EQ(Box(window, 9).text(), Text(expected));
        });
    }
    EXPECT_EQ(CountDogs(), 0);
}

TEST_F(DogOwnerTest, NoPostCodeIsZero) {
    for (const char* typed : {"", "   ", "0"}) {
        AddDog([&](QWidget& window) {
            FillIn(window);
            TypeOwner(window, "Alena", typed);
            Press(window, "cmd_OK");
        });
        EXPECT_EQ(OwnersCalled("Alena", "PSC").back(), "0") << typed;
    }
}

TEST_F(DogOwnerTest, ThePostCodeOfAKnownOwnerIsCheckedAndNeverStored) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        Press(window, "cmdAddName");
        Press(window, "cmdAddNameCancel");
        Box(window, 9).setText(Text("999 99"));
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(OwnerByID(petr)->PSC, 76001);
    EXPECT_EQ(Dog("MajitelID"), std::to_string(petr));
}

TEST_F(DogOwnerTest, ANameTypedOverAKnownOwnersIsAddedButTheDogStaysWithTheKnownOne) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        Press(window, "cmdAddName");
        Press(window, "cmdAddNameCancel");
        Box(window, 7).setText(Text("Alena"));
        Press(window, "cmd_OK");
    });
    EXPECT_EQ(OwnersCalled("Alena", "Mesto"), Texts{"Zlín"});
    EXPECT_EQ(OwnersCalled("Alena", "Prijmeni"), Texts{""});
    EXPECT_EQ(Dog("MajitelID"), std::to_string(petr));
}

TEST_F(DogOwnerTest, ABlankMayDecideBetweenTwoNamesOfOneBeginning) {
    for (const char* name : {"Ota Adam", "Otakar"})
        Add("Majitele", {{"Jmeno", Text(name)}, {"Mesto", Text("Aš")}});
    AddDog([&](QWidget& window) {
        ChooseOwner(window, "Ota Adam  Aš");
        auto& owners = Control<QComboBox>(window, "cmbOwners");
        owners.setFocus();
        QTest::keyClicks(&owners, Text("ota"));
        EXPECT_EQ(owners.currentText(), Text("Otakar  Aš")) << "the next one, as in every list";
        QTest::keyClick(&owners, Qt::Key_Space);
        EXPECT_EQ(owners.currentText(), Text("Ota Adam  Aš"));
        EXPECT_EQ(Box(window, 7).text(), Text("Ota Adam")) << "the boxes follow";
    });
}

} // namespace
} // namespace lorvo::test
