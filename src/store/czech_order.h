#pragma once
// The Czech alphabet as an order of keys.

#include <QStringView>
#include <string>
#include <string_view>

namespace lorvo {

/// Bytes whose order is the order of the texts by Czech rules: á after a, č after c, ch after h;
/// diacritics and then letter case (small before capital) break ties. `text` is UTF-8.
std::string CzechKey(std::string_view text);
/// The same of a text as the program holds it.
std::string CzechKey(QStringView text);

/// The order of two texts by the same rules: below 0, 0 or above 0. The quicker way where most
/// texts are never compared.
int CompareCzech(QStringView left, QStringView right);

} // namespace lorvo
