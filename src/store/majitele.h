#pragma once
// Majitele: one row per owner, who is the exhibitor. Every routine raises StoreError when the
// store refuses.

#include <QString>
#include <optional>
#include <unordered_map>
#include <vector>

namespace lorvo {

/// Null texts read as empty and a Null PSC as 0, but Prijmeni and Stat keep Null as nullopt, since
/// each is written by one of two editors only. A write leaves a nullopt field as it is.
struct Majitele {
    int ID = 0;
    QString Jmeno;
    std::optional<QString> Prijmeni;
    QString Ulice;
    QString Mesto;
    int PSC = 0; ///< up to five digits, 0 when none was given
    QString Telefon;
    QString Email;
    std::optional<QString> Stat;
};

/// What the owner list of the dog editor needs of an owner.
struct OwnerName {
    int ID = 0;
    QString Jmeno;
    QString Mesto;
};

[[nodiscard]] std::optional<Majitele> OwnerByID(int majitelID);
/// The same; StoreError when the owner is gone.
Majitele ExistingOwner(int majitelID);
/// All owners in Czech order of Jmeno.
std::vector<Majitele> OwnersByName();
/// All owners in Czech order of Jmeno, then of Prijmeni.
std::vector<Majitele> OwnersByNameAndSurname();
/// All owners by ID.
std::unordered_map<int, Majitele> OwnersByID();
/// The order of OwnersByName, with less read of each.
std::vector<OwnerName> OwnerNamesByName();
/// Jmeno of all owners, by ID.
std::unordered_map<int, QString> OwnerNames();
/// Owners whose Jmeno is exactly this text, letter case included.
std::vector<Majitele> OwnersNamed(const QString& jmeno);

/// Stores a new owner and returns its ID; owner.ID is not looked at.
int InsertOwner(const Majitele& owner);
/// Writes all fields into the row owner.ID. StoreError when it is gone.
void UpdateOwner(const Majitele& owner);
void DeleteOwner(int majitelID);
void DeleteAllOwners();

} // namespace lorvo
