#include "office/cards/dog_card.h"

#include "platform/values/errors.h"

#include "office/cards/card_test.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QColor kGreen(0, 192, 0);
const QColor kRed(255, 0, 0);
const QColor kBlue(0, 0, 255);
const QColor kGrey(190, 190, 190);

class DogCardTest : public CardTest {
  protected:
    DogCardTest() { AddBreedsAndOwner(); }

    const DogCard& Fill(int dog) {
        FillDogCard(card, dog);
        return card;
    }
    /// Text of a sub-item in the line with that key.
    QString SubItem(const QString& key, std::size_t number) {
        const CheckLine* line = FindLine(card.shows, key);
        return line ? line->subItems[number - 1].text : u"no line"_s;
    }
    std::optional<QColor> PriceColour(const QString& key) {
        return FindLine(card.shows, key)->subItems[0].colour;
    }
    /// Keys of the ticked lines, parted by blanks.
    static QString Ticked(const CheckLines& lines) {
        QStringList keys;
        for (const CheckLine& line : lines)
            if (line.checked)
                keys << line.key;
        return keys.join(u' ');
    }

    DogCard card;
};

TEST_F(DogCardTest, FillsTheLinesOfOriginAndOwner) {
    Run("INSERT INTO Psi (ID, Jmeno, ChovnaStanice, PlemenoID, MajitelID, PohlaviPes, DatumNar, "
        "Trida, Otec, Matka, PK, Poznamka, Chovatel, PrvniUzaverka, PrvniPes) VALUES (3, 'Alík', "
        "'z Lhoty', 12, 7, -1, '2005-05-14T00:00:00', 5, 'Rek', 'Bára', 'ČLP 12', 'kouše', "
        "'Novák', -1, -1)");
    Fill(3);
    EXPECT_EQ(card.title, u"Alík z Lhoty"_s);
    EXPECT_EQ(card.Plemeno, u"Pudl"_s);
    EXPECT_EQ(card.Pohlavi, (InkedText{u"Pes"_s, kBlue}));
    EXPECT_EQ(card.DatumNar, u"14.5.2005"_s);
    EXPECT_EQ(card.Trida, u"otevřená"_s);
    EXPECT_EQ(card.Poznamka, u"kouše"_s);
    EXPECT_EQ(card.ChovnaStanice, u"z Lhoty"_s);
    EXPECT_EQ(card.PK, u"ČLP 12"_s);
    EXPECT_EQ(card.Otec, u"Rek"_s);
    EXPECT_EQ(card.Matka, u"Bára"_s);
    EXPECT_EQ(card.Chovatel, u"Novák"_s);
    EXPECT_EQ(card.JmenoMajitele, u"Jana Malá"_s);
    EXPECT_EQ(card.MajitelID, 7);
    EXPECT_EQ(card.Ulice, u"Dlouhá 5"_s);
    EXPECT_EQ(card.PSC, u"110 00"_s);
    EXPECT_EQ(card.Mesto, u"Praha"_s);
    EXPECT_EQ(card.Stat, u"CZ"_s);
    EXPECT_EQ(card.Telefon, u"603 111 222"_s);
    EXPECT_EQ(card.Email, u"jana@psi.cz"_s);
    EXPECT_EQ(card.Uzaverka, u"První"_s);
    EXPECT_EQ(card.PrvniPes, u"Ano"_s);
    EXPECT_EQ(Module().CurrentDogID, 3);
    EXPECT_EQ(Module().CurrentOwner, 7);
}

TEST_F(DogCardTest, ABitchOfABreedWithoutCzechName) {
    AddDog(4, "Cita", 13, 8);
    Fill(4);
    EXPECT_EQ(card.Plemeno, u"Barzoi"_s);
    EXPECT_EQ(card.Pohlavi, (InkedText{u"Fena"_s, kRed}));
    EXPECT_EQ(card.DatumNar, QString());
    EXPECT_EQ(card.Uzaverka, u"Druhá"_s);
    EXPECT_EQ(card.PrvniPes, u"Ne"_s);
}

TEST_F(DogCardTest, TheSpecialBreedHasClassNamesOfItsOwn) {
    AddDog(5, "Rolf", 949, 3);
    EXPECT_EQ(Fill(5).Trida, u"dospívajících"_s);
}

