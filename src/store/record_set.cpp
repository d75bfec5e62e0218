#include "store/record_set.h"

#include "platform/values/errors.h"
#include "store/connection_internals.h"
#include "store/expression_writer.h"
#include "store/field_conversion.h"

#include <sqlite3.h>

namespace lorvo {

namespace {

enum class Edit { None, Change, Insert };

std::vector<Value> ReadRow(const CachedStatement& statement, const Translation& translation) {
    std::vector<Value> row;
    row.reserve(translation.columns.size());
    for (const ResultColumn& column : translation.columns)
        row.push_back(ReadAsItStands(statement.Handle(), static_cast<int>(row.size()), column));
    return row;
}

} // namespace

struct RecordSet::State {
    State(Connection& useConnection, std::string useName, Lock useLock)
        : connection(useConnection), name(std::move(useName)), lock(useLock) {}

    Connection& connection;
    const std::string name;
    const Lock lock;

    std::shared_ptr<const Translation> translation; ///< of the open statement, else null
    std::vector<std::vector<Value>> rows;
    std::vector<qint64> rowNumbers; ///< by which a changed row is found again
    std::size_t current = 0;

    Edit edit = Edit::None;
    std::vector<Value> edited; ///< the row under edit
    std::vector<bool> assigned;

    [[noreturn]] void Fail(const std::string& reason) const {
        throw StoreError("Tabulka " + name + ": " + reason);
    }
    void RequireOpen() const {
        if (!translation)
            Fail("sada záznamů není otevřena.");
    }
    void RequireEditable() const {
        RequireOpen();
        if (lock == Lock::ReadOnly || !translation->takesEdits)
            Fail("tuto sadu záznamů lze jen číst.");
    }

    void Read(const CachedStatement& statement) {
        const int rowNumber = static_cast<int>(translation->columns.size());
        while (Step(statement)) {
            rows.push_back(ReadRow(statement, *translation));
            if (translation->takesEdits)
                rowNumbers.push_back(sqlite3_column_int64(statement.Handle(), rowNumber));
        }
    }

    const std::vector<Value>& CurrentRow() const {
        RequireOpen();
        if (edit != Edit::None)
            return edited;
        if (current >= rows.size())
            Fail("žádný řádek není k dispozici.");
        return rows[current];
    }

    /// "Jmeno", or "Psi.Jmeno" where a join has several of that name.
    bool IsNamed(const ResultColumn& column, std::string_view field) const {
        if (SameName(column.name, field))
            return true;
        const std::size_t point = field.find('.');
        return point != std::string_view::npos && SameName(column.table, field.substr(0, point)) &&
               SameName(column.field, field.substr(point + 1));
    }

    std::size_t PositionOf(std::string_view field) const {
        RequireOpen();
        const std::vector<ResultColumn>& columns = translation->columns;
        for (std::size_t i = 0; i < columns.size(); ++i)
            if (IsNamed(columns[i], field))
                return i;
        Fail("neznámé pole " + std::string(field) + '.');
    }

    const Value& CellAt(std::size_t position) const {
        const Value& value = CurrentRow()[position];
        try {
            RequireAmount(connection.Internals().Handle(), value, translation->columns[position]);
        } catch (const StoreError& error) {
            Fail(error.what());
        }
        return value;
    }

    void StartEdit(Edit kind, std::vector<Value> row) {
        edit = kind;
        edited = std::move(row);
        assigned.assign(translation->columns.size(), false);
    }

    std::vector<Value> AssignedValues() const {
        std::vector<Value> values;
        for (std::size_t i = 0; i < assigned.size(); ++i)
            if (assigned[i])
                values.push_back(edited[i]);
        return values;
    }

    /// The names of the assigned fields, each with `suffix`, parted by commas.
    std::string AssignedNames(const std::string& suffix) const {
        std::string names;
        for (std::size_t i = 0; i < assigned.size(); ++i)
            if (assigned[i])
                names += (names.empty() ? "" : ", ") + QuotedName(translation->columns[i].field) +
                         suffix;
        return names;
    }

    void WriteInsert() {
        std::vector<Value> values = AssignedValues();
        const std::string into = "INSERT INTO " + QuotedName(translation->table);
        std::string places;
        for (std::size_t i = 0; i < values.size(); ++i)
            places += places.empty() ? "?" : ", ?";
        const std::string sql = values.empty()
                                    ? into + " DEFAULT VALUES"
                                    : into + " (" + AssignedNames("") + ") VALUES (" + places + ')';
        ExecuteNative(sql, values);
        rowNumbers.push_back(sqlite3_last_insert_rowid(connection.Internals().Handle()));
        current = rows.size();
        rows.push_back(edited);
    }

