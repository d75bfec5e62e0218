#include "store/uhrady.h"

#include "store/routines_fixture.h"

namespace lorvo::test {

namespace {

class UhradyTest : public RoutinesTest {
  protected:
    static int AddPayment(int psiID, int kc, Assignments fields = {}) {
        fields.emplace_back("ID_Psa", psiID);
        fields.emplace_back("Kc", Currency::FromUnits(kc));
        return Add("Uhrady", fields);
    }
};

TEST_F(UhradyTest, AStoredPaymentReadsBackWholeAndIsNotPrinted) {
    Uhrady payment;
    payment.ID_Psa = 4;
    payment.Datum = DateValue::FromCalendar(2005, 5, 14).WithSecondOfDay(3661);
    payment.Castka = Currency::FromUnits(20);
    payment.Mena = 2;
    payment.Kurs = Currency::FromRaw(301234);
    payment.Kc = payment.Castka * payment.Kurs;
    payment.Uhrada = 1;
    payment.Ucet = Text("1'2/0100");
    payment.Printed = true;
    InsertPayment(payment);
    const std::vector<Uhrady> stored = PaymentsOfDog(4);
    ASSERT_EQ(stored.size(), 1u);
    const Uhrady& read = stored.front();
    EXPECT_EQ(read.ID_Psa, 4);
    EXPECT_EQ(read.Datum, payment.Datum);
    EXPECT_EQ(read.Castka, payment.Castka);
    EXPECT_EQ(read.Mena, 2);
    EXPECT_EQ(read.Kurs, payment.Kurs);
    EXPECT_EQ(read.Kc, payment.Kc);
    EXPECT_EQ(read.Uhrada, 1);
    EXPECT_EQ(read.Ucet, payment.Ucet);
    EXPECT_FALSE(read.Printed);
}

TEST_F(UhradyTest, NothingPaidIsZero) {
    EXPECT_EQ(PaidForDog(1), Currency());
    Add("Uhrady", {{"ID_Psa", 1}});
    EXPECT_EQ(PaidForDog(1), Currency());
    EXPECT_EQ(PaidByDog().at(1), Currency());
}

TEST_F(UhradyTest, SumsAreExactAndHoldAgainstEachOther) {
    for (int i = 0; i < 3; ++i)
        Add("Uhrady", {{"ID_Psa", 1}, {"Kc", Currency::FromRaw(1001)}});
    AddPayment(2, 500);
    AddPayment(2, -700);
    EXPECT_EQ(PaidForDog(1), Currency::FromRaw(3003));
    const auto paid = PaidByDog();
    EXPECT_EQ(paid.size(), 2u);
    for (const auto& [psiID, sum] : paid)
        EXPECT_EQ(sum, PaidForDog(psiID));
}

TEST_F(UhradyTest, PaymentsOfADogComeByDateThenByID) {
    const DateValue day = DateValue::FromCalendar(2005, 3, 1);
    AddPayment(1, 1, {{"Datum", day.PlusDays(1)}});
    AddPayment(1, 2, {{"Datum", day.WithSecondOfDay(50)}});
    AddPayment(1, 3, {{"Datum", day}});
    AddPayment(1, 4, {{"Datum", day}});
    AddPayment(2, 5, {{"Datum", day}});
    Numbers amounts;
    for (const Uhrady& payment : PaymentsOfDog(1))
        amounts.push_back(static_cast<int>(payment.Kc.Raw() / Currency::kScale));
    EXPECT_EQ(amounts, (Numbers{3, 4, 2, 1}));
}

TEST_F(UhradyTest, TheOverviewJoinsDogAndOwnerAndDropsOrphans) {
    const int novak = Add(
        "Majitele", {{"Jmeno", Text("Jan")}, {"Prijmeni", Text("Novák")}, {"Mesto", Text("Zlín")}});
    const int bez = Add("Majitele", {{"Jmeno", Text("Eva")}, {"Mesto", Text("Brno")}});
    const int evin =
        Add("Psi", {{"Jmeno", Text("Ťapka")}, {"MajitelID", bez}, {"ChovnaStanice", Text("z L")}});
    const int rek = Add("Psi", {{"Jmeno", Text("Rek")}, {"MajitelID", novak}});
    const int bezMajitele = Add("Psi", {{"MajitelID", bez + 1}});
    AddPayment(evin, 1, {{"Castka", Currency::FromUnits(9)}, {"Mena", 3}, {"Uhrada", 2}});
    AddPayment(bezMajitele, 2);
    AddPayment(999, 3);
    const int UID = AddPayment(rek, 4, {{"Printed", true}, {"Ucet", Text("12'")}});
    const std::vector<PaymentRow> rows = PaymentsWithOwners();
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].UID, UID);
    EXPECT_EQ(rows[0].ID_Psa, rek);
    EXPECT_EQ(rows[0].Jmeno, u"Rek");
    EXPECT_EQ(rows[0].MajX, Text("Novák Jan, Zlín"));
    EXPECT_EQ(rows[0].MajitelID, novak);
    EXPECT_TRUE(rows[0].Printed);
    EXPECT_EQ(rows[0].Ucet, u"12'");
    EXPECT_FALSE(rows[0].Datum);
    EXPECT_TRUE(rows[1].MajX.isEmpty());
    EXPECT_EQ(rows[1].ChovnaStanice, u"z L");
    EXPECT_EQ(rows[1].Castka, Currency::FromUnits(9));
    EXPECT_EQ(rows[1].Kc, Currency::FromUnits(1));
    EXPECT_EQ(rows[1].Mena, 3);
    EXPECT_EQ(rows[1].Uhrada, 2);
    EXPECT_FALSE(rows[1].Printed);
}

TEST_F(UhradyTest, AccountsOfAnOwnerComeFromAllItsDogs) {
    const int first = Add("Psi", {{"MajitelID", 1}});
    const int second = Add("Psi", {{"MajitelID", 1}});
    const int other = Add("Psi", {{"MajitelID", 2}});
    AddPayment(second, 1, {{"Ucet", Text("22")}});
    AddPayment(first, 1, {{"Ucet", Text("11")}});
    AddPayment(first, 1);
    AddPayment(other, 1, {{"Ucet", Text("33")}});
    AddPayment(first, 1, {{"Ucet", Text("22")}});
    EXPECT_EQ(ToTexts(AccountsOfOwner(1)), (Texts{"22", "11", "22"}));
}

TEST_F(UhradyTest, PaymentsAreMarkedCountedAndDeleted) {
    const int first = AddPayment(1, 1, {{"Mena", 1}});
    AddPayment(2, 1, {{"Mena", 1}});
    AddPayment(3, 1, {{"Mena", 2}});
    EXPECT_EQ(CountPayments(), 3);
    EXPECT_EQ(CountPaymentsInCurrency(1), 2);
    SetPaymentPrinted(first, true);
    EXPECT_EQ(Column("SELECT Printed FROM Uhrady"), (Texts{"-1", "0", "0"}));
    MarkAllPaymentsPrinted();
    SetPaymentPrinted(first, false);
    EXPECT_EQ(Column("SELECT Printed FROM Uhrady"), (Texts{"0", "-1", "-1"}));
    DeletePayment(first);
    EXPECT_EQ(CountPayments(), 2);
    DeleteAllPayments();
    EXPECT_EQ(CountPayments(), 0);
}

} // namespace

} // namespace lorvo::test