TEST_F(DogCardTest, AClassOutsideTheTableEndsTheFillingBehindTheOwner) {
    AddDog(3, "Alík", 12, 5);
    AddDog(6, "Brok", 12, 0);
    AddDog(8, "Cvok", 12, 21);
    Fill(3);
    EXPECT_THROW(Fill(6), Error);
    EXPECT_EQ(card.title, u"Brok z Lhoty"_s);
    EXPECT_EQ(card.Trida, u"otevřená"_s);
    EXPECT_THROW(Fill(8), Error);
}

TEST_F(DogCardTest, ADogInNoShowOwesNothingAndItsPaymentDoesNotCount) {
    AddShow(1, "Hlavní výstava", 300);
    AddDog(3, "Alík");
    Pay(3, 500);
    Fill(3);
    EXPECT_EQ(Ticked(card.shows), QString());
    EXPECT_EQ(SubItem(u"V1"_s, 1), QString());
    EXPECT_EQ(card.CenaCelkem, u" 0,00 Kč"_s);
    EXPECT_EQ(card.Uhrazeno, u" 500,00 Kč"_s);
    EXPECT_EQ(card.Rozdil, (InkedText{u" 0,00 Kč"_s, std::nullopt}));
    EXPECT_EQ(card.balanceWord.text, QString());
}

TEST_F(DogCardTest, AnEnteredShowHasFeeClosingAndFirstDogMark) {
    AddShow(1, "Hlavní výstava", 300);
    AddShow(2, "Klubová", 700);
    AddDog(3, "Alík");
    Enter(3, 2);
    Pay(3, 1000);
    Pay(3, 234);
    Fill(3);
    EXPECT_EQ(Ticked(card.shows), u"V2"_s);
    EXPECT_EQ(SubItem(u"V2"_s, 1), u"1749 Kč"_s);
    EXPECT_EQ(PriceColour(u"V2"_s), std::nullopt);
    EXPECT_EQ(SubItem(u"V2"_s, 2), u"II. uzávěrka"_s);
    EXPECT_EQ(SubItem(u"V2"_s, 3), u"Ne"_s);
    EXPECT_EQ(card.CenaCelkem, u"1 749,00 Kč"_s);
    EXPECT_EQ(card.Uhrazeno, u"1 234,00 Kč"_s);
    EXPECT_EQ(card.Rozdil.text, u"- 515,00 Kč"_s);
    EXPECT_EQ(card.Rozdil.colour, kRed);
    EXPECT_EQ(card.balanceWord, (InkedText{u"Nedoplatek"_s, kRed}));
}

TEST_F(DogCardTest, FirstClosingAndFirstDogHaveColumnsOfTheirOwn) {
    AddShow(1, "Hlavní výstava", 300);
    AddDog(3, "Alík");
    Run("UPDATE Psi SET PrvniUzaverka = -1, PrvniPes = -1");
    Enter(3, 1);
    Fill(3);
    EXPECT_EQ(SubItem(u"V1"_s, 1), u"350 Kč"_s);
    EXPECT_EQ(SubItem(u"V1"_s, 2), u"I. uzávěrka"_s);
    EXPECT_EQ(SubItem(u"V1"_s, 3), u"Ano"_s);
}

TEST_F(DogCardTest, ABalanceIsGreenAboveZeroAndWordlessAtZero) {
    AddShow(1, "Hlavní výstava", 300);
    AddDog(3, "Alík");
    Enter(3, 1);
    Pay(3, 1349);
    Fill(3);
    EXPECT_EQ(card.Rozdil, (InkedText{u" 0,00 Kč"_s, std::nullopt}));
    EXPECT_EQ(card.balanceWord.text, QString());
    Pay(3, 51);
    Fill(3);
    EXPECT_EQ(card.Rozdil, (InkedText{u" 51,00 Kč"_s, kGreen}));
    EXPECT_EQ(card.balanceWord, (InkedText{u"Přeplatek"_s, kGreen}));
}

// kept: last-shows-fee-in-balance
TEST_F(DogCardTest, OfTwoShowsTheBalanceCountsTheLast) {
    AddDogInTwoShows();
    Fill(3);
    EXPECT_EQ(Ticked(card.shows), u"V1 V2"_s);
    EXPECT_EQ(card.Rozdil.text, u"- 200,00 Kč"_s);
    EXPECT_EQ(card.CenaCelkem, u" 200,00 Kč"_s);
}

