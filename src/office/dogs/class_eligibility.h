#pragma once
// In which classes a dog may be shown, by its age on the day of the show. Standard library alone.

#include "platform/values/date_value.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lorvo {

/// The two class lists: that of the German shepherd and that of all other breeds.
enum class ClassList { Standard, Special };

/// Age in months on the day of the show, a month that has begun counting whole; 0 or negative for a
/// dog born after the show. A dog that is exactly N months old counts as N in the standard list and
/// as N + 1 in the special one. Times of day don't matter.
int AgeInMonths(DateValue born, DateValue show, ClassList list);

/// Whether a class of these limits is open at an age: the lower limit is excluded, the upper one
/// included.
constexpr bool IsClassOpen(int age, int from, int to) {
    return from < age && age <= to;
}

/// Codes (from 1) of the classes open at an age; the limits of class n stand at position n - 1.
std::vector<int> OpenClasses(int age, std::span<const std::int16_t> from,
                             std::span<const std::int16_t> to);

/// The caption above the classes: `hint` with the show date (formatted by the caller) and the age
/// behind it.
std::string ClassCaption(std::string_view hint, std::string_view showDate, int age);

} // namespace lorvo
