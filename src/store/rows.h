#pragma once
// What the routines of all tables share: reading and writing rows. For src/store alone.

#include "store/data_module.h"
#include "store/link_table.h"
#include "store/query.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace lorvo {

/// All rows of `statement`, each read by `read(const RecordSet&)`.
template<class Reader> auto ReadRows(RecordSet& set, const std::string& statement, Reader read) {
    std::vector<decltype(read(set))> rows;
    set.Open(statement);
    rows.reserve(static_cast<std::size_t>(set.RecordCount()));
    for (; !set.Eof(); set.MoveNext())
        rows.push_back(read(set));
    set.Close();
    return rows;
}

/// The first row of `statement`; nullopt when there is none.
template<class Reader> auto ReadFirst(RecordSet& set, const std::string& statement, Reader read) {
    std::optional<decltype(read(set))> row;
    set.Open(statement);
    if (!set.Eof())
        row = read(set);
    set.Close();
    return row;
}

/// StoreError that names a row which is gone.
[[noreturn]] void ThrowNoRow(const char* table, int ID);

/// The row of `table` with this ID, where only a damaged show can lack it. StoreError without one.
template<class Row> Row Existing(std::optional<Row> row, const char* table, int ID) {
    if (!row)
        ThrowNoRow(table, ID);
    return *std::move(row);
}

/// How many rows a table has, so that room for all of them can be made at once.
std::size_t RowsIn(const std::string& table);

/// All rows of `statement`, each read by `read(const Query&)`: for tables that hold many rows.
template<class Reader> auto ReadMany(const std::string& statement, Reader read) {
    Query query(TheDataModule().Conn1, statement);
    std::vector<decltype(read(query))> rows;
    while (query.Next())
        rows.push_back(read(query));
    return rows;
}

/// The rows by their ID.
template<class Row> std::unordered_map<int, Row> ByID(std::vector<Row> rows) {
    std::unordered_map<int, Row> byID;
    byID.reserve(rows.size());
    for (Row& row : rows)
        byID.emplace(row.ID, std::move(row));
    return byID;
}

/// Fields and what to store in them.
using Assignments = std::vector<std::pair<const char*, Value>>;

/// Column 0 of the first row. StoreError when there is no row.
Value ReadScalar(RecordSet& set, const std::string& statement);
/// Column 0 of the first row as a whole number, for COUNT.
int ReadCount(RecordSet& set, const std::string& statement);
/// Column 0 of every row.
std::vector<int> ReadNumbers(const std::string& statement);
std::vector<QString> ReadTexts(const std::string& statement);

/// Stores a new row of `table` with these fields, the others at the table's defaults.
/// Returns its ID.
int InsertRow(RecordSet& set, const std::string& table, const Assignments& fields);
/// Stores rows of a table of links, which has no ID: one of `ownerID` with each target.
void InsertLinks(RecordSet& set, const std::string& table, const char* owner, int ownerID,
                 const char* target, const std::vector<int>& targetIDs);
/// Changes fields of the row with this ID. StoreError when there is no such row.
void ChangeRow(RecordSet& set, const std::string& table, int ID, const Assignments& fields);
/// Assigns the same to every row of `statement` and stores row by row.
void ChangeRows(RecordSet& set, const std::string& statement, const Assignments& fields);
/// Assigns to the first row of the table. StoreError when the table is empty.
void ChangeFirstRow(RecordSet& set, const std::string& table, const Assignments& fields);
/// Removes the rows of `table` whose `field` is `number`; the set stays shut.
void DeleteRows(RecordSet& set, const std::string& table, const std::string& field, int number);

/// Removes all rows of `table`; the set stays shut.
void DeleteAllRows(RecordSet& set, const std::string& table);
/// How many rows of `table` have this Nazev, whatever the letter case.
int CountNamed(RecordSet& set, const std::string& table, const QString& nazev);
/// How often each number stands in column 0 of the rows.
std::unordered_map<int, int> CountEach(const std::string& statement);
/// Column 1 of the rows by column 0.
LinkTable ReadLinks(const std::string& statement);

/// A cell of the current row; Null is nullopt.
[[nodiscard]] std::optional<int> IntOrNull(const Query& row, int column);
[[nodiscard]] std::optional<DateValue> DateOrNull(const Query& row, int column);
[[nodiscard]] std::optional<QString> TextOrNull(const Query& row, int column);

/// Null stays nullopt.
[[nodiscard]] std::optional<int> ToOptionalInt(const Value& value);
std::optional<Currency> ToOptionalCurrency(const Value& value);
[[nodiscard]] std::optional<DateValue> ToOptionalDate(const Value& value);

/// Nullopt becomes Null.
template<class T> Value FromOptional(const std::optional<T>& value) {
    return value ? Value(*value) : Value();
}
/// Adds the assignment unless `value` is nullopt.
template<class T>
void AssignIfGiven(Assignments& fields, const char* field, const std::optional<T>& value) {
    if (value)
        fields.emplace_back(field, Value(*value));
}

} // namespace lorvo
