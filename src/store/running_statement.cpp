#include "store/running_statement.h"

#include "platform/values/errors.h"
#include "store/engine_failure.h"
#include "store/field_conversion.h"
#include "store/lock_wait.h"

#include <charconv>
#include <sqlite3.h>

namespace lorvo {

namespace {

/// A literal beside an amount is an amount; any other is whole or, rarely, has decimals.
int BindNumber(sqlite3_stmt* handle, int index, const std::string& digits, bool isAmount) {
    if (isAmount)
        return BindStored(handle, index, Currency::FromText(digits));
    const char* end = digits.data() + digits.size();
    if (digits.find('.') != std::string::npos) {
        double number = 0;
        std::from_chars(digits.data(), end, number);
        return sqlite3_bind_double(handle, index, number);
    }
    qint64 number = 0;
    if (std::from_chars(digits.data(), end, number).ec != std::errc())
        throw StoreError("Číslo " + digits + " je příliš dlouhé.");
    return sqlite3_bind_int64(handle, index, number);
}

bool IsAmount(const CachedStatement& statement, const Token& token) {
    return statement.Translated()->currencyParameters[static_cast<std::size_t>(token.parameter)];
}

int BindLiteral(const CachedStatement& statement, const Token& token) {
    const int index = token.parameter + 1;
    if (token.kind == Token::Kind::Number)
        return BindNumber(statement.Handle(), index, token.text, IsAmount(statement, token));
    return sqlite3_bind_text64(statement.Handle(), index, token.text.data(), token.text.size(),
                               SQLITE_TRANSIENT, SQLITE_UTF8);
}

int BindValue(const CachedStatement& statement, const Token& token, const Value& value) {
    const bool toAmount = IsAmount(statement, token) && !value.IsNull();
    return BindStored(statement.Handle(), token.parameter + 1,
                      toAmount ? Value(value.ToCurrency()) : value);
}

void RequireBound(const CachedStatement& statement, int code) {
    if (code != SQLITE_OK)
        ThrowFailure(sqlite3_db_handle(statement.Handle()));
}

} // namespace

void BindParameters(const CachedStatement& statement, const StatementTokens& tokens,
                    const std::vector<Value>& parameters) {
    std::size_t next = 0;
    for (const Token& token : tokens.tokens) {
        if (token.parameter < 0)
            continue;
        if (token.kind != Token::Kind::Parameter)
            RequireBound(statement, BindLiteral(statement, token));
        else if (next < parameters.size())
            RequireBound(statement, BindValue(statement, token, parameters[next++]));
        else
            throw StoreError("Příkaz má více otazníků než hodnot.");
    }
    if (next != parameters.size())
        throw StoreError("Příkaz má méně otazníků než hodnot.");
}

void BindAll(const CachedStatement& statement, const std::vector<Value>& values) {
    int index = 0;
    for (const Value& value : values)
        RequireBound(statement, BindStored(statement.Handle(), ++index, value));
}

bool Step(const CachedStatement& statement) {
    const int code = sqlite3_step(statement.Handle());
    EndLockWait();
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        ThrowFailure(sqlite3_db_handle(statement.Handle()));
    return code == SQLITE_ROW;
}

void Execute(const CachedStatement& statement) {
    while (Step(statement)) {
    }
}

} // namespace lorvo
