#include "store/psi_lists.h"

#include "store/psi_reader.h"
#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsPsi;
}

DogFeeRow ReadDogFeeRow(const Query& row) {
    return {row.Int(0), row.Int(1), row.Int(2), row.Int(3), row.Bool(4), row.Bool(5)};
}

int CountWhere(const std::string& condition) {
    return ReadCount(Table(), "SELECT COUNT(*) FROM Psi WHERE " + condition);
}

} // namespace

std::vector<DogFeeRow> DogFeeRows() {
    std::vector<DogFeeRow> dogs;
    dogs.reserve(RowsIn("Psi"));
    for (Query rows(TheDataModule().Conn1, "SELECT ID, PlemenoID, MajitelID, Trida, "
                                           "PrvniUzaverka, PrvniPes FROM Psi");
         rows.Next();)
        dogs.push_back(ReadDogFeeRow(rows));
    return dogs;
}

std::vector<Psi> DogsByNumber() {
    return ReadDogs("ORDER BY Cislo ASC");
}

// kept: five-typed-confirmations
std::vector<Psi> FirstFiveDogsByNumber() {
    return ReadDogs("ORDER BY Cislo ASC", "TOP 5 ");
}

std::vector<Psi> DogsByName() {
    return ReadDogs("ORDER BY Jmeno");
}

std::vector<Psi> DogsBySex() {
    return ReadDogs("ORDER BY PohlaviPes, Jmeno ASC");
}

std::vector<Psi> MalesByClass() {
    return ReadDogs("WHERE PohlaviPes ORDER BY Trida, Jmeno ASC");
}

std::vector<Psi> DogsOfFather(const QString& otec) {
    return ReadDogs("WHERE Otec = " + Quoted(otec) + " ORDER BY Jmeno");
}

std::vector<Psi> DogsOfMother(const QString& matka) {
    return ReadDogs("WHERE Matka = " + Quoted(matka) + " ORDER BY Jmeno");
}

std::vector<Psi> BitchesOfBreeder(const QString& chovatel) {
    return ReadDogs("WHERE Chovatel = " + Quoted(chovatel) + " AND NOT PohlaviPes= true");
}

std::unordered_map<int, int> DogCountsByBreed() {
    return CountEach("SELECT PlemenoID FROM Psi");
}

std::unordered_map<int, std::vector<std::optional<int>>> DogNumbersByOwner() {
    std::unordered_map<int, std::vector<std::optional<int>>> numbers;
    Query query(TheDataModule().Conn1, "SELECT MajitelID, Cislo FROM Psi ORDER BY Cislo ASC");
    while (query.Next())
        numbers[query.Int(0)].push_back(IntOrNull(query, 1));
    return numbers;
}

int CountMales() {
    return CountWhere("PohlaviPes");
}

int CountFemales() {
    return CountWhere("NOT PohlaviPes");
}

int CountDogsOfColour(int barvaID) {
    return CountWhere("BarvaID = " + Number(barvaID));
}

int CountDogsWithClass(int trida) {
    return CountWhere("Trida= " + Number(trida));
}

} // namespace lorvo
