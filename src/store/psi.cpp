#include "store/psi.h"

#include "platform/values/left_text.h"
#include "store/placed_rows.h"
#include "store/psi_reader.h"
#include "store/rows.h"

#include <QSet>

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsPsi;
}

std::string OrderClause(DogOrder order) {
    return order == DogOrder::ByName ? " ORDER BY Jmeno ASC" : "";
}

Assignments EditedFields(const Psi& dog) {
    return {
        {"Jmeno", LeftText(dog.Jmeno, kJmenoWidth)},
        {"BarvaID", dog.BarvaID},
        {"PohlaviPes", dog.PohlaviPes},
        {"DatumNar", FromOptional(dog.DatumNar)},
        {"ChovnaStanice", LeftText(dog.ChovnaStanice, kDogTextWidth)},
        {"Otec", LeftText(dog.Otec, kParentWidth)},
        {"Matka", LeftText(dog.Matka, kParentWidth)},
        {"PK", LeftText(dog.PK, kDogTextWidth)},
        {"Poznamka", LeftText(dog.Poznamka, kDogTextWidth)},
        {"Chovatel", LeftText(dog.Chovatel, kDogTextWidth)},
        {"PrvniUzaverka", dog.PrvniUzaverka},
        {"MajitelID", dog.MajitelID},
        {"Trida", dog.Trida},
    };
}

/// Each text of the field once, in Czech order.
std::vector<QString> DistinctTexts(const std::string& field) {
    std::vector<QString> texts;
    std::vector<NamePlace> places;
    QSet<QString> seen;
    for (Query rows(TheDataModule().Conn1, "SELECT " + field + " FROM Psi"); rows.Next();) {
        const QString text = rows.Text(0);
        if (seen.contains(text))
            continue;
        seen.insert(text);
        texts.push_back(text);
        places.emplace_back(rows, 0, text);
    }
    return InOrder(std::move(texts), places);
}

int CountWhere(const std::string& condition) {
    return ReadCount(Table(), "SELECT COUNT (*) FROM Psi WHERE " + condition);
}

} // namespace

std::optional<Psi> DogByID(int psiID) {
    std::vector<Psi> dogs = ReadDogs("WHERE ID = " + Number(psiID));
    if (dogs.empty())
        return std::nullopt;
    return std::move(dogs.front());
}

Psi ExistingDog(int psiID) {
    return Existing(DogByID(psiID), "Psi", psiID);
}

std::vector<Psi> DogsOfOwner(int majitelID, DogOrder order) {
    return ReadDogs("WHERE MajitelID = " + Number(majitelID) + OrderClause(order));
}

std::optional<int> OwnerOfDog(int psiID) {
    return ReadFirst(Table(), "SELECT MajitelID FROM Psi WHERE ID=" + Number(psiID),
                     [](const RecordSet& row) { return row.Field(0).ToInt(); });
}

std::optional<int> NumberOfFirstRow() {
    return ReadFirst(Table(), "SELECT TOP 1 Cislo FROM Psi",
                     [](const RecordSet& row) { return row.Field(0).ToInt(); });
}

std::vector<QString> DistinctKennels() {
    return DistinctTexts("ChovnaStanice");
}

std::vector<QString> DistinctFathers() {
    return DistinctTexts("Otec");
}

std::vector<QString> DistinctMothers() {
    return DistinctTexts("Matka");
}

int CountDogs() {
    return ReadCount(Table(), "SELECT COUNT (*) FROM Psi");
}

int CountNumberedDogs() {
    return CountWhere("Cislo>0");
}

int CountDogsOfBreed(int plemenoID) {
    return CountWhere("PlemenoID = " + Number(plemenoID));
}

int CountDogsOfClass(int plemenoID, int trida) {
    return CountWhere("PlemenoID = " + Number(plemenoID) + " AND Trida = " + Number(trida));
}

int CountDogsOfRing(int kruhID) {
    return ReadCount(Table(), "SELECT COUNT (*) FROM Plemena, Psi WHERE Plemena!ID_Kruhu = " +
                                  Number(kruhID) + " AND Psi!PlemenoID = Plemena!ID");
}

int CountDogsOfFci(int fci) {
    return CountWhere("PlemenoID IN (SELECT ID FROM Plemena WHERE FCI = " + Number(fci) + ")");
}

int CountDogsOfOwner(int majitelID) {
    return CountWhere("MajitelID = " + Number(majitelID));
}

int InsertDog(const Psi& dog) {
    Assignments fields = EditedFields(dog);
    fields.emplace_back("PlemenoID", dog.PlemenoID);
    return InsertRow(Table(), "Psi", fields);
}

void UpdateDog(const Psi& dog) {
    ChangeRow(Table(), "Psi", dog.ID, EditedFields(dog));
}

void DeleteDog(int psiID) {
    DeleteRows(Table(), "Psi", "ID", psiID);
}

void DeleteAllDogs() {
    DeleteAllRows(Table(), "Psi");
}

void MoveDogToBreed(int psiID, int plemenoID) {
    ChangeRow(Table(), "Psi", psiID, {{"PlemenoID", plemenoID}});
}

void SetFirstClosing(int psiID, bool prvniUzaverka) {
    ChangeRow(Table(), "Psi", psiID, {{"PrvniUzaverka", prvniUzaverka}});
}

void MarkFirstDog(int psiID) {
    ChangeRow(Table(), "Psi", psiID, {{"PrvniPes", true}});
}

void ClearFirstDogs(int majitelID) {
    ChangeRows(Table(), "SELECT * FROM Psi WHERE MajitelID = " + Number(majitelID),
               {{"PrvniPes", false}});
}

} // namespace lorvo
