#include "store/rows.h"

#include "platform/values/errors.h"

namespace lorvo {

namespace {

void Assign(RecordSet& set, const Assignments& fields) {
    for (const auto& [field, value] : fields)
        set.Set(field, value);
}

} // namespace

Value ReadScalar(RecordSet& set, const std::string& statement) {
    set.Open(statement);
    Value value = set.Field(0);
    set.Close();
    return value;
}

std::size_t RowsIn(const std::string& table) {
    Query count(TheDataModule().Conn1, "SELECT COUNT(*) FROM " + table);
    return count.Next() ? static_cast<std::size_t>(count.Int(0)) : 0;
}

int ReadCount(RecordSet& set, const std::string& statement) {
    return ReadScalar(set, statement).ToInt();
}

std::vector<int> ReadNumbers(const std::string& statement) {
    return ReadMany(statement, [](const Query& row) { return row.Int(0); });
}

std::vector<QString> ReadTexts(const std::string& statement) {
    return ReadMany(statement, [](const Query& row) { return row.Text(0); });
}

void ThrowNoRow(const char* table, int ID) {
    throw StoreError(std::string("V tabulce ") + table + " není řádek s číslem " + Number(ID) +
                     '.');
}

int InsertRow(RecordSet& set, const std::string& table, const Assignments& fields) {
    // A new row needs none of the old ones, so the set is opened on no row at all.
    set.Open("SELECT * FROM " + table + " WHERE ID = 0");
    set.AddNew();
    Assign(set, fields);
    set.Update();
    const int ID = set.Field("ID").ToInt();
    set.Close();
    return ID;
}

void InsertLinks(RecordSet& set, const std::string& table, const char* owner, int ownerID,
                 const char* target, const std::vector<int>& targetIDs) {
    EditRun run(TheDataModule().Conn1);
    set.Open("SELECT * FROM " + table + " WHERE " + owner + " = " + Number(ownerID));
    for (const int targetID : targetIDs) {
        set.AddNew();
        set.Set(owner, ownerID);
        set.Set(target, targetID);
        set.Update();
    }
    set.Close();
    run.Finish();
}

void ChangeRow(RecordSet& set, const std::string& table, int ID, const Assignments& fields) {
    set.Open("SELECT * FROM " + table + " WHERE ID = " + Number(ID));
    Assign(set, fields);
    set.Update();
    set.Close();
}

void ChangeRows(RecordSet& set, const std::string& statement, const Assignments& fields) {
    EditRun run(TheDataModule().Conn1);
    set.Open(statement);
    for (; !set.Eof(); set.MoveNext()) {
        Assign(set, fields);
        set.Update();
    }
    set.Close();
    run.Finish();
}

void ChangeFirstRow(RecordSet& set, const std::string& table, const Assignments& fields) {
    set.Open("SELECT * FROM " + table);
    Assign(set, fields);
    set.Update();
    set.Close();
}

void DeleteRows(RecordSet& set, const std::string& table, const std::string& field, int number) {
    set.Open("DELETE * FROM " + table + " WHERE " + field + " = " + Number(number));
}

void DeleteAllRows(RecordSet& set, const std::string& table) {
    set.Open("DELETE * FROM " + table);
}

int CountNamed(RecordSet& set, const std::string& table, const QString& nazev) {
    return ReadCount(set, "SELECT COUNT (*) FROM " + table +
                              " WHERE LCASE(Nazev) = " + Quoted(nazev.toLower()));
}

std::unordered_map<int, int> CountEach(const std::string& statement) {
    std::unordered_map<int, int> counts;
    for (Query query(TheDataModule().Conn1, statement); query.Next();)
        ++counts[query.Int(0)];
    return counts;
}

LinkTable ReadLinks(const std::string& statement) {
    return LinkTable(
        ReadMany(statement, [](const Query& row) { return std::pair(row.Int(0), row.Int(1)); }));
}

std::optional<int> IntOrNull(const Query& row, int column) {
    return row.IsNull(column) ? std::nullopt : std::optional(row.Int(column));
}

std::optional<DateValue> DateOrNull(const Query& row, int column) {
    return row.IsNull(column) ? std::nullopt : std::optional(row.Date(column));
}

std::optional<QString> TextOrNull(const Query& row, int column) {
    return row.IsNull(column) ? std::nullopt : std::optional(row.Text(column));
}

std::optional<int> ToOptionalInt(const Value& value) {
    return value.IsNull() ? std::nullopt : std::optional(value.ToInt());
}

std::optional<Currency> ToOptionalCurrency(const Value& value) {
    return value.IsNull() ? std::nullopt : std::optional(value.ToCurrency());
}

std::optional<DateValue> ToOptionalDate(const Value& value) {
    return value.IsNull() ? std::nullopt : std::optional(value.ToDate());
}

} // namespace lorvo
