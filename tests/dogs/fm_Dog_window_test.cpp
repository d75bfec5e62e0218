#include "dogs/dog_editor_fixture.h"
#include "store/ostatni.h"
#include "support/window_walk.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QTest>

namespace lorvo::test {
namespace {

class DogWindowTest : public DogEditorTest {
  protected:
    static std::string OpenClasses(QWidget& window) {
        std::string codes;
        for (int trida = 1; trida <= 10; ++trida)
            if (Class(window, trida).isVisible() && Class(window, trida).isEnabled())
                codes += std::to_string(trida) + " ";
        return codes;
    }
    static QString ClassesCaption(QWidget& window) {
        return Control<QLabel>(window, "Label8").text();
    }
};

TEST_F(DogWindowTest, EveryControlHasItsNameItsCaptionAndItsPlace) {
    AddDog([](QWidget& window) { WalkWindow(window); });
}

TEST_F(DogWindowTest, OKAndStornoAnswerEnterAndEsc) {
    AddDog([&](QWidget& window) {
        EXPECT_TRUE(Control<QPushButton>(window, "cmd_OK").isDefault());
        FillIn(window);
        QTest::keyClick(&Box(window, 0), Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(CountDogs(), 1);
}

TEST_F(DogWindowTest, AgeOpensTheClasses) {
    AddDog([&](QWidget& window) {
        SetBorn(window, 2004, 11, 14);
        EXPECT_EQ(OpenClasses(window), "1 ");
        EXPECT_TRUE(ClassesCaption(window).endsWith(Text("(14.5.2005) =6 měsíců.")));
        SetBorn(window, 2004, 11, 13);
        EXPECT_EQ(OpenClasses(window), "2 ");
        EXPECT_EQ(ClassesCaption(window),
                  Text("Vyberte jednu ze tříd. Třídy jsou dostupné podle věku psa v den výstavy "
                       "(14.5.2005) =7 měsíců."));
        SetBorn(window, 2003, 12, 20);
        EXPECT_EQ(OpenClasses(window), "3 4 5 6 7 ");
        SetBorn(window, 1997, 1, 1);
        EXPECT_EQ(OpenClasses(window), "5 6 7 8 ");
        SetBorn(window, 2005, 6, 1);
        EXPECT_EQ(OpenClasses(window), "");
    });
}

TEST_F(DogWindowTest, ADateThatClosesTheChosenClassTakesOKAway) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        EXPECT_TRUE(IsEnabled(window, "cmd_OK"));
        SetBorn(window, 2005, 6, 1);
        EXPECT_FALSE(Class(window, 5).isChecked());
        EXPECT_FALSE(IsEnabled(window, "cmd_OK"));
        SetBorn(window, 2003, 5, 14);
        EXPECT_FALSE(IsEnabled(window, "cmd_OK"));
    });
}

TEST_F(DogWindowTest, TheGermanShepherdHasItsOwnClasses) {
    breed = kSpecialBreedID;
    AddDog([&](QWidget& window) {
        EXPECT_EQ(Class(window, 1).text(), Text("dorostu"));
        EXPECT_EQ(Class(window, 4).text(), Text("pracovní"));
        EXPECT_TRUE(Class(window, 5).isHidden());
        SetBorn(window, 2004, 11, 14);
        EXPECT_EQ(OpenClasses(window), "1 ");
        SetBorn(window, 2004, 11, 15);
        EXPECT_EQ(OpenClasses(window), "");
    });
}

TEST_F(DogWindowTest, AnyOtherBreedHasTheEightClasses) {
    AddDog([&](QWidget& window) {
        EXPECT_EQ(Class(window, 1).text(), Text("štěňat od 3 do 6 měsíců"));
        EXPECT_EQ(Class(window, 8).text(), Text("veteránů"));
        EXPECT_TRUE(Class(window, 9).isHidden());
        EXPECT_TRUE(Class(window, 10).isHidden());
    });
}

TEST_F(DogWindowTest, AClassNamedForThisRunHasItsButton) {
    Module().ClassNames[8] = Text("čestná & jiná");
    AddDog([&](QWidget& window) {
        EXPECT_FALSE(Class(window, 9).isHidden());
        EXPECT_EQ(Class(window, 9).text(), Text("čestná && jiná"));
    });
}

// kept: show-date-row-by-looking
TEST_F(DogWindowTest, AShowWithoutADateOpensNoClass) {
    TheDataModule().rsrsQuery1.Open("DELETE * FROM Ostatni");
    AddDog([&](QWidget& window) {
        SetBorn(window, 2003, 5, 14);
        EXPECT_EQ(OpenClasses(window), "");
        EXPECT_TRUE(ClassesCaption(window).contains(Text("(30.12.1899) =-")));
    });
    ASSERT_TRUE(ShowWideValues());
    EXPECT_FALSE(ShowWideValues()->DatumVystavy);
}

TEST_F(DogWindowTest, TheListsOfEarlierEntriesHaveEachOnceAndNoEmptyOne) {
    for (const char* kennel : {"z Lhoty", "", "Čertova stráž", "z Lhoty", "Cihelna"})
        StoredDog({{"ChovnaStanice", Text(kennel)}, {"Otec", Text("Argo")}});
    AddDog([&](QWidget& window) {
        auto& kennels = Control<QComboBox>(window, "icStanice");
        ASSERT_EQ(kennels.count(), 3);
        EXPECT_EQ(kennels.itemText(0), Text("Cihelna"));
        EXPECT_EQ(kennels.itemText(1), Text("Čertova stráž"));
        EXPECT_EQ(kennels.itemText(2), Text("z Lhoty"));
        EXPECT_EQ(kennels.currentText(), QString());
        EXPECT_EQ(Control<QComboBox>(window, "icOtec").count(), 1);
        EXPECT_EQ(Control<QComboBox>(window, "icMatka").count(), 0);
    });
}

TEST_F(DogWindowTest, BoxesTakeWhatTheStoreKeeps) {
    AddDog([&](QWidget& window) {
        QTest::keyClicks(&Box(window, 0), QString(60, u'x'));
        EXPECT_EQ(Box(window, 0).text().size(), 50);
        for (const char* combo : {"icOtec", "icMatka"})
            EXPECT_EQ(Control<QComboBox>(window, combo).lineEdit()->maxLength(), 100) << combo;
        EXPECT_EQ(Control<QComboBox>(window, "icStanice").lineEdit()->maxLength(), 150);
        for (const int index : {1, 2, 3})
            EXPECT_EQ(Box(window, index).maxLength(), 150) << index;
    });
}

TEST_F(DogWindowTest, WhatIsTypedKeepsItsLettersBesideStoredTexts) {
    StoredDog({{"ChovnaStanice", Text("z Lhoty")}, {"Otec", Text("rex")}, {"Matka", Text("Bára")}});
    AddDog([&](QWidget& window) {
        const std::pair<const char*, const char*> typed[] = {
            {"icStanice", "Z LHOTY"}, {"icOtec", "REX"}, {"icMatka", "bára"}};
        for (const auto& [name, text] : typed) {
            auto& combo = Control<QComboBox>(window, name);
            combo.setFocus();
            for (const QChar letter : Text(text)) // no key of QTest's own types an á
                QTest::sendKeyEvent(QTest::Click, &combo, Qt::Key_unknown, QString(letter), {});
            QTest::keyClick(&combo, Qt::Key_Tab);
            Box(window, 0).setFocus();
            EXPECT_EQ(combo.currentText(), Text(text));
        }
    });
}

TEST_F(DogWindowTest, ATypedEntryIsOfferedTheNextTime) {
    AddDog([&](QWidget& window) {
        FillIn(window);
        QTest::keyClicks(&Control<QComboBox>(window, "icOtec"), Text("Argo"));
        Press(window, "cmd_OK");
    });
    AddDog([&](QWidget& window) {
        EXPECT_EQ(Control<QComboBox>(window, "icOtec").itemText(0), Text("Argo"));
    });
}

TEST_F(DogWindowTest, TypingOpensNoListOverTheOtherFields) {
    StoredDog({{"Otec", Text("Argo z Lhoty")}});
    AddDog([&](QWidget& window) {
        auto& fathers = Control<QComboBox>(window, "icOtec");
        fathers.setFocus();
        QTest::keyClicks(&fathers, Text("argo"));
        QCoreApplication::processEvents();
        EXPECT_FALSE(QApplication::activePopupWidget());
        EXPECT_EQ(fathers.currentText(), Text("argo"));
    });
}

TEST_F(DogWindowTest, DownOffersWhatBeginsWithTheTypedLetters) {
    StoredDog({{"Otec", Text("Argo z Lhoty")}});
    StoredDog({{"Otec", Text("Brok")}});
    AddDog([&](QWidget& window) {
        auto& fathers = Control<QComboBox>(window, "icOtec");
        fathers.setFocus();
        QTest::keyClicks(&fathers, Text("arg"));
        QTest::keyClick(&fathers, Qt::Key_Down);
        auto* offer = dynamic_cast<QAbstractItemView*>(QApplication::activePopupWidget());
        ASSERT_TRUE(offer);
        EXPECT_EQ(offer->model()->rowCount(), 1);
        EXPECT_EQ(fathers.currentText(), Text("arg"));
        QTest::keyClick(offer, Qt::Key_O);
        EXPECT_EQ(fathers.currentText(), Text("argo"));
        QTest::keyClick(offer, Qt::Key_Down);
        QTest::keyClick(offer, Qt::Key_Return);
        EXPECT_EQ(fathers.currentText(), Text("Argo z Lhoty"));
        EXPECT_FALSE(QApplication::activePopupWidget());
    });
}

TEST_F(DogWindowTest, DownOffersNothingThatIsTypedAlready) {
    StoredDog({{"Otec", Text("Argo")}});
    AddDog([&](QWidget& window) {
        auto& fathers = Control<QComboBox>(window, "icOtec");
        fathers.setFocus();
        QTest::keyClicks(&fathers, Text("Argo"));
        QTest::keyClick(&fathers, Qt::Key_Down);
        EXPECT_FALSE(QApplication::activePopupWidget());
        EXPECT_EQ(fathers.currentText(), Text("Argo"));
    });
}

} // namespace
} // namespace lorvo::test
