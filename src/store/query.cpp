#include "store/query.h"

#include "platform/values/errors.h"
#include "store/connection_internals.h"
#include "store/field_conversion.h"

#include <limits>
#include <sqlite3.h>

namespace lorvo {

struct Query::State {
    StatementTokens tokens;
    CachedStatement statement;
    bool hasRow = false;

    sqlite3_stmt* Handle() const { return statement.Handle(); }
    FieldType TypeOf(int column) const {
        const std::vector<ResultColumn>& columns = statement.Translated()->columns;
        if (!hasRow || column < 0 || static_cast<std::size_t>(column) >= columns.size())
            throw StoreError("Dotaz nemá řádek nebo pole číslo " + std::to_string(column) + '.');
        return columns[static_cast<std::size_t>(column)].type;
    }
    /// Whether the cell lies in the file in the one way that its type is mostly kept.
    bool Holds(int column, FieldType type, int storage) const {
        return TypeOf(column) == type && sqlite3_column_type(Handle(), column) == storage;
    }
};

Query::Query(Connection& connection, std::string_view statement,
             const std::vector<Value>& parameters) {
    StatementTokens tokens = Tokenize(statement);
    CachedStatement prepared = connection.Internals().Prepare(tokens);
    if (!prepared.Translated()->isSelect)
        throw StoreError("Dotaz smí jen číst.");
    BindParameters(prepared, tokens, parameters);
    state_ = std::make_unique<State>(State{std::move(tokens), std::move(prepared)});
}

Query::~Query() = default;

bool Query::Next() {
    return state_->hasRow = Step(state_->statement);
}

bool Query::IsNull(int column) const {
    state_->TypeOf(column);
    return sqlite3_column_type(state_->Handle(), column) == SQLITE_NULL;
}

int Query::Int(int column) const {
    if (!state_->Holds(column, FieldType::Integer, SQLITE_INTEGER))
        return Cell(column).ToInt();
    const qint64 number = sqlite3_column_int64(state_->Handle(), column);
    const int narrowed = static_cast<int>(number);
    return narrowed == number ? narrowed : Cell(column).ToInt();
}

bool Query::Bool(int column) const {
    if (!state_->Holds(column, FieldType::Boolean, SQLITE_INTEGER))
        return Cell(column).ToBool();
    return sqlite3_column_int64(state_->Handle(), column) != 0;
}

Currency Query::Amount(int column) const {
    if (!state_->Holds(column, FieldType::Currency, SQLITE_INTEGER))
        return Cell(column).ToCurrency();
    return Currency::FromRaw(sqlite3_column_int64(state_->Handle(), column));
}

DateValue Query::Date(int column) const {
    if (state_->Holds(column, FieldType::DateTime, SQLITE_TEXT)) {
        const auto* text =
            reinterpret_cast<const char*>(sqlite3_column_text(state_->Handle(), column));
        const auto length =
            static_cast<std::size_t>(sqlite3_column_bytes(state_->Handle(), column));
        if (const auto date = DateValue::FromIso({text, length}))
            return *date;
    }
    return Cell(column).ToDate();
}

QString Query::Text(int column) const {
    if (!state_->Holds(column, FieldType::Text, SQLITE_TEXT))
        return Cell(column).ToText();
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(state_->Handle(), column));
    return QString::fromUtf8(text, sqlite3_column_bytes(state_->Handle(), column));
}

Value Query::Cell(int column) const {
    state_->TypeOf(column);
    return ReadStored(state_->Handle(), column,
                      state_->statement.Translated()->columns[static_cast<std::size_t>(column)]);
}

} // namespace lorvo
