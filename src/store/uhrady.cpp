#include "store/uhrady.h"

#include "store/data_module.h"
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
    payment.Uhrada = row.Field("Uhrada").ToInt();
    payment.Ucet = row.Field("Ucet").ToText();
    payment.Printed = row.Field("Printed").ToBool();
    return payment;
}

} // namespace

std::optional<Uhrady> PaymentByID(int uhradaID) {
    return ReadFirst(Table(), "SELECT * FROM Uhrady WHERE ID = " + Number(uhradaID), ReadUhrady);
}

Currency PaidForDog(int psiID) {
    return ReadScalar(Table(), "SELECT SUM (Kc) FROM Uhrady WHERE ID_Psa = " + Number(psiID))
        .ToCurrency();
}

} // namespace lorvo
