#pragma once
// Uhrady: the payments, each booked on one dog. Every routine raises StoreError when the store
// refuses.

#include "platform/values/date_value.h"
#include "platform/values/money.h"

#include <QString>
#include <optional>
#include <unordered_map>
#include <vector>

namespace lorvo {

/// Null amounts and other numbers read as 0, a Null Ucet as empty, a Null Printed as false; a Null
/// Uhrada is no way of payment.
struct Uhrady {
    int ID = 0;
    int ID_Psa = 0;
    std::optional<DateValue> Datum;
    Currency Castka; ///< as paid
    int Mena = 0;
    Currency Kurs;             ///< the currency's rate when the payment was made
    Currency Kc;               ///< Castka in the main currency
    std::optional<int> Uhrada; ///< way of payment; nullopt for Null
    QString Ucet;
    bool Printed = false;
};

/// A payment with its dog and owner, for the overview and the report of all payments.
struct PaymentRow {
    int UID = 0; ///< ID of the payment
    int ID_Psa = 0;
    bool Printed = false;
    Currency Castka;
    QString Ucet;
    int Mena = 0;
    std::optional<DateValue> Datum;
    Currency Kc;
    std::optional<int> Uhrada; ///< nullopt for Null
    QString Jmeno;             ///< the dog's
    QString ChovnaStanice;     ///< the dog's
    int MajitelID = 0;
    QString MajX; ///< surname, name and town of the owner; empty when one of them is Null
};

/// Sum of Kc over the dog's payments; 0 when there are none.
Currency PaidForDog(int psiID);
/// The same for all dogs that have a payment, by the dog's ID.
std::unordered_map<int, Currency> PaidByDog();
/// Payments for a dog by Datum, the oldest first.
std::vector<Uhrady> PaymentsOfDog(int psiID);
/// All payments whose dog and owner exist, by MajitelID.
std::vector<PaymentRow> PaymentsWithOwners();
/// Ucet of each payment for the owner's dogs that isn't Null, repetitions included.
std::vector<QString> AccountsOfOwner(int majitelID);
int CountPayments();
int CountPaymentsInCurrency(int menaID);
/// Payments whose Ucet is neither Null nor empty.
int CountPaymentsWithAccount();

/// Stores a new payment and returns its ID. Printed is left at false; payment.ID is not looked at.
int InsertPayment(const Uhrady& payment);
void SetPaymentPrinted(int uhradaID, bool printed);
/// Sets Printed on every payment, row by row.
void MarkAllPaymentsPrinted();
/// Empties Ucet of every payment, row by row.
void EmptyAccounts();
void DeletePayment(int uhradaID);
void DeleteAllPayments();

} // namespace lorvo
