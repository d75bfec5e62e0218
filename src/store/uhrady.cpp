#include "store/uhrady.h"

#include "store/placed_rows.h"
#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsUhrady;
}

Uhrady ReadUhrady(const RecordSet& row) {
    Uhrady payment;
    payment.ID = row.Field("ID").ToInt();
    payment.ID_Psa = row.Field("ID_Psa").ToInt();
    payment.Datum = ToOptionalDate(row.Field("Datum"));
    payment.Castka = row.Field("Castka").ToCurrency();
    payment.Mena = row.Field("Mena").ToInt();
    payment.Kurs = row.Field("Kurs").ToCurrency();
    payment.Kc = row.Field("Kc").ToCurrency();
    payment.Uhrada = ToOptionalInt(row.Field("Uhrada"));
    payment.Ucet = row.Field("Ucet").ToText();
    payment.Printed = row.Field("Printed").ToBool();
    return payment;
}

constexpr const char* kWithOwners =
    "SELECT Uhrady.ID AS UID, Uhrady.ID_Psa, Uhrady.Printed, Uhrady.Castka, Uhrady.Ucet, "
    "Uhrady.Mena, Uhrady.Datum, Uhrady.Kc, Uhrady.Uhrada, Psi.ID, Psi.Jmeno, Psi.ChovnaStanice, "
    "Psi.MajitelID, Majitele.Prijmeni + ' ' + Majitele.Jmeno + ', ' + Majitele.Mesto AS MajX, "
    "Majitele.ID FROM Uhrady, Psi, Majitele WHERE Uhrady.ID_Psa = Psi.ID AND "
    "Psi.MajitelID = Majitele.ID";

PaymentRow ReadPaymentRow(const Query& row) {
    PaymentRow payment;
    payment.UID = row.Int(0);
    payment.ID_Psa = row.Int(1);
    payment.Printed = row.Bool(2);
    payment.Castka = row.Amount(3);
    payment.Ucet = row.Text(4);
    payment.Mena = row.Int(5);
    if (!row.IsNull(6))
        payment.Datum = row.Date(6);
    payment.Kc = row.Amount(7);
    if (!row.IsNull(8))
        payment.Uhrada = row.Int(8);
    payment.Jmeno = row.Text(10);
    payment.ChovnaStanice = row.Text(11);
    payment.MajitelID = row.Int(12);
    return payment;
}

} // namespace

Currency PaidForDog(int psiID) {
    return ReadScalar(Table(), "SELECT SUM (Kc) FROM Uhrady WHERE ID_Psa = " + Number(psiID))
        .ToCurrency();
}

std::unordered_map<int, Currency> PaidByDog() {
    std::unordered_map<int, Currency> paid;
    for (Query query(TheDataModule().Conn1, "SELECT ID_Psa, Kc FROM Uhrady"); query.Next();)
        paid[query.Int(0)] += query.Amount(1);
    return paid;
}

std::vector<Uhrady> PaymentsOfDog(int psiID) {
    return ReadRows(Table(),
                    "SELECT * FROM Uhrady WHERE ID_Psa = " + Number(psiID) + " ORDER BY Datum ASC",
                    ReadUhrady);
}

std::vector<PaymentRow> PaymentsWithOwners() {
    std::vector<PaymentRow> payments;
    std::vector<int> owners;
    std::unordered_map<int, QString> names; // shared by the payments of an owner
    for (Query rows(TheDataModule().Conn1, kWithOwners); rows.Next();) {
        PaymentRow payment = ReadPaymentRow(rows);
        QString& name = names[payment.MajitelID];
        if (name.isNull())
            name = rows.Text(13);
        payment.MajX = name;
        owners.push_back(payment.MajitelID);
        payments.push_back(std::move(payment));
    }
    return InOrder(std::move(payments), owners);
}

std::vector<QString> AccountsOfOwner(int majitelID) {
    return ReadRows(Table(),
                    "SELECT Uhrady.ID_Psa, Uhrady.Ucet, Psi.ID, Psi.MajitelID FROM Uhrady, Psi "
                    "WHERE Psi.MajitelID = " +
                        Number(majitelID) +
                        " AND Uhrady.ID_Psa = Psi.ID AND NOT( Uhrady.Ucet IS NULL)",
                    [](const RecordSet& row) { return row.Field(1).ToText(); });
}

int CountPayments() {
    return ReadCount(Table(), "SELECT COUNT(*) FROM Uhrady");
}

int CountPaymentsInCurrency(int menaID) {
    return ReadCount(Table(), "SELECT COUNT(*) FROM Uhrady WHERE Mena = " + Number(menaID));
}

int CountPaymentsWithAccount() {
    return ReadCount(Table(),
                     "SELECT COUNT(*) FROM Uhrady WHERE NOT( Ucet IS NULL) AND Ucet <> ''");
}

int InsertPayment(const Uhrady& payment) {
    return InsertRow(Table(), "Uhrady",
                     {{"Datum", FromOptional(payment.Datum)},
                      {"Castka", payment.Castka},
                      {"Mena", payment.Mena},
                      {"Uhrada", FromOptional(payment.Uhrada)},
                      {"ID_Psa", payment.ID_Psa},
                      {"Kc", payment.Kc},
                      {"Kurs", payment.Kurs},
                      {"Ucet", payment.Ucet}});
}

void SetPaymentPrinted(int uhradaID, bool printed) {
    ChangeRow(Table(), "Uhrady", uhradaID, {{"Printed", printed}});
}

void MarkAllPaymentsPrinted() {
    ChangeRows(Table(), "SELECT Printed FROM Uhrady", {{"Printed", true}});
}

void EmptyAccounts() {
    ChangeRows(Table(), "SELECT Ucet FROM Uhrady", {{"Ucet", QString()}});
}

void DeletePayment(int uhradaID) {
    DeleteRows(Table(), "Uhrady", "ID", uhradaID);
}

void DeleteAllPayments() {
    DeleteAllRows(Table(), "Uhrady");
}

} // namespace lorvo
