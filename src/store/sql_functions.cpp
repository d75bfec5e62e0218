#include "store/sql_functions.h"

#include "store/czech_order.h"
#include "store/engine_failure.h"

#include <QString>
#include <sqlite3.h>
#include <string_view>

namespace lorvo {

namespace {

std::string_view TextOf(sqlite3_value* value) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {bytes ? bytes : "", static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

void CzechKeyFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) != SQLITE_TEXT) {
        sqlite3_result_value(context, arguments[0]);
        return;
    }
    try {
        const std::string key = CzechKey(TextOf(arguments[0]));
        sqlite3_result_blob64(context, key.data(), key.size(), SQLITE_TRANSIENT);
    } catch (const std::exception& error) { // nothing may leave through the engine's C code
        sqlite3_result_error(context, error.what(), -1);
    }
}

void LcaseFunction(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) != SQLITE_TEXT) {
        sqlite3_result_value(context, arguments[0]);
        return;
    }
    const std::string_view text = TextOf(arguments[0]);
    const QByteArray lower =
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toLower().toUtf8();
    sqlite3_result_text64(context, lower.constData(), static_cast<sqlite3_uint64>(lower.size()),
                          SQLITE_TRANSIENT, SQLITE_UTF8);
}

} // namespace

void RegisterSqlFunctions(sqlite3* handle) {
    constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    const bool registered =
        sqlite3_create_function_v2(handle, "czech_key", 1, kFlags, nullptr, CzechKeyFunction,
                                   nullptr, nullptr, nullptr) == SQLITE_OK &&
        sqlite3_create_function_v2(handle, "lcase", 1, kFlags, nullptr, LcaseFunction, nullptr,
                                   nullptr, nullptr) == SQLITE_OK;
    if (!registered)
        ThrowFailure(handle);
}

} // namespace lorvo
