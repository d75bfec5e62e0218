#pragma once
// Psi: one row per dog entered. Every routine raises StoreError when the store refuses.

#include "platform/values/date_value.h"

#include <QString>
#include <optional>
#include <vector>

namespace lorvo {

/// Widths at which the writers of Psi cut the texts.
inline constexpr int kJmenoWidth = 50;
inline constexpr int kParentWidth = 100;  ///< Otec, Matka
inline constexpr int kDogTextWidth = 150; ///< ChovnaStanice, PK, Poznamka, Chovatel

/// Null texts read as empty, Null numbers as 0, Null booleans as false.
struct Psi {
    int ID = 0;
    QString Jmeno;
    QString ChovnaStanice;
    std::optional<int> Cislo; ///< nullopt for Null; Null and 0 both mean no number yet
    int PlemenoID = 0;
    int MajitelID = 0;
    int BarvaID = 0; ///< 0: not given
    bool PohlaviPes = false;
    std::optional<DateValue> DatumNar;
    int Trida = 0; ///< from 1; 0: none
    QString Otec;
    QString Matka;
    QString PK;
    QString Poznamka;
    QString Chovatel;
    bool PrvniUzaverka = false;
    bool PrvniPes = false;
};

/// What a node of the tree shows of a dog; Null reads as in Psi, a Null Cislo as 0.
struct TreeDog {
    int ID = 0;
    QString Jmeno;
    int Cislo = 0;
    int PlemenoID = 0;
    int Trida = 0;
    bool PohlaviPes = false;
    bool PrvniPes = false;
    bool PrvniUzaverka = false;
};

enum class DogOrder { ByID, ByName };

[[nodiscard]] std::optional<Psi> DogByID(int psiID);
/// The same; StoreError when the dog is gone.
Psi ExistingDog(int psiID);
/// Dogs of an owner; names in Czech order.
std::vector<Psi> DogsOfOwner(int majitelID, DogOrder order = DogOrder::ByName);
/// All dogs, by PlemenoID, and within a breed as the tree shows them: males first, then by class,
/// then by name.
std::vector<Psi> DogsByBreed();
std::vector<TreeDog> TreeDogsByBreed();
/// MajitelID of a dog; nullopt when there is no such dog.
[[nodiscard]] std::optional<int> OwnerOfDog(int psiID);
/// Cislo of the first row of the table (Null reads as 0); nullopt when there is no dog.
[[nodiscard]] std::optional<int> NumberOfFirstRow();

/// Distinct values in Czech order, the empty one included where it occurs (Null reads as empty).
std::vector<QString> DistinctKennels();
std::vector<QString> DistinctFathers();
std::vector<QString> DistinctMothers();

int CountDogs();
int CountNumberedDogs(); ///< Cislo above 0
int CountDogsOfBreed(int plemenoID);
int CountDogsOfClass(int plemenoID, int trida);
int CountDogsOfRing(int kruhID);
int CountDogsOfFci(int fci);
int CountDogsOfOwner(int majitelID);

/// Stores a new dog and returns its ID. Writes all fields but ID, Cislo and PrvniPes, which start
/// as Null and false; texts are cut at their widths.
int InsertDog(const Psi& dog);
/// Writes what InsertDog writes but PlemenoID, into the row dog.ID. StoreError when it is gone.
void UpdateDog(const Psi& dog);
/// Removes the row alone; shows, competitions, awards and payments of the dog stay behind.
void DeleteDog(int psiID);
/// The same for every dog.
void DeleteAllDogs();

void MoveDogToBreed(int psiID, int plemenoID);
void SetFirstClosing(int psiID, bool prvniUzaverka);
/// Sets PrvniPes on this dog; the owner's other dogs are not looked at.
void MarkFirstDog(int psiID);
/// Takes PrvniPes from every dog of the owner.
void ClearFirstDogs(int majitelID);

/// Sets Cislo. StoreError when the dog is gone. Many in one go stand in an EditRun.
void SetDogNumber(int psiID, int cislo);
/// Sets Cislo of every dog to 0, row by row.
void RemoveDogNumbers();

} // namespace lorvo
