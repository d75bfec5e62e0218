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

/// Rows of the dog with this award, none or one as a rule.
int CountAwardOfDog(int psiID, int oceneniID);
/// Rows with this award.
int CountDogsWithAward(int oceneniID);

/// Adds a row per award; the dog's rows before are left.
void AddAwardsToDog(int psiID, const std::vector<int>& oceneniIDs);
/// Takes all awards from the dog.
void DeleteAwardsOfDog(int psiID);
/// Takes one award from the dog.
void DeleteAwardOfDog(int psiID, int oceneniID);
/// Takes the award from all dogs.
void DeleteAwardFromDogs(int oceneniID);
void DeleteAllAwardsOfDogs();

} // namespace lorvo
