#pragma once
// Vazby_Souteze: which dog takes part in which competition. Every routine raises StoreError when
// the store refuses.

#include <vector>

namespace lorvo {

/// ID_Souteze of each row of the dog, in row order.
std::vector<int> CompetitionsOfDog(int psiID);
bool IsDogInCompetition(int psiID, int soutezID);

/// Adds a row per competition; the dog's rows before are left.
void AddDogToCompetitions(int psiID, const std::vector<int>& soutezIDs);
/// Takes the dog out of all competitions.
void DeleteCompetitionsOfDog(int psiID);

} // namespace lorvo