// kept: adolescents-by-card
TEST_F(DogCardTest, TheSpecialBreedPaysFromItsColumnsButItsIdlePricesDoNot) {
    AddShow(1, "Hlavní výstava", 300);
    AddShow(2, "Klubová", 700);
    AddDog(5, "Rolf", 949, 3);
    AddDog(6, "Jiný");
    Enter(5, 1);
    Enter(6, 2);
    Fill(5);
    EXPECT_EQ(SubItem(u"V1"_s, 1), u"1389 Kč"_s);
    EXPECT_EQ(SubItem(u"V2"_s, 1), u"1729 Kč"_s);
    EXPECT_EQ(PriceColour(u"V2"_s), kGrey);
    EXPECT_EQ(card.CenaCelkem, u"1 389,00 Kč"_s);
}

TEST_F(DogCardTest, AShowThatOnlyThisDogStandsInOrNobodyHasNoIdlePrice) {
    AddShow(1, "Hlavní výstava", 300);
    AddShow(2, "Klubová", 700);
    AddDog(3, "Alík");
    AddDog(4, "Cita");
    Enter(3, 1);
    Enter(4, 1);
    Fill(3);
    EXPECT_EQ(PriceColour(u"V1"_s), std::nullopt);
    EXPECT_EQ(SubItem(u"V2"_s, 1), QString());
}

TEST_F(DogCardTest, AFeeNeverFilledInFailsInTheSumAndStaysBlankAsAnIdlePrice) {
    Run("INSERT INTO Vystavy (ID, Nazev) VALUES (1, 'Nová')");
    AddDog(3, "Alík");
    AddDog(4, "Cita");
    Enter(3, 1);
    EXPECT_THROW(Fill(3), StoreError);
    Fill(4);
    EXPECT_EQ(SubItem(u"V1"_s, 1), u" Kč"_s);
    EXPECT_EQ(PriceColour(u"V1"_s), kGrey);
}

TEST_F(DogCardTest, AClassWithoutAFeeColumnFails) {
    AddShow(1, "Hlavní výstava", 300);
    AddDog(3, "Alík", 12, 10);
    Fill(3);
    Enter(3, 1);
    EXPECT_THROW(Fill(3), StoreError);
}

TEST_F(DogCardTest, AFeeThatNobodyHasFilledFailsBelowTheTickOfItsShow) {
    Run("INSERT INTO Vystavy (ID, Nazev) VALUES (1, 'Hlavní výstava')");
    AddDog(3, "Alík");
    Enter(3, 1);
    Pay(3, 50);
    EXPECT_THROW(Fill(3), StoreError);
    EXPECT_EQ(Ticked(card.shows), u"V1"_s);
    EXPECT_EQ(SubItem(u"V1"_s, 1), u" Kč"_s);
    EXPECT_EQ(card.Uhrazeno, u" 50,00 Kč"_s);
    EXPECT_EQ(card.Rozdil.text, QString());
}

TEST_F(DogCardTest, CompetitionsStandBehindTheShowsByNameAndCountWhenEntered) {
    AddShow(1, "Hlavní výstava", 300);
    Run("INSERT INTO Souteze (ID, Nazev, Cena) VALUES (1, 'Šampion', 1500000), "
        "(2, 'Dvojice', 505000), (3, 'Zdarma', NULL)");
    AddDog(3, "Alík");
    Enter(3, 1);
    Compete(3, 2);
    Compete(3, 3);
    Pay(3, 1349);
    Fill(3);
    ASSERT_EQ(card.shows.size(), 4U);
    EXPECT_EQ(card.shows[0].icon, LineIcon::Show);
    EXPECT_EQ(card.shows[1].key, u"k2"_s);
    EXPECT_EQ(card.shows[1].tag, u"2"_s);
    EXPECT_EQ(card.shows[1].icon, LineIcon::Competition);
    EXPECT_EQ(card.shows[2].text, u"Šampion"_s);
    EXPECT_EQ(Ticked(card.shows), u"V1 k2 k3"_s);
    EXPECT_EQ(SubItem(u"k2"_s, 1), u"50,5 Kč"_s);
    EXPECT_EQ(PriceColour(u"k2"_s), std::nullopt);
    EXPECT_EQ(SubItem(u"k1"_s, 1), u"150 Kč"_s);
    EXPECT_EQ(PriceColour(u"k1"_s), kGrey);
    EXPECT_EQ(SubItem(u"k3"_s, 1), u"0 Kč"_s);
    EXPECT_EQ(card.CenaCelkem, u"1 399,50 Kč"_s);
    EXPECT_EQ(card.Rozdil.text, u"- 50,50 Kč"_s);
}

