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
    std::optional<Currency> Cena; ///< per dog, in the main currency; nullopt when it is no number
    bool Parova = false;
    QString NazevPar1;
    QString NazevPar2;
};

[[nodiscard]] std::optional<Souteze> CompetitionByID(int soutezID);
/// The same; StoreError when the competition is gone.
Souteze ExistingCompetition(int soutezID);
/// All competitions in Czech order of Nazev.
std::vector<Souteze> CompetitionsByName();
/// All competitions in ID order.
std::vector<Souteze> Competitions();
/// Whether a competition other than `exceptID` bears this name, whatever the letter case.
[[nodiscard]] bool IsCompetitionNamed(const QString& nazev, int exceptID);

/// Stores a new competition and returns its ID; competition.ID is not looked at.
int InsertCompetition(const Souteze& competition);
/// Writes all fields into the row competition.ID. StoreError when it is gone.
void UpdateCompetition(const Souteze& competition);
void RenameCompetition(int soutezID, const QString& nazev);
void DeleteCompetition(int soutezID);
void DeleteAllCompetitions();

} // namespace lorvo
