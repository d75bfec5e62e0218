#include "office/payments/payment_lookups.h"

#include "app/module_values.h"
#include "platform/values/errors.h"
#include "store/meny.h"

namespace lorvo {

using namespace Qt::StringLiterals;

Psi CurrentDog() {
    return ExistingDog(Module().CurrentDogID);
}

const QString* FindPaymentMode(std::optional<int> uhrada) {
    const auto& modes = Tables().PaymentModes;
    if (!uhrada || *uhrada < 0 || *uhrada >= static_cast<int>(modes.size()))
        return nullptr;
    return &modes[static_cast<size_t>(*uhrada)];
}

const QString& PaymentModeText(std::optional<int> uhrada) {
    if (const QString* mode = FindPaymentMode(uhrada))
        return *mode;
    if (!uhrada)
        throw StoreError("Tabulka Uhrady: platba nemá uveden způsob úhrady.");
    throw StoreError("Tabulka Uhrady: neznámý způsob úhrady " + std::to_string(*uhrada) + '.');
}

CurrencyAbbreviations::CurrencyAbbreviations() {
    for (const Meny& currency : Currencies())
        abbreviations_.emplace(currency.ID, currency.Zkratka);
}

const QString& CurrencyAbbreviations::Of(int menaID) const {
    const auto found = abbreviations_.find(menaID);
    if (found == abbreviations_.end())
        throw StoreError("V tabulce Meny není řádek s číslem " + std::to_string(menaID) + '.');
    return found->second;
}

} // namespace lorvo
