#pragma once
// PsiVeVystavach: which dog stands in which show. Every routine raises StoreError when the store
// refuses.

#include "store/link_table.h"

#include <vector>

namespace lorvo {

/// VystavaID of each row of the dog, in row order.
std::vector<int> ShowsOfDog(int psiID);
/// Shows with a row of any other dog, each once, rising.
std::vector<int> ShowsOfOtherDogs(int psiID);
/// Rows of a show.
int CountDogsInShow(int vystavaID);
/// VystavaID of all rows by the dog's ID.
LinkTable ShowLinks();

/// Adds a row per show; the dog's rows before are left.
void AddDogToShows(int psiID, const std::vector<int>& vystavaIDs);
/// Takes the dog out of all shows.
void DeleteShowsOfDog(int psiID);
void DeleteAllShowEntries();

} // namespace lorvo
