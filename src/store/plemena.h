#pragma once
// Plemena: the breeds, the official list and the user's own subgroups. Every routine raises
// StoreError when the store refuses.

#include <QString>
#include <optional>
#include <vector>

namespace lorvo {

/// Null texts read as empty, Null numbers as 0, Null booleans as false.
struct Plemena {
    int ID = 0;
    QString Nazev;
    QString NazevOrig;
    int FCI = 0;    ///< 1 to 10; 0: not assigned
    int Parent = 0; ///< 0, or the breed that this subgroup belongs to
    bool Vlastni = false;
    bool Pouzivat = false;
    int ID_Kruhu = 0; ///< 0: in no ring
};

std::optional<Plemena> BreedByID(int plemenoID);
/// Breeds in use that are in no ring, in Czech order of Nazev.
std::vector<Plemena> UsedBreedsOutsideRings();
/// All breeds of a ring, in use or not, in Czech order of Nazev.
std::vector<Plemena> BreedsOfRing(int kruhID);
/// The breeds of all rings, by ID_Kruhu, and within a ring as BreedsOfRing has them.
std::vector<Plemena> BreedsByRing();
/// Breeds of a ring that are in use, in Czech order of Nazev.
std::vector<Plemena> UsedBreedsOfRing(int kruhID);

int CountBreeds();
int CountBreedsOfRing(int kruhID);
int CountUsedBreedsOfRing(int kruhID);
int CountBreedsOfFci(int fci);

void RenameBreed(int plemenoID, const QString& nazev);
void DeleteBreed(int plemenoID);
void SetBreedFci(int plemenoID, int fci);
void MoveBreedToRing(int plemenoID, int kruhID);

} // namespace lorvo
