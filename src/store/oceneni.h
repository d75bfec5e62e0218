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

/// All awards in ID order.
std::vector<Oceneni> Awards();
/// All awards in Czech order of Nazev.
std::vector<Oceneni> AwardsByName();

/// Stores a new award and returns its ID.
int InsertAward(const QString& nazev);
void RenameAward(int oceneniID, const QString& nazev);
void DeleteAllAwards();

} // namespace lorvo
