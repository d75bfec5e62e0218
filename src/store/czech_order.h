#pragma once
// The Czech alphabet as an order of keys.

#include <string>
#include <string_view>

namespace lorvo {

/// Bytes whose order is the order of the texts by Czech rules: á after a, č after c, ch after h;
/// diacritics and then letter case (small before capital) break ties. `text` is UTF-8.
std::string CzechKey(std::string_view text);

} // namespace lorvo
