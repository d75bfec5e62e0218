#pragma once
// Amounts of other currencies in the main one.

#include "store/meny.h"
#include "store/uhrady.h"

namespace lorvo {

/// What an amount of this currency counts in the main one, at the present rate: the product,
/// rounded half to even at the fourth decimal. RangeError when it is too large to keep.
Currency InMainCurrency(Currency amount, const Meny& currency);

/// Puts into the payment what was paid and in which currency, with the amount in the main one and
/// the rate as they are now: a later change of the rate changes no payment. RangeError as above.
void SetPaid(Uhrady& payment, Currency amount, const Meny& currency);

} // namespace lorvo
