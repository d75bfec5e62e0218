#include "office/cards/owner_card.h"

#include "platform/values/errors.h"

#include "office/cards/card_test.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class OwnerCardTest : public CardTest {
  protected:
    OwnerCardTest() { AddBreedsAndOwner(); }

    OwnerCard card;
};

TEST_F(OwnerCardTest, FillsTheLinesOfTheOwner) {
    FillOwnerLines(card, 7);
    EXPECT_EQ(card.title, u"Jana Malá"_s);
    EXPECT_EQ(card.Jmeno, u"Jana Malá"_s);
    EXPECT_EQ(card.Ulice, u"Dlouhá 5"_s);
    EXPECT_EQ(card.PSC, u"110 00"_s);
    EXPECT_EQ(card.Mesto, u"Praha"_s);
    EXPECT_EQ(card.Telefon, u"603 111 222"_s);
    EXPECT_EQ(card.Email, u"jana@psi.cz"_s);
    EXPECT_THROW(FillOwnerLines(card, 8), StoreError);
}

TEST_F(OwnerCardTest, ListsTheDogsWithFeesInPlainNumbers) {
    AddShow(1, "Hlavní výstava", 300);
    Run("INSERT INTO Souteze (ID, Nazev, Cena) VALUES (1, 'Šampion', 1500000), "
        "(2, 'Dvojice', 505000)");
    AddDog(3, "Bára");
    AddDog(4, "Alík");
    Run("UPDATE Psi SET PohlaviPes = -1, PrvniPes = -1, PrvniUzaverka = -1, Poznamka = 'kouše' "
        "WHERE ID = 4");
    Enter(3, 1);
    Enter(4, 1);
    Compete(3, 1);
    Compete(3, 2);
    Pay(3, 1000);
    Pay(4, 400);
    FillOwnerDogs(card, 7);
    ASSERT_EQ(card.dogs.size(), 2U);
    const OwnerDogLine& male = card.dogs[0];
    EXPECT_EQ(male.key, u"P4"_s);
    EXPECT_EQ(male.tag, u"4"_s);
    EXPECT_EQ(male.name, (InkedText{u"Alík"_s, QColor(0, 0, 255), u"pes"_s}));
    EXPECT_EQ(male.show, u"Hlavní výstava"_s);
    EXPECT_EQ(male.closing, u"I"_s);
    EXPECT_EQ(male.firstDog, u"Ano"_s);
    EXPECT_EQ(male.competitions, QString());
    EXPECT_EQ(male.price, u"350 Kč"_s);
    EXPECT_EQ(male.paid, u"400 Kč"_s);
    EXPECT_EQ(male.balance, (InkedText{u"50 Kč"_s, QColor(0, 255, 0)}));
    EXPECT_EQ(male.note, u"kouše"_s);
    const OwnerDogLine& bitch = card.dogs[1];
    EXPECT_EQ(bitch.name, (InkedText{u"Bára"_s, QColor(255, 0, 0), u"fena"_s}));
    EXPECT_EQ(bitch.closing, u"II"_s);
    EXPECT_EQ(bitch.firstDog, QString());
    EXPECT_EQ(bitch.competitions, u"Dvojice, Šampion"_s);
    EXPECT_EQ(bitch.price, u"1549,5 Kč"_s);
    EXPECT_EQ(bitch.balance, (InkedText{u"-549,5 Kč"_s, QColor(255, 0, 0)}));
    EXPECT_EQ(card.price, u"1899,5 Kč"_s);
    EXPECT_EQ(card.paid, u"1400 Kč"_s);
    EXPECT_EQ(card.balance, (InkedText{u"-499,5 Kč"_s, QColor(255, 0, 0)}));
    EXPECT_EQ(card.dogCount, u"2"_s);
    EXPECT_EQ(Module().CurrentDogID, 3);
}

TEST_F(OwnerCardTest, SubtractsTheFeesOfAllShows) {
    AddDogInTwoShows();
    FillOwnerDogs(card, 7);
    EXPECT_EQ(card.dogs[0].show, u"První"_s);
    EXPECT_EQ(card.dogs[0].price, u"500 Kč"_s);
    EXPECT_EQ(card.dogs[0].balance.text, u"-500 Kč"_s);
}

TEST_F(OwnerCardTest, ADogInNoShowHasNoPriceButOwesItsCompetitions) {
    Run("INSERT INTO Souteze (ID, Nazev, Cena) VALUES (1, 'Šampion', 1500000), (2, 'Nic', NULL)");
    AddDog(3, "Alík");
    Compete(3, 1);
    Compete(3, 2);
    FillOwnerDogs(card, 7);
    EXPECT_EQ(card.dogs[0].show, QString());
    EXPECT_EQ(card.dogs[0].price, QString());
    EXPECT_EQ(card.dogs[0].competitions, u"Nic, Šampion"_s);
    EXPECT_EQ(card.dogs[0].balance.text, u"-150 Kč"_s);
    EXPECT_EQ(card.price, u"150 Kč"_s);
}

TEST_F(OwnerCardTest, TheSpecialBreedPaysFromTheColumnOfItsClassHere) {
    AddShow(1, "Hlavní výstava", 300);
    AddDog(5, "Rolf", 949, 3);
    Enter(5, 1);
    FillOwnerDogs(card, 7);
    EXPECT_EQ(card.dogs[0].price, u"1329 Kč"_s);
}

TEST_F(OwnerCardTest, AnOwnerWithoutDogsHasTotalsOfZeroInTheDefaultColour) {
    Module().CurrentDogID = 55;
    FillOwnerDogs(card, 7);
    EXPECT_TRUE(card.dogs.empty());
    EXPECT_EQ(card.price, u"0 Kč"_s);
    EXPECT_EQ(card.balance, (InkedText{u"0 Kč"_s, std::nullopt}));
    EXPECT_EQ(card.dogCount, u"0"_s);
    EXPECT_EQ(Module().CurrentDogID, 55);
}

TEST_F(OwnerCardTest, AMissingFeeFails) {
    Run("INSERT INTO Vystavy (ID, Nazev) VALUES (1, 'Nová')");
    AddDog(3, "Alík");
    Enter(3, 1);
    EXPECT_THROW(FillOwnerDogs(card, 7), StoreError);
    EXPECT_EQ(Module().CurrentDogID, 3);
}

} // namespace
} // namespace lorvo
