#include "bare_rows.h"

#include "store/czech_order.h"

#include <stdexcept>

namespace lorvo::bench {

namespace {

void CzechKeyFunction(sqlite3_context* context, int, sqlite3_value** values) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(values[0]));
    const std::string key = CzechKey(text ? text : "");
    sqlite3_result_blob(context, key.data(), static_cast<int>(key.size()), SQLITE_TRANSIENT);
}

QString Text(sqlite3_stmt* statement, int column) {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
                             sqlite3_column_bytes(statement, column));
}

constexpr const char* kCardStatements[] = {
    "SELECT * FROM Oceneni ORDER BY ID",
    "SELECT * FROM PsiOceneni WHERE IDPsa = ?1",
    "SELECT SUM(Kc) FROM Uhrady WHERE ID_Psa = ?1",
    "SELECT * FROM Psi WHERE ID = ?1",
    "SELECT Nazev, NazevOrig FROM Plemena WHERE ID = (SELECT PlemenoID FROM Psi WHERE ID = ?1)",
    "SELECT * FROM Majitele WHERE ID = (SELECT MajitelID FROM Psi WHERE ID = ?1)",
    "SELECT * FROM Vystavy ORDER BY ID",
    "SELECT * FROM PsiVeVystavach WHERE PesID = ?1",
    "SELECT ID, Nazev, PoplatkyIClass1D1 FROM Vystavy WHERE ID = 1",
    ("SELECT ID FROM Vystavy v WHERE EXISTS "
     "(SELECT 1 FROM PsiVeVystavach p WHERE p.VystavaID = v.ID AND p.PesID <> ?1)"),
    "SELECT ID, Nazev, PoplatkyIClass1D1 FROM Vystavy WHERE ID = 2",
    "SELECT ID, Nazev, PoplatkyIClass1D1 FROM Vystavy WHERE ID = 3",
    "SELECT * FROM Souteze ORDER BY Nazev",
    "SELECT * FROM Vazby_Souteze WHERE ID_Psa = ?1",
    "SELECT * FROM Psi WHERE MajitelID = (SELECT MajitelID FROM Psi WHERE ID = ?1) ORDER BY Jmeno",
    ("SELECT * FROM Psi WHERE MajitelID = (SELECT MajitelID FROM Psi WHERE ID = ?1) "
     "ORDER BY Jmeno DESC"),
};

} // namespace

void ReadToEnd(sqlite3_stmt* statement) {
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(statement); ++column)
            sqlite3_column_text(statement, column);
    }
    sqlite3_reset(statement);
}

BareDatabase::BareDatabase(const QString& path) {
    if (sqlite3_open(path.toUtf8().constData(), &database_) != SQLITE_OK)
        throw std::runtime_error("can't open " + path.toStdString());
    sqlite3_create_function(database_, "czech_key", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                            CzechKeyFunction, nullptr, nullptr);
}

BareDatabase::~BareDatabase() {
    for (sqlite3_stmt* statement : statements_)
        sqlite3_finalize(statement);
    sqlite3_close(database_);
}

sqlite3_stmt* BareDatabase::Prepare(const char* sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database_, sql, -1, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database_));
    statements_.push_back(statement);
    return statement;
}

void BareDatabase::Execute(const char* sql) {
    if (sqlite3_exec(database_, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database_));
}

std::vector<BareDog> ReadDogs(BareDatabase& database) {
    sqlite3_stmt* statement = database.Prepare(
        "SELECT ID, PlemenoID, Cislo, Trida, PohlaviPes, Jmeno FROM Psi ORDER BY PlemenoID, "
        "PohlaviPes, Trida, czech_key(Jmeno), ID");
    std::vector<BareDog> dogs;
    while (sqlite3_step(statement) == SQLITE_ROW)
        dogs.push_back({sqlite3_column_int(statement, 0), sqlite3_column_int(statement, 1),
                        sqlite3_column_int(statement, 2), sqlite3_column_int(statement, 3),
                        sqlite3_column_int(statement, 4) != 0, Text(statement, 5)});
    sqlite3_reset(statement);
    return dogs;
}

BareCard::BareCard(BareDatabase& database) {
    for (const char* sql : kCardStatements)
        statements_.push_back(database.Prepare(sql));
}

void BareCard::Read(int psiID) {
    for (sqlite3_stmt* statement : statements_) {
        if (sqlite3_bind_parameter_count(statement) > 0)
            sqlite3_bind_int(statement, 1, psiID);
        ReadToEnd(statement);
    }
}

} // namespace lorvo::bench