    void WriteChange() {
        std::vector<Value> values = AssignedValues();
        if (values.empty())
            return;
        values.emplace_back(rowNumbers[current]);
        ExecuteNative("UPDATE " + QuotedName(translation->table) + " SET " + AssignedNames(" = ?") +
                          " WHERE rowid = ?",
                      values);
        if (sqlite3_changes(connection.Internals().Handle()) == 0)
            Fail("řádek byl mezitím odstraněn.");
    }

    void ExecuteNative(const std::string& sql, const std::vector<Value>& values) {
        const CachedStatement statement = connection.Internals().PrepareNative(sql);
        BindAll(statement, values);
        Execute(statement);
    }

    void ReadBack() {
        std::string fields;
        for (const ResultColumn& column : translation->columns)
            fields += (fields.empty() ? "" : ", ") + QuotedName(column.field);
        const CachedStatement statement = connection.Internals().PrepareNative(
            "SELECT " + fields + " FROM " + QuotedName(translation->table) + " WHERE rowid = ?");
        BindAll(statement, {Value(rowNumbers[current])});
        if (Step(statement))
            rows[current] = ReadRow(statement, *translation);
    }
};

RecordSet::RecordSet(Connection& connection, std::string name, Lock lock)
    : state_(std::make_unique<State>(connection, std::move(name), lock)) {}

RecordSet::~RecordSet() = default;

void RecordSet::Open(std::string_view statement) {
    Close();
    Connection::Impl& inside = state_->connection.Internals();
    try {
        const StatementTokens tokens = Tokenize(statement);
        const CachedStatement prepared = inside.Prepare(tokens);
        const auto& translation = prepared.Translated();
        if (!translation->isSelect && state_->lock == Lock::ReadOnly)
            throw StoreError("tuto sadu záznamů lze jen číst.");
        BindParameters(prepared, tokens, {});
        if (translation->isSelect) {
            state_->translation = translation;
            state_->Read(prepared);
        } else {
            inside.BeforeEdit();
            Execute(prepared);
        }
    } catch (const CorruptStoreError&) {
        Close();
        throw;
    } catch (const DiskError&) {
        Close();
        throw;
    } catch (const StoreError& error) {
        Close();
        state_->Fail(error.what());
    }
    if (!state_->translation)
        inside.EditDone();
}

void RecordSet::Close() {
    state_->translation.reset();
    state_->rows.clear();
    state_->rowNumbers.clear();
    state_->current = 0;
    state_->edit = Edit::None;
}

int RecordSet::RecordCount() const {
    state_->RequireOpen();
    return static_cast<int>(state_->rows.size());
}

bool RecordSet::Eof() const {
    state_->RequireOpen();
    return state_->current >= state_->rows.size();
}

void RecordSet::MoveNext() {
    if (state_->edit != Edit::None)
        state_->Fail("změny řádku ještě nejsou uloženy.");
    if (Eof())
        state_->Fail("za posledním řádkem už žádný není.");
    ++state_->current;
}

const Value& RecordSet::Field(std::string_view name) const {
    return state_->CellAt(state_->PositionOf(name));
}

const Value& RecordSet::Field(int position) const {
    const std::size_t count = state_->CurrentRow().size();
    if (position < 0 || static_cast<std::size_t>(position) >= count)
        state_->Fail("pole číslo " + std::to_string(position) + " neexistuje.");
    return state_->CellAt(static_cast<std::size_t>(position));
}

bool RecordSet::IsNumeric(std::string_view amount) const {
    const std::size_t position = state_->PositionOf(amount);
    const Value& value = state_->CurrentRow()[position];
    return !value.IsNull() && !StrayText(value, state_->translation->columns[position]);
}

void RecordSet::AddNew() {
    state_->RequireEditable();
    state_->StartEdit(Edit::Insert, std::vector<Value>(state_->translation->columns.size()));
}

void RecordSet::Set(std::string_view name, const Value& value) {
    state_->RequireEditable();
    const std::size_t position = state_->PositionOf(name);
    const ResultColumn& column = state_->translation->columns[position];
    if (state_->edit == Edit::None)
        state_->StartEdit(Edit::Change, state_->CurrentRow());
    state_->edited[position] = ConvertForField(value, column.type, column.field);
    state_->assigned[position] = true;
}

void RecordSet::Update() {
    state_->RequireEditable();
    const Edit edit = state_->edit;
    state_->edit = Edit::None; // a failed edit is given up
    if (edit == Edit::None)
        return;
    state_->connection.Internals().BeforeEdit();
    if (edit == Edit::Insert)
        state_->WriteInsert();
    else
        state_->WriteChange();
    state_->ReadBack();
    state_->connection.Internals().EditDone();
}

} // namespace lorvo
