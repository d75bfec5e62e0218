#include "store/plemena.h"

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

std::string FilterClause(BreedFilter filter) {
    return filter == BreedFilter::Used ? " AND Pouzivat" : "";
}

} // namespace

std::optional<Plemena> BreedByID(int plemenoID) {
    return ReadFirst(Table(), "SELECT * FROM Plemena WHERE ID = " + Number(plemenoID), ReadPlemena);
}

Plemena ExistingBreed(int plemenoID) {
    return Existing(BreedByID(plemenoID), "Plemena", plemenoID);
}

std::vector<Plemena> UsedBreedsOutsideRings() {
    return Breeds("WHERE ID_Kruhu = 0 AND Pouzivat = true ORDER BY Nazev");
}

std::vector<Plemena> BreedsByRing() {
    return Breeds("WHERE ID_Kruhu <> 0 ORDER BY ID_Kruhu, Nazev");
}

std::vector<Plemena> UsedBreedsByName() {
    return Breeds("WHERE Pouzivat = TRUE ORDER BY Nazev");
}

std::vector<Plemena> UsedBreedsOfFci(int fci) {
    return Breeds("WHERE Pouzivat = True AND FCI = " + Number(fci));
}

std::vector<Plemena> TopBreeds(BreedFilter filter) {
    return Breeds("WHERE Parent = 0" + FilterClause(filter) + " ORDER BY Nazev Asc");
}

std::vector<Plemena> Subgroups(BreedFilter filter) {
    return Breeds("WHERE Parent <> 0" + FilterClause(filter) + " ORDER BY Nazev Asc");
}

std::unordered_map<int, Plemena> BreedsByID() {
    return ByID(Breeds(""));
}

int CountBreeds() {
    return ReadCount(Table(), "SELECT COUNT (*) FROM Plemena");
}

int CountUsedBreeds() {
    return CountWhere("Pouzivat = True");
}

int CountBreedsNamed(const QString& nazev) {
    return CountNamed(Table(), "Plemena", nazev);
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

int InsertSubgroup(int parentID, const QString& nazev) {
    const Value FCI = ReadScalar(Table(), "SELECT FCI FROM Plemena WHERE ID = " + Number(parentID));
    return InsertRow(Table(), "Plemena",
                     {{"Nazev", nazev}, {"Parent", parentID}, {"Vlastni", true}, {"FCI", FCI}});
}

void RenameBreed(int plemenoID, const QString& nazev) {
    ChangeRow(Table(), "Plemena", plemenoID, {{"Nazev", nazev}});
}

void SetBreedNames(int plemenoID, const QString& nazev, const QString& nazevOrig) {
    ChangeRow(Table(), "Plemena", plemenoID, {{"Nazev", nazev}, {"NazevOrig", nazevOrig}});
}

void DeleteBreed(int plemenoID) {
    DeleteRows(Table(), "Plemena", "ID", plemenoID);
}

void DeleteOwnBreeds() {
    Table().Open("DELETE * FROM Plemena WHERE Vlastni = true");
}

void SetBreedFci(int plemenoID, int fci) {
    ChangeRow(Table(), "Plemena", plemenoID, {{"FCI", fci}});
}

bool SetBreedUsed(int plemenoID, bool pouzivat) {
    if (!BreedByID(plemenoID))
        return false;
    ChangeRow(Table(), "Plemena", plemenoID, {{"Pouzivat", pouzivat}});
    return true;
}

void MoveBreedToRing(int plemenoID, int kruhID) {
    ChangeRow(Table(), "Plemena", plemenoID, {{"ID_Kruhu", kruhID}});
}

} // namespace lorvo
