#pragma once
// How money is put into words beside the patterns of the common routines.

#include "platform/values/money.h"

#include <QString>

namespace lorvo {

/// A price in the main currency: the plain number, a blank and the abbreviation.
QString PriceText(Currency price);
/// The same of a number that is text already, empty for none.
QString WithMainCurrency(const QString& number);
/// "Poplatky celkem: ..., uhrazeno celkem: ..., bilance: ..." in the main currency; an overpayment
/// has a plus sign.
QString TotalsLine(Currency owed, Currency paid);

} // namespace lorvo
