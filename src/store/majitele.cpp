#include "store/majitele.h"

#include "store/data_module.h"
#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsMajitele;
}

Majitele ReadMajitele(const RecordSet& row) {
    Majitele owner;
    owner.ID = row.Field("ID").ToInt();
    owner.Jmeno = row.Field("Jmeno").ToText();
    owner.Prijmeni = ToOptionalText(row.Field("Prijmeni"));
    owner.Ulice = row.Field("Ulice").ToText();
    owner.Mesto = row.Field("Mesto").ToText();
    owner.PSC = row.Field("PSC").ToInt();
    owner.Telefon = row.Field("Telefon").ToText();
    owner.Email = row.Field("Email").ToText();
    owner.Stat = ToOptionalText(row.Field("Stat"));
    return owner;
}

Assignments Fields(const Majitele& owner) {
    Assignments fields = {
        {"Jmeno", owner.Jmeno}, {"Ulice", owner.Ulice},     {"Mesto", owner.Mesto},
        {"PSC", owner.PSC},     {"Telefon", owner.Telefon}, {"Email", owner.Email},
    };
    AssignIfGiven(fields, "Prijmeni", owner.Prijmeni);
    AssignIfGiven(fields, "Stat", owner.Stat);
    return fields;
}

} // namespace

std::optional<Majitele> OwnerByID(int majitelID) {
    return ReadFirst(Table(), "SELECT * FROM Majitele WHERE ID = " + Number(majitelID),
                     ReadMajitele);
}

std::vector<Majitele> OwnersByName() {
    return ReadRows(Table(), "SELECT * FROM Majitele ORDER BY Jmeno ASC", ReadMajitele);
}

std::vector<Majitele> OwnersByNameAndSurname() {
    return ReadRows(Table(), "SELECT * FROM Majitele ORDER BY Jmeno, Prijmeni", ReadMajitele);
}

std::unordered_map<int, Majitele> OwnersByID() {
    return ByID(ReadRows(Table(), "SELECT * FROM Majitele", ReadMajitele));
}

std::vector<OwnerName> OwnerNamesByName() {
    return ReadRows(
        Table(), "SELECT ID, Jmeno, Mesto FROM Majitele ORDER BY Jmeno ASC",
        [](const RecordSet& row) {
            return OwnerName{row.Field(0).ToInt(), row.Field(1).ToText(), row.Field(2).ToText()};
        });
}

std::unordered_map<int, QString> OwnerNames() {
    const auto rows = ReadRows(Table(), "SELECT ID, Jmeno FROM Majitele", [](const RecordSet& row) {
        return std::pair(row.Field(0).ToInt(), row.Field(1).ToText());
    });
    return {rows.begin(), rows.end()};
}

std::vector<Majitele> OwnersNamed(const QString& jmeno) {
    return ReadRows(Table(), "SELECT * FROM Majitele WHERE Jmeno = " + Quoted(jmeno), ReadMajitele);
}

int InsertOwner(const Majitele& owner) {
    return InsertRow(Table(), "Majitele", Fields(owner));
}

void UpdateOwner(const Majitele& owner) {
    ChangeRow(Table(), "Majitele", owner.ID, Fields(owner));
}

void DeleteOwner(int majitelID) {
    DeleteRows(Table(), "Majitele", "ID", majitelID);
}

void DeleteAllOwners() {
    DeleteAllRows(Table(), "Majitele");
}

} // namespace lorvo
