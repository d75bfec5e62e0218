// Payments: most dogs are paid in full, some in part, some too much, some not at all.

#include "office/fees/ledger.h"
#include "office/payments/conversion.h"
#include "show/show_parts.h"
#include "store/uhrady.h"

namespace lorvo::show {

using namespace Qt::StringLiterals;

namespace {

constexpr int kWaysOfPayment = 3;
constexpr int kPrintedPercent = 30;

Currency AnyAmount(Currency owed, Dice& dice) {
    const int kind = dice.Below(100);
    if (owed.IsZero())
        return Currency::FromUnits(200);
    if (kind < 82)
        return owed;
    if (kind < 92)
        return owed * Currency::FromText("0.5");
    return owed + Currency::FromUnits(50);
}

/// Whole units of another currency, never fewer than one.
Currency InCurrency(Currency amount, const Meny& currency) {
    if (currency.Hlavni)
        return amount;
    return Currency::FromUnits(amount.Raw() / currency.Kurs.Raw() + 1);
}

QString AnyAccount(int way, Dice& dice) {
    if (way == 0)
        return QString::number(dice.Between(100000000, 999999999)) + u"/0800"_s;
    return u"P-"_s + QString::number(dice.Between(10000, 99999));
}

DateValue AnyMoment(DateValue day, Dice& dice) {
    const int daysBefore = dice.Between(0, 90);
    return day.PlusDays(-daysBefore).WithSecondOfDay(dice.Between(8 * 3600, 18 * 3600));
}

} // namespace

void TakePayments(const ShowSize& size, const ShowSetUp& setUp,
                  const std::vector<EnteredOwner>& owners, const std::vector<EnteredDog>& dogs,
                  Dice& dice) {
    const ShowLedger ledger;
    std::vector<EnteredDog> payers = dogs;
    dice.Shuffle(payers);
    payers.resize(static_cast<std::size_t>(size.payments) * 9 / 10);
    for (int i = 0; i < size.payments; ++i) {
        const std::size_t at = static_cast<std::size_t>(i);
        const EnteredDog& dog = at < payers.size() ? payers[at] : dice.Pick(payers);
        const EnteredOwner& owner = owners[static_cast<std::size_t>(dog.owner)];
        const Meny& currency = setUp.currencies[static_cast<std::size_t>(owner.currency)];
        const Currency owed = AccountOf(dog.account, kExhibitorRules, ledger).Owed();
        Uhrady payment;
        payment.ID_Psa = dog.account.ID;
        payment.Datum = AnyMoment(setUp.day, dice);
        SetPaid(payment, InCurrency(AnyAmount(owed, dice), currency), currency);
        const int way = dice.Below(kWaysOfPayment);
        payment.Uhrada = way;
        payment.Ucet = AnyAccount(way, dice);
        const int ID = InsertPayment(payment);
        if (dice.Chance(kPrintedPercent))
            SetPaymentPrinted(ID, true);
    }
}

} // namespace lorvo::show
