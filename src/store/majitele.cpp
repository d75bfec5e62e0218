#include "store/majitele.h"

#include "store/placed_rows.h"
#include "store/rows.h"

namespace lorvo {

namespace {

RecordSet& Table() {
    return TheDataModule().rsMajitele;
}

/// The fields in the order of ReadOwners.
Majitele ReadMajitele(const Query& row) {
    Majitele owner;
    owner.ID = row.Int(0);
    owner.Jmeno = row.Text(1);
    owner.Prijmeni = TextOrNull(row, 2);
    owner.Ulice = row.Text(3);
    owner.Mesto = row.Text(4);
    owner.PSC = row.Int(5);
    owner.Telefon = row.Text(6);
    owner.Email = row.Text(7);
    owner.Stat = TextOrNull(row, 8);
    return owner;
}

constexpr const char* kOwners =
    "SELECT ID, Jmeno, Prijmeni, Ulice, Mesto, PSC, Telefon, Email, Stat FROM Majitele ";
constexpr int kJmeno = 1;

std::vector<Majitele> ReadOwners(const std::string& rest) {
    return ReadMany(kOwners + rest, ReadMajitele);
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
    std::vector<Majitele> owners = ReadOwners("WHERE ID = " + Number(majitelID));
    if (owners.empty())
        return std::nullopt;
    return std::move(owners.front());
}

Majitele ExistingOwner(int majitelID) {
    return Existing(OwnerByID(majitelID), "Majitele", majitelID);
}

std::vector<Majitele> OwnersByName() {
    std::vector<Majitele> owners;
    std::vector<NamePlace> places;
    const std::size_t count = RowsIn("Majitele");
    owners.reserve(count);
    places.reserve(count);
    for (Query rows(TheDataModule().Conn1, kOwners); rows.Next();) {
        owners.push_back(ReadMajitele(rows));
        places.emplace_back(rows, kJmeno, owners.back().Jmeno);
    }
    return InOrder(std::move(owners), places);
}

std::vector<Majitele> OwnersByNameAndSurname() {
    return ReadOwners("ORDER BY Jmeno, Prijmeni");
}

std::unordered_map<int, Majitele> OwnersByID() {
    return ByID(ReadOwners({}));
}

std::vector<OwnerName> OwnerNamesByName() {
    return ReadMany("SELECT ID, Jmeno, Mesto FROM Majitele ORDER BY Jmeno ASC",
                    [](const Query& row) {
                        return OwnerName{row.Int(0), row.Text(1), row.Text(2)};
                    });
}

std::unordered_map<int, QString> OwnerNames() {
    std::unordered_map<int, QString> names;
    for (Query query(TheDataModule().Conn1, "SELECT ID, Jmeno FROM Majitele"); query.Next();)
        names.emplace(query.Int(0), query.Text(1));
    return names;
}

std::vector<Majitele> OwnersNamed(const QString& jmeno) {
    return ReadOwners("WHERE Jmeno = " + Quoted(jmeno));
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
