#pragma once
// Dates as people type them.

#include "platform/values/date_value.h"

#include <optional>
#include <string_view>

namespace lorvo {

/// What stands before the year.
enum class DateOrder { DayFirst, MonthFirst };

/// Which century a year of two digits belongs to.
enum class YearWindow {
    Past,   ///< the latest that gives no day after today, as for a birth
    Around, ///< the one nearest to today, as for a show or a payment
};

/// A date whose year is written in full: "5.6.2024", "05. 06. 2024", "5/6/2024", "05062024", and
/// whatever the order "2024-06-05". Nullopt for any other text and for a day that the calendar
/// lacks.
[[nodiscard]] std::optional<DateValue> WholeDateFromText(std::string_view text, DateOrder order);

/// A whole date, or a shorter spelling: the year in two digits ("5.6.24", "050624"), or left out,
/// which means that of `today` ("5.6."). Nullopt for any other text.
[[nodiscard]] std::optional<DateValue> DateFromText(std::string_view text, DateOrder order,
                                                    DateValue today, YearWindow window);

} // namespace lorvo
