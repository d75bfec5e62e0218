#include "office/payments/conversion.h"

namespace lorvo {

Currency InMainCurrency(Currency amount, const Meny& currency) {
    return currency.Kurs * amount;
}

void SetPaid(Uhrady& payment, Currency amount, const Meny& currency) {
    payment.Castka = amount;
    payment.Mena = currency.ID;
    payment.Kurs = currency.Kurs;
    payment.Kc = InMainCurrency(amount, currency);
}

} // namespace lorvo
