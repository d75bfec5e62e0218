#pragma once
// Oceneni: the award titles. Every routine raises StoreError when the store refuses.

#include <QString>
#include <optional>
#include <vector>

namespace lorvo {

/// A Null Nazev reads as empty.
struct Oceneni {
    int ID = 0;
    QString Nazev;
};

std::optional<Oceneni> AwardByID(int oceneniID);
/// All awards in ID order.
std::vector<Oceneni> Awards();

} // namespace lorvo