// kept: unentered-dog-owes-nothing
TEST_F(DogCardTest, CompetitionsOfADogInNoShowAreOwedWhateverWasPaid) {
    Run("INSERT INTO Souteze (ID, Nazev, Cena) VALUES (1, 'Šampion', 1500000)");
    AddDog(3, "Alík");
    Compete(3, 1);
    Pay(3, 1000);
    EXPECT_EQ(Fill(3).Rozdil.text, u"- 150,00 Kč"_s);
    EXPECT_EQ(card.CenaCelkem, u" 150,00 Kč"_s);
}

TEST_F(DogCardTest, AwardsAreListedAndTicked) {
    Run("INSERT INTO Oceneni (ID, Nazev) VALUES (1, 'CAC'), (2, 'BOB')");
    AddDog(3, "Alík");
    Run("INSERT INTO PsiOceneni VALUES (3, 2), (99, 1)");
    Fill(3);
    ASSERT_EQ(card.awards.size(), 2U);
    EXPECT_EQ(card.awards[0].text, u"CAC"_s);
    EXPECT_EQ(Ticked(card.awards), u"C2"_s);
}

TEST_F(DogCardTest, AMissingOwnerBlanksFourLinesAndLeavesThree) {
    AddDog(3, "Alík");
    AddDog(4, "Cita");
    Run("UPDATE Psi SET MajitelID = 88 WHERE ID = 4");
    Fill(3);
    Fill(4);
    EXPECT_EQ(card.JmenoMajitele, QString());
    EXPECT_EQ(card.Ulice, QString());
    EXPECT_EQ(card.PSC, QString());
    EXPECT_EQ(card.Mesto, QString());
    EXPECT_EQ(card.Stat, u"CZ"_s);
    EXPECT_EQ(card.Telefon, u"603 111 222"_s);
    EXPECT_EQ(card.Email, u"jana@psi.cz"_s);
    EXPECT_EQ(Module().CurrentOwner, 88);
}

TEST_F(DogCardTest, NeighboursAreTheNearestNamesInCzechOrder) {
    AddDog(1, "Zora");
    AddDog(2, "Čita");
    AddDog(3, "Cita");
    AddDog(4, "Chrt");
    AddDog(5, "Alík");
    Fill(2);
    EXPECT_EQ(card.previous.key, u"P3"_s);
    EXPECT_EQ(card.previous.name, u"Cita z Lhoty"_s);
    EXPECT_EQ(card.next.key, u"P4"_s);
    Fill(5);
    EXPECT_EQ(card.previous.key, QString());
    EXPECT_EQ(card.next.key, u"P3"_s);
    Fill(1);
    EXPECT_EQ(card.previous.key, u"P4"_s);
    EXPECT_EQ(card.next.key, QString());
}

TEST_F(DogCardTest, OfSeveralNeighboursOfOneNameItIsTheLast) {
    AddDog(1, "Alík");
    AddDog(2, "Bára");
    AddDog(3, "Bára");
    AddDog(4, "Cita");
    Fill(1);
    EXPECT_EQ(card.next.key, u"P3"_s);
    Fill(4);
    EXPECT_EQ(card.previous.key, u"P3"_s);
}

TEST_F(DogCardTest, ADogAloneAndOneOfTheSameFullNameHaveNoNeighbours) {
    AddDog(1, "Alík");
    Fill(1);
    EXPECT_EQ(card.previous.key + card.next.key, QString());
    AddDog(2, "Alík");
    Fill(1);
    EXPECT_EQ(card.previous.key + card.next.key, QString());
}

TEST_F(DogCardTest, ADogThatIsGoneFails) {
    EXPECT_THROW(Fill(404), StoreError);
    EXPECT_EQ(Module().CurrentDogID, 404);
}

} // namespace
} // namespace lorvo
