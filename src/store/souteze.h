#pragma once
// Souteze: the competitions beside the class judging. Every routine raises StoreError when the
// store refuses.

#include "platform/values/money.h"

#include <QString>
#include <optional>
#include <vector>

namespace lorvo {

/// Null texts read as empty, a Null Parova as false.
struct Souteze {
    int ID = 0;
    QString Nazev;
    std::optional<Currency> Cena; ///< per dog, in the main currency; nullopt when Null
    bool Parova = false;
    QString NazevPar1;
    QString NazevPar2;
};

std::optional<Souteze> CompetitionByID(int soutezID);
/// All competitions in Czech order of Nazev.
std::vector<Souteze> CompetitionsByName();

} // namespace lorvo
