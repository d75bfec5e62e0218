#pragma once
// Plemena: the breeds, the official list and the user's own subgroups. Every routine raises
// StoreError when the store refuses.

#include <QString>
#include <optional>
#include <unordered_map>
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

enum class BreedFilter { All, Used };

[[nodiscard]] std::optional<Plemena> BreedByID(int plemenoID);
/// The same; StoreError when the breed is gone.
Plemena ExistingBreed(int plemenoID);
/// Breeds in use that are in no ring, in Czech order of Nazev.
std::vector<Plemena> UsedBreedsOutsideRings();
/// The breeds of all rings, in use or not, by ID_Kruhu, and within a ring in Czech order of Nazev.
std::vector<Plemena> BreedsByRing();
/// All breeds in use, in Czech order of Nazev.
std::vector<Plemena> UsedBreedsByName();
/// Breeds in use of an FCI group, in ID order.
std::vector<Plemena> UsedBreedsOfFci(int fci);
/// Breeds of their own (Parent is 0), in Czech order of Nazev.
std::vector<Plemena> TopBreeds(BreedFilter filter = BreedFilter::All);
/// Subgroups of all breeds (Parent is not 0), in Czech order of Nazev.
std::vector<Plemena> Subgroups(BreedFilter filter = BreedFilter::All);
/// All breeds by ID.
std::unordered_map<int, Plemena> BreedsByID();

int CountBreeds();
int CountUsedBreeds();
/// How many breeds bear this name, whatever the letter case.
int CountBreedsNamed(const QString& nazev);
int CountBreedsOfRing(int kruhID);
int CountUsedBreedsOfRing(int kruhID);
int CountBreedsOfFci(int fci);

/// Stores a new subgroup of a breed: the user's own, in the breed's FCI group, in no ring and not
/// in use. Returns its ID. StoreError when the breed is gone.
int InsertSubgroup(int parentID, const QString& nazev);
void RenameBreed(int plemenoID, const QString& nazev);
void SetBreedNames(int plemenoID, const QString& nazev, const QString& nazevOrig);
void DeleteBreed(int plemenoID);
void DeleteOwnBreeds();
void SetBreedFci(int plemenoID, int fci);
/// Returns false, and changes nothing, when the breed is gone.
[[nodiscard]] bool SetBreedUsed(int plemenoID, bool pouzivat);
void MoveBreedToRing(int plemenoID, int kruhID);

} // namespace lorvo
