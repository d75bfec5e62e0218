#pragma once
// The line below a list of dogs or exhibitors that sums up what is owed and paid.

#include "platform/values/money.h"

#include <QString>

namespace lorvo {

/// "Poplatky celkem: ..., uhrazeno celkem: ..., bilance: ..." in the main currency; an overpayment
/// has a plus sign.
QString TotalsLine(Currency fees, Currency paid);

} // namespace lorvo
