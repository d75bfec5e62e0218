#pragma once
// Uhrady: the payments, each booked on one dog. Every routine raises StoreError when the store
// refuses.

#include "platform/values/date_value.h"
#include "platform/values/money.h"

#include <QString>
#include <optional>

namespace lorvo {

/// Null amounts and numbers read as 0, a Null Ucet as empty, a Null Printed as false.
struct Uhrady {
    int ID = 0;
    int ID_Psa = 0;
    std::optional<DateValue> Datum;
    Currency Castka; ///< as paid
    int Mena = 0;
    Currency Kurs;  ///< the currency's rate when the payment was made
    Currency Kc;    ///< Castka in the main currency
    int Uhrada = 0; ///< way of payment
    QString Ucet;
    bool Printed = false;
};

std::optional<Uhrady> PaymentByID(int uhradaID);
/// Sum of Kc over the dog's payments; 0 when there are none.
Currency PaidForDog(int psiID);

} // namespace lorvo
