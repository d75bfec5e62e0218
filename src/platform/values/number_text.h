#pragma once
// Numbers as people type them.

#include <optional>
#include <string>
#include <string_view>

namespace lorvo {

/// The number that a text means, as sign, digits and a point before the decimals. Comma and point
/// both stand for the decimal sign, whichever the keypad writes. Of the digits before it the last
/// ones may stand in groups of three, parted by one blank or by `group` (0 for none; a comma or a
/// point with exactly three digits behind it is then the group's). Blanks around don't count.
/// Nullopt for a text that is no number or may mean more than one: "1.234,50", "1,2,3", "12 34".
[[nodiscard]] std::optional<std::string> NumberFromText(std::string_view text, char group);

} // namespace lorvo
