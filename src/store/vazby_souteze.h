#pragma once
// Vazby_Souteze: which dog takes part in which competition. Every routine raises StoreError when
// the store refuses.

#include "store/link_table.h"

#include <vector>

namespace lorvo {

/// ID_Souteze of each row of the dog, in row order.
std::vector<int> CompetitionsOfDog(int psiID);

/// Rows of a competition.
int CountDogsInCompetition(int soutezID);
/// ID_Souteze of all rows by the dog's ID.
LinkTable CompetitionLinks();

/// Adds a row per competition; the dog's rows before are left.
void AddDogToCompetitions(int psiID, const std::vector<int>& soutezIDs);
/// Adds a row per dog; the rows of the competition before are left.
void AddDogsToCompetition(int soutezID, const std::vector<int>& psiIDs);
/// Takes the dog out of all competitions.
void DeleteCompetitionsOfDog(int psiID);
/// Takes all dogs out of the competition.
void DeleteDogsOfCompetition(int soutezID);
void DeleteAllCompetitionEntries();

} // namespace lorvo
