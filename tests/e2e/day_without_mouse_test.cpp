// A show from the delivered database to the printed catalogue by the keyboard alone.

#include "e2e/desk_fixture.h"
#include "store/kruhy.h"
#include "store/meny.h"
#include "store/ostatni.h"
#include "store/plemena.h"
#include "store/psi.h"
#include "store/psi_ve_vystavach.h"
#include "store/uhrady.h"
#include "store/vystavy.h"
#include "support/document_parts.h"

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class DayWithoutMouse : public DeskTest {
  protected:
    DayWithoutMouse() : DeskTest(DateValue::FromCalendar(2027, 3, 1)) {}

    void SettleDatesAndCurrency();
    void SettleFees();
    void AddRing();
    void PutBreedInRing();
    void EnterDogOfNewOwner();
    void EnterDogOfKnownOwner();
    void EnterInShow();
    void TakePayment();
    void NumberDogs();
    void PrintCatalogue();
    void ExpectOnePayment();

    Clerk clerk;
};

void DayWithoutMouse::SettleDatesAndCurrency() {
    clerk.Alt(u"SETTINGS"_s).Press(Qt::Key_Tab, Qt::ControlModifier);
    clerk.Press(Qt::Key_F10).Press(Qt::Key_Return);
    clerk.TabTo(u"txtEditCurr(0)"_s).Type(u"Koruna česká"_s);
    clerk.TabTo(u"txtEditCurr(1)"_s).Type(u"Kč"_s).Press(Qt::Key_Return).Alt(u"cmdOK"_s).Work();
    clerk.Alt(u"SETTINGS"_s).TabTo(u"dtMeeting"_s).Type(u"15.5.2027"_s);
    clerk.TabTo(u"dtPrvniUzaverka"_s).Type(u"1.4.2027"_s);
    clerk.TabTo(u"dtDruhaUzaverka"_s).Type(u"20.4.2027"_s).Alt(u"cmdOK"_s).Work();
}

void DayWithoutMouse::SettleFees() {
    clerk.Alt(u"TABLES"_s).Choose(u"Výstavy"_s);
    clerk.Press(Qt::Key_Home).Press(Qt::Key_Return);
    clerk.TabTo(u"txtPrice1(4)"_s).Type(u"600"_s);
    clerk.TabTo(u"txtPrice1(13)"_s).Type(u"450"_s).Press(Qt::Key_Return);
    clerk.Alt(u"cmdOK"_s).Work();
}

void DayWithoutMouse::AddRing() {
    clerk.Alt(u"ADD"_s)
        .Press(Qt::Key_K)
        .Await(u"tvwMain.editor"_s)
        .Type(u"Kruh A"_s)
        .Press(Qt::Key_Return)
        .Work();
}

void DayWithoutMouse::PutBreedInRing() {
    clerk.Alt(u"TABLES"_s).Choose(u"Seznam plemen"_s);
    clerk.TabTo(u"tvwPlemena"_s).Press(Qt::Key_Home).Press(Qt::Key_Space);
    clerk.Press(Qt::Key_F10, Qt::ShiftModifier).Choose(u"Zařadit do kruhu"_s);
    clerk.Choose(u"Kruh A"_s).Press(Qt::Key_F10, Qt::ShiftModifier);
    clerk.Choose(u"Přejít na plemeno ve stromečku"_s).Work();
}

void DayWithoutMouse::EnterDogOfNewOwner() {
    clerk.Alt(u"ADD"_s).Press(Qt::Key_S);
    clerk.Type(u"Alík"_s).TabTo(u"dtBorn"_s).Type(u"3.2.2024"_s);
    clerk.TabTo(u"optClasses(4)"_s).Press(Qt::Key_Space).Alt(u"cmdAddName"_s);
    clerk.Type(u"Jana Malá"_s).TabTo(u"txtbox(8)"_s).Type(u"Lesní 1"_s);
    clerk.TabTo(u"txtbox(9)"_s).Type(u"28002"_s).TabTo(u"txtbox(10)"_s).Type(u"Kolín"_s);
    clerk.Press(Qt::Key_Return).Work();
}

