#pragma once
// Barvy: the colours. Every routine raises StoreError when the store refuses.

#include <QString>
#include <optional>
#include <vector>

namespace lorvo {

/// A Null Nazev reads as empty.
struct Barvy {
    int ID = 0;
    QString Nazev;
};

std::optional<Barvy> ColourByID(int barvaID);
/// All colours in ID order.
std::vector<Barvy> Colours();

} // namespace lorvo
