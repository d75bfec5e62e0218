#include "office/texts/money_texts.h"

#include "app/common_routines.h"
#include "app/module_values.h"

namespace lorvo {

using namespace Qt::StringLiterals;

QString PriceText(Currency price) {
    return WithMainCurrency(PlainAmount(price));
}

QString WithMainCurrency(const QString& number) {
    return number + u' ' + Module().MainCurrency;
}

QString TotalsLine(Currency owed, Currency paid) {
    return u"Poplatky celkem: "_s + AmountText(owed) + u", uhrazeno celkem: "_s + AmountText(paid) +
           u", bilance: "_s + (paid > owed ? u"+"_s : QString()) + AmountText(paid - owed);
}

} // namespace lorvo