void DayWithoutMouse::EnterDogOfKnownOwner() {
    clerk.Alt(u"ADD"_s).Press(Qt::Key_S);
    clerk.Type(u"Bára"_s).Alt(u"optGender(1)"_s).TabTo(u"dtBorn"_s).Type(u"3.2.2024"_s);
    clerk.TabTo(u"optClasses(4)"_s).Press(Qt::Key_Space).TabTo(u"cmbOwners"_s).Type(u"Jana"_s);
    clerk.Press(Qt::Key_Return).Work();
}

void DayWithoutMouse::EnterInShow() {
    clerk.TabTo(u"lvwSouteze"_s).Press(Qt::Key_Home).Press(Qt::Key_Space).Work();
}

void DayWithoutMouse::TakePayment() {
    clerk.Alt(u"lblNovaPlatba"_s).TabTo(u"txtCastka"_s).Type(u"1050"_s).Press(Qt::Key_Return);
    clerk.Work();
}

void DayWithoutMouse::NumberDogs() {
    clerk.Alt(u"SETTINGS"_s).Alt(u"cmdGenerateNumbers"_s).Press(Qt::Key_Return);
    clerk.Press(Qt::Key_Return).Work();
}

void DayWithoutMouse::PrintCatalogue() {
    clerk.Alt(u"EXPORT"_s).Choose(u"Katalog"_s).Alt(u"cmdOK"_s);
    clerk.Press(Qt::Key_Escape).Work();
}

/// Of the dog on show, with all that a payment holds.
void DayWithoutMouse::ExpectOnePayment() {
    ASSERT_EQ(CountPayments(), 1);
    const std::vector<Uhrady> payments = PaymentsOfDog(Module().CurrentDogID);
    ASSERT_EQ(payments.size(), 1u);
    EXPECT_EQ(payments.front().Castka, Currency::FromUnits(1050));
    EXPECT_EQ(payments.front().Kc, Currency::FromUnits(1050));
    EXPECT_EQ(payments.front().Mena, MainCurrencies().front().ID);
    ASSERT_TRUE(payments.front().Datum);
    EXPECT_EQ(*payments.front().Datum, DateValue::FromCalendar(2027, 3, 1));
    EXPECT_EQ(payments.front().Uhrada, 0) << "by transfer, as the window opens";
}

TEST_F(DayWithoutMouse, FromTheDeliveredDatabaseToThePrintedCatalogue) {
    Start();
    SettleDatesAndCurrency();
    EXPECT_EQ(Module().MainCurrency, u"Kč"_s);
    EXPECT_EQ(ShowWideValues()->DatumVystavy, DateValue::FromCalendar(2027, 5, 15));
    SettleFees();
    EXPECT_EQ(ShowFees(Shows().front().ID)[4], Currency::FromUnits(600));
    AddRing();
    ASSERT_EQ(Rings().size(), 1u);
    EXPECT_EQ(Rings().front().Nazev, u"Kruh A"_s);
    PutBreedInRing();
    EnterDogOfNewOwner();
    EnterInShow();
    EnterDogOfKnownOwner();
    EnterInShow();
    TakePayment();
    NumberDogs();
    PrintCatalogue();
    ExpectOnePayment();

    ASSERT_EQ(recording.openedFiles.size(), 1);
    const QStringList catalogue = ParagraphsOf(recording.openedFiles.front());
    EXPECT_TRUE(catalogue.join(u'\n').contains(u"Alík"_s)) << catalogue.join(u'\n').toStdString();
    const std::vector<Psi> dogs = DogsByBreed();
    ASSERT_EQ(dogs.size(), 2u);
    for (const Psi& dog : dogs) {
        EXPECT_GT(dog.Cislo.value_or(0), 0) << dog.Jmeno.toStdString();
        EXPECT_EQ(dog.MajitelID, dogs.front().MajitelID) << "one owner, chosen for the second dog";
        EXPECT_EQ(BreedByID(dog.PlemenoID)->ID_Kruhu, Rings().front().ID);
        EXPECT_EQ(ShowsOfDog(dog.ID), std::vector{Shows().front().ID});
    }
}

} // namespace
} // namespace lorvo::test
