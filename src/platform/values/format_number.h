#pragma once
// Number patterns as office programs know them: 0 # . , % and literals.

#include "platform/values/money.h"

#include <string>
#include <string_view>

namespace lorvo {

/// Formats `value` by `pattern` (UTF-8). '0' is a digit that is always shown, '#' one that is shown
/// when there is one, '.' the decimal sign (written as `decimalSign`), ',' groups thousands, '%'
/// multiplies by 100. Anything else is a literal that stays at its place: digits that find no
/// placeholder of their own pile up at the leftmost one, so "### ##0.00" puts one blank at the
/// thousands position and keeps it as a leading blank below 1000.
/// Rounds half away from zero at the last decimal of the pattern.
std::string FormatNumber(std::string_view pattern, Currency value, char decimalSign);
std::string FormatNumber(std::string_view pattern, double value, char decimalSign);

} // namespace lorvo
