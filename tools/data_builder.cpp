#include "data_builder.h"

#include "csv_table.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <stdexcept>
#include <utility>

namespace lorvo {

namespace {

/// The FCI rows have fixed IDs: the number of the standard and this much more.
constexpr int kBreedIDOffset = 783;

constexpr std::size_t kBreedColumns = 4;

SQLite::Database CreateFile(const std::string& path) {
    return {path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE};
}

void AddBreeds(SQLite::Database& database, const std::string& breedsCsv) {
    SQLite::Statement insert(database,
                             "INSERT INTO Plemena (ID, FCI, Nazev, NazevOrig) VALUES (?, ?, ?, ?)");
    bool isHeading = true;
    for (const std::vector<std::string>& row : ParseCsv(breedsCsv)) {
        if (row.size() != kBreedColumns)
            throw std::runtime_error("breed list: a row without four columns");
        if (std::exchange(isHeading, false))
            continue;
        insert.bind(1, kBreedIDOffset + std::stoi(row[0]));
        insert.bind(2, std::stoi(row[1]));
        insert.bind(3, row[2]);
        insert.bind(4, row[3]);
        insert.exec();
        insert.reset();
    }
}

} // namespace

void BuildEmptyDatabase(const std::string& path, const std::string& schemaSql) {
    SQLite::Database database = CreateFile(path);
    SQLite::Transaction transaction(database);
    database.exec(schemaSql);
    transaction.commit();
}

void BuildDeliveredDatabase(const std::string& path, const std::string& schemaSql,
                            const std::string& breedsCsv) {
    SQLite::Database database = CreateFile(path);
    SQLite::Transaction transaction(database);
    database.exec(schemaSql);
    AddBreeds(database, breedsCsv);
    database.exec("INSERT INTO Ostatni (DatumVystavy) VALUES ('1899-12-30T00:00:00')");
    transaction.commit();
}

} // namespace lorvo
