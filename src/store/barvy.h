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

[[nodiscard]] std::optional<Barvy> ColourByID(int barvaID);
/// All colours in ID order.
std::vector<Barvy> Colours();
/// How many colours bear this name, whatever the letter case.
int CountColoursNamed(const QString& nazev);

/// Stores a new colour and returns its ID.
int InsertColour(const QString& nazev);
void RenameColour(int barvaID, const QString& nazev);
void DeleteColour(int barvaID);
void DeleteAllColours();

} // namespace lorvo
