#pragma once
// PsiOceneni: awards that dogs won. Every routine raises StoreError when the store refuses.

#include <QStringList>
#include <unordered_map>
#include <vector>

namespace lorvo {

/// IDOceneni of each row of the dog, in row order.
std::vector<int> AwardsOfDog(int psiID);
/// Names of the dog's awards in the order in which they were given; a row whose award is gone is
/// left out.
QStringList AwardNamesOfDog(int psiID);
/// The same for all dogs that have any, by the dog's ID.
std::unordered_map<int, QStringList> AwardNamesByDog();

/// Adds a row per award; the dog's rows before are left.
void AddAwardsToDog(int psiID, const std::vector<int>& oceneniIDs);
/// Takes all awards from the dog.
void DeleteAwardsOfDog(int psiID);

} // namespace lorvo
