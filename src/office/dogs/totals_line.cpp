#include "office/dogs/totals_line.h"

#include "app/common_routines.h"

namespace lorvo {

QString TotalsLine(Currency fees, Currency paid) {
    return QStringLiteral("Poplatky celkem: ") + AmountText(fees) +
           QStringLiteral(", uhrazeno celkem: ") + AmountText(paid) +
           QStringLiteral(", bilance: ") + (paid > fees ? QStringLiteral("+") : QString()) +
           AmountText(paid - fees);
}

} // namespace lorvo
