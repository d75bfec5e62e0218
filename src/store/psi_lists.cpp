#include "store/psi_lists.h"

#include "store/data_module.h"
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

DogListRow ReadDogListRow(const RecordSet& row) {
    DogListRow dog;
    dog.JmenoMajitele = row.Field(0).ToText();
    dog.IDPsa = row.Field(2).ToInt();
    dog.Jmeno = row.Field(3).ToText();
    dog.ChovnaStanice = row.Field(4).ToText();
    dog.Trida = row.Field(5).ToInt();
    dog.PrvniPes = row.Field(6).ToBool();
    dog.PlemenoID = row.Field(7).ToInt();
    dog.PohlaviPes = row.Field(8).ToBool();
    dog.MajitelID = row.Field(9).ToInt();
    dog.Poznamka = row.Field(10).ToText();
    dog.PrvniUzaverka = row.Field(11).ToBool();
    dog.NazevPlemene = row.Field(13).ToText();
    dog.NazevOrig = row.Field(14).ToText();
    return dog;
}

FeeDog ReadFeeDog(const RecordSet& row) {
    return {row.Field(0).ToInt(), row.Field(1).ToInt(), row.Field(2).ToInt(), row.Field(3).ToBool(),
            row.Field(4).ToBool()};
}

std::vector<Psi> Dogs(const std::string& rest) {
    return ReadRows(Table(), "SELECT * FROM Psi " + rest, ReadPsi);
}

int CountWhere(const std::string& condition) {
    return ReadCount(Table(), "SELECT COUNT(*) FROM Psi WHERE " + condition);
}

} // namespace

std::vector<DogListRow> DogsWithOwnersByName() {
    return ReadRows(Table(), kWithOwners, ReadDogListRow);
}

std::vector<FeeDog> FeeDogs() {
    return ReadRows(Table(), "SELECT ID, MajitelID, Trida, PrvniUzaverka, PrvniPes FROM Psi",
                    ReadFeeDog);
}

std::vector<Psi> DogsByNumber() {
    return Dogs("ORDER BY Cislo ASC");
}

std::vector<Psi> FirstFiveDogsByNumber() {
    return ReadRows(Table(), "SELECT TOP 5 * FROM Psi ORDER BY Cislo ASC", ReadPsi);
}

std::vector<Psi> DogsByName() {
    return Dogs("ORDER BY Jmeno");
}

std::vector<Psi> DogsBySex() {
    return Dogs("ORDER BY PohlaviPes, Jmeno ASC");
}

std::vector<Psi> MalesByClass() {
    return Dogs("WHERE PohlaviPes ORDER BY Trida, Jmeno ASC");
}

std::vector<Psi> DogsOfBreedByName(int plemenoID) {
    return Dogs("WHERE Psi!PlemenoID = " + Number(plemenoID) + " ORDER BY Jmeno");
}

std::vector<Psi> DogsOfFather(const QString& otec) {
    return Dogs("WHERE Otec = " + Quoted(otec) + " ORDER BY Jmeno");
}

std::vector<Psi> DogsOfMother(const QString& matka) {
    return Dogs("WHERE Matka = " + Quoted(matka) + " ORDER BY Jmeno");
}

std::vector<Psi> BitchesOfBreeder(const QString& chovatel) {
    return Dogs("WHERE Chovatel = " + Quoted(chovatel) + " AND NOT PohlaviPes= true");
}

std::unordered_map<int, int> DogCountsByBreed() {
    return CountEach(Table(), "SELECT PlemenoID FROM Psi");
}

std::unordered_map<int, std::vector<std::optional<int>>> DogNumbersByOwner() {
    std::unordered_map<int, std::vector<std::optional<int>>> numbers;
    Table().Open("SELECT MajitelID, Cislo FROM Psi ORDER BY Cislo ASC");
    for (; !Table().Eof(); Table().MoveNext())
        numbers[Table().Field(0).ToInt()].push_back(ToOptionalInt(Table().Field(1)));
    Table().Close();
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
