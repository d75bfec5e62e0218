#pragma once
// Dogs as the lists and the reports read them: many at once. Every routine raises StoreError when
// the store refuses.

#include "store/psi.h"

#include <unordered_map>

namespace lorvo {

/// A dog with its owner and breed, as the dog list shows it. Null reads as in Psi.
struct DogListRow {
    int IDPsa = 0;
    QString Jmeno;
    QString ChovnaStanice;
    int Trida = 0;
    bool PohlaviPes = false;
    bool PrvniPes = false;
    bool PrvniUzaverka = false;
    QString Poznamka;
    int PlemenoID = 0;
    QString NazevPlemene;
    QString NazevOrig;
    int MajitelID = 0;
    QString JmenoMajitele;
};

/// What the fee of a dog depends on.
struct DogFeeRow {
    int ID = 0;
    int PlemenoID = 0;
    int MajitelID = 0;
    int Trida = 0;
    bool PrvniUzaverka = false;
    bool PrvniPes = false;
};

/// Dogs whose breed and owner exist, in Czech order of Jmeno.
std::vector<DogListRow> DogsWithOwnersByName();
/// All dogs in ID order.
std::vector<DogFeeRow> DogFeeRows();

/// All dogs by Cislo; those without a number first.
std::vector<Psi> DogsByNumber();
/// The first five of DogsByNumber.
std::vector<Psi> FirstFiveDogsByNumber();
/// All dogs in Czech order of Jmeno.
std::vector<Psi> DogsByName();
/// All dogs, males first, in Czech order of Jmeno.
std::vector<Psi> DogsBySex();
/// Males by class, in Czech order of Jmeno.
std::vector<Psi> MalesByClass();
/// Dogs whose father or mother bears exactly this name, in Czech order of Jmeno.
std::vector<Psi> DogsOfFather(const QString& otec);
std::vector<Psi> DogsOfMother(const QString& matka);
/// Bitches of a breeder, in ID order.
std::vector<Psi> BitchesOfBreeder(const QString& chovatel);

/// How many dogs each breed has; a breed without dogs is left out.
std::unordered_map<int, int> DogCountsByBreed();
/// Cislo of each owner's dogs, rising, those without a number first and as nullopt when Null.
std::unordered_map<int, std::vector<std::optional<int>>> DogNumbersByOwner();

int CountMales();
int CountFemales();
int CountDogsOfColour(int barvaID);
/// Dogs with this Trida in all breeds.
int CountDogsWithClass(int trida);

} // namespace lorvo
