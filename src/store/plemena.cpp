#include "store/plemena.h"

#include "store/data_module.h"
#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsPlemena;
}

Plemena ReadPlemena(const RecordSet& row) {
    Plemena breed;
    breed.ID = row.Field("ID").ToInt();
    breed.Nazev = row.Field("Nazev").ToText();
    breed.NazevOrig = row.Field("NazevOrig").ToText();
    breed.FCI = row.Field("FCI").ToInt();
    breed.Parent = row.Field("Parent").ToInt();
    breed.Vlastni = row.Field("Vlastni").ToBool();
    breed.Pouzivat = row.Field("Pouzivat").ToBool();
    breed.ID_Kruhu = row.Field("ID_Kruhu").ToInt();
    return breed;
}

std::vector<Plemena> Breeds(const std::string& rest) {
    return ReadRows(Table(), "SELECT * FROM Plemena " + rest, ReadPlemena);
}

int CountWhere(const std::string& condition) {
    return ReadCount(Table(), "SELECT COUNT (*) FROM Plemena WHERE " + condition);
}

} // namespace

std::optional<Plemena> BreedByID(int plemenoID) {
    return ReadFirst(Table(), "SELECT * FROM Plemena WHERE ID = " + Number(plemenoID), ReadPlemena);
}

std::vector<Plemena> UsedBreedsOutsideRings() {
    return Breeds("WHERE ID_Kruhu = 0 AND Pouzivat = true ORDER BY Nazev");
}

std::vector<Plemena> BreedsOfRing(int kruhID) {
    return Breeds("WHERE ID_Kruhu = " + Number(kruhID) + " ORDER BY Nazev");
}

std::vector<Plemena> BreedsByRing() {
    return Breeds("WHERE ID_Kruhu <> 0 ORDER BY ID_Kruhu, Nazev");
}

std::vector<Plemena> UsedBreedsOfRing(int kruhID) {
    return Breeds("WHERE ID_Kruhu = " + Number(kruhID) + " AND Pouzivat = TRUE ORDER BY Nazev ASC");
}

int CountBreeds() {
    return ReadCount(Table(), "SELECT COUNT (*) FROM Plemena");
}

int CountBreedsOfRing(int kruhID) {
    return CountWhere("Plemena!ID_Kruhu = " + Number(kruhID));
}

int CountUsedBreedsOfRing(int kruhID) {
    return CountWhere("ID_Kruhu = " + Number(kruhID) + " AND Pouzivat =True");
}

int CountBreedsOfFci(int fci) {
    return CountWhere("FCI = " + Number(fci));
}

void RenameBreed(int plemenoID, const QString& nazev) {
    ChangeRow(Table(), "Plemena", plemenoID, {{"Nazev", nazev}});
}

void DeleteBreed(int plemenoID) {
    DeleteRows(Table(), "Plemena", "ID", plemenoID);
}

void SetBreedFci(int plemenoID, int fci) {
    ChangeRow(Table(), "Plemena", plemenoID, {{"FCI", fci}});
}

void MoveBreedToRing(int plemenoID, int kruhID) {
    ChangeRow(Table(), "Plemena", plemenoID, {{"ID_Kruhu", kruhID}});
}

} // namespace lorvo
