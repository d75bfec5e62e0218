#pragma once
// Kruhy: the rings. Every routine raises StoreError when the store refuses.

#include <QString>
#include <optional>
#include <vector>

namespace lorvo {

/// Null texts read as empty.
struct Kruhy {
    int ID = 0;
    QString Nazev;
    QString JmenoRozhodciho;
};

[[nodiscard]] std::optional<Kruhy> RingByID(int kruhID);
/// All rings in ID order.
std::vector<Kruhy> Rings();
/// All rings in Czech order of Nazev.
std::vector<Kruhy> RingsByName();

/// Stores a new ring and returns its ID.
int InsertRing(const QString& nazev);
void RenameRing(int kruhID, const QString& nazev);
void SetRingJudge(int kruhID, const QString& jmenoRozhodciho);
void DeleteRing(int kruhID);
void DeleteAllRings();

} // namespace lorvo
