#include "store/psi_lists.h"

#include "store/psi_reader.h"
#include "store/rows.h"

namespace lorvo {

namespace {

constexpr const char* kWithOwners =
    "SELECT Majitele.Jmeno AS JmenoMajitele, Majitele.ID AS IDMajitele, Psi.ID AS IDPsa, "
    "Psi.Jmeno, Psi.ChovnaStanice, Psi.Trida, Psi.PrvniPes, Psi.PlemenoID, Psi.PohlaviPes, "
    "Psi.MajitelID, Psi.Poznamka, Psi.PrvniUzaverka, Plemena.ID AS IDPlemene, "
    "Plemena.Nazev AS NazevPlemene , Plemena.NazevOrig From Psi, Plemena, Majitele "
    "WHERE (Psi!PlemenoID = Plemena!ID) AND (Majitele!ID=Psi!MajitelID) ORDER BY Psi.Jmeno";

RecordSet& Table() {
    return TheDataModule().rsPsi;
}

DogListRow ReadDogListRow(const Query& row) {
    DogListRow dog;
    dog.JmenoMajitele = row.Text(0);
    dog.IDPsa = row.Int(2);
    dog.Jmeno = row.Text(3);
    dog.ChovnaStanice = row.Text(4);
    dog.Trida = row.Int(5);
    dog.PrvniPes = row.Bool(6);
    dog.PlemenoID = row.Int(7);
    dog.PohlaviPes = row.Bool(8);
    dog.MajitelID = row.Int(9);
    dog.Poznamka = row.Text(10);
    dog.PrvniUzaverka = row.Bool(11);
    dog.NazevPlemene = row.Text(13);
    dog.NazevOrig = row.Text(14);
    return dog;
}

DogFeeRow ReadDogFeeRow(const Query& row) {
    return {row.Int(0), row.Int(1), row.Int(2), row.Bool(3), row.Bool(4)};
}

int CountWhere(const std::string& condition) {
    return ReadCount(Table(), "SELECT COUNT(*) FROM Psi WHERE " + condition);
}

} // namespace

std::vector<DogListRow> DogsWithOwnersByName() {
    return ReadMany(kWithOwners, ReadDogListRow);
}

std::vector<DogFeeRow> DogFeeRows() {
    return ReadMany("SELECT ID, MajitelID, Trida, PrvniUzaverka, PrvniPes FROM Psi", ReadDogFeeRow);
}

std::vector<Psi> DogsByNumber() {
    return ReadDogs("ORDER BY Cislo ASC");
}

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

std::vector<Psi> DogsOfBreedByName(int plemenoID) {
    return ReadDogs("WHERE Psi!PlemenoID = " + Number(plemenoID) + " ORDER BY Jmeno");
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
        numbers[query.Int(0)].push_back(ToOptionalInt(query.Cell(1)));
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
