#include "store/field_conversion.h"

#include "platform/values/errors.h"
#include "store/database_file.h"
#include "store/text_width.h"

#include <limits>
#include <sqlite3.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

bool IsBlankText(const Value& value) {
    const QString* text = std::get_if<QString>(&value.Data());
    return text && text->trimmed().isEmpty();
}

QString CheckedText(const Value& value) {
    QString text = value.ToText();
    if (text.size() > kLongestText)
        throw StoreError("text je delší než " + std::to_string(kLongestText) + " znaků");
    return text;
}

Value Convert(const Value& value, FieldType type) {
    switch (type) {
    case FieldType::Boolean:
        return value.ToBool();
    case FieldType::Integer:
        return value.ToInt();
    case FieldType::Currency:
        return value.ToCurrency();
    case FieldType::DateTime:
        return value.ToDate();
    case FieldType::Text:
        return CheckedText(value);
    case FieldType::Unknown:
        break;
    }
    return value;
}

std::string InField(const std::string& field, const char* reason) {
    return "Pole " + field + ": " + reason + '.';
}

int BindText(sqlite3_stmt* statement, int index, const QByteArray& utf8) {
    return sqlite3_bind_text64(statement, index, utf8.constData(),
                               static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT,
                               SQLITE_UTF8);
}

QString ReadText(sqlite3_stmt* statement, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(statement, column));
}

std::string NoNumber(const QString& text) {
    return '"' + text.toStdString() + "\" není číslo";
}

Value ReadNumber(qint64 number, FieldType type) {
    switch (type) {
    case FieldType::Boolean:
        return number != 0;
    case FieldType::Currency:
        return Currency::FromRaw(number);
    case FieldType::DateTime:
        return Value(number).ToDate();
    case FieldType::Integer:
        return Value(number).ToInt();
    default:
        return number;
    }
}

Value ReadDate(const QString& text) {
    const std::optional<DateValue> date = DateValue::FromIso(text.toStdString());
    if (!date)
        throw StoreError("\"" + text.toStdString() + "\" není datum");
    return *date;
}

Value ReadCell(sqlite3_stmt* statement, int position, FieldType type) {
    switch (sqlite3_column_type(statement, position)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return ReadNumber(sqlite3_column_int64(statement, position), type);
    case SQLITE_TEXT:
        if (type == FieldType::DateTime)
            return ReadDate(ReadText(statement, position));
        if (type == FieldType::Text || type == FieldType::Unknown)
            return ReadText(statement, position);
        throw StoreError(NoNumber(ReadText(statement, position)));
    default:
        throw StoreError("v souboru je hodnota jiného druhu");
    }
}

std::string AboutCell(sqlite3* database, const ResultColumn& column, const char* reason) {
    const char* path = sqlite3_db_filename(database, "main");
    const QString table = column.table.empty()
                              ? QString()
                              : u"tabulka %1, "_s.arg(QString::fromStdString(column.table));
    return AboutFile(QString::fromUtf8(path),
                     table + u"pole %1: "_s.arg(QString::fromStdString(column.name)) +
                         QString::fromUtf8(reason));
}

} // namespace

Value ConvertForField(const Value& value, FieldType type, const std::string& field) {
    if (value.IsNull() || (type != FieldType::Text && IsBlankText(value)))
        return {};
    try {
        return Convert(value, type);
    } catch (const RangeError& error) {
        throw RangeError(InField(field, error.what()));
    } catch (const StoreError& error) {
        throw StoreError(InField(field, error.what()));
    }
}

int BindStored(sqlite3_stmt* statement, int index, const Value& value) {
    struct Binder {
        sqlite3_stmt* statement;
        int index;
        int operator()(std::monostate) const { return sqlite3_bind_null(statement, index); }
        int operator()(qint64 number) const { return sqlite3_bind_int64(statement, index, number); }
        int operator()(bool flag) const {
            return sqlite3_bind_int(statement, index, flag ? -1 : 0);
        }
        int operator()(Currency amount) const {
            return sqlite3_bind_int64(statement, index, amount.Raw());
        }
        int operator()(DateValue date) const {
            return BindText(statement, index, QByteArray::fromStdString(date.ToIso()));
        }
        int operator()(const QString& text) const {
            return BindText(statement, index, text.toUtf8());
        }
    };
    return std::visit(Binder{statement, index}, value.Data());
}

Value ReadStored(sqlite3_stmt* statement, int position, const ResultColumn& column) {
    try {
        return ReadCell(statement, position, column.type);
    } catch (const Error& error) {
        throw StoreError(AboutCell(sqlite3_db_handle(statement), column, error.what()));
    }
}

Value ReadAsItStands(sqlite3_stmt* statement, int position, const ResultColumn& column) {
    const bool isText = sqlite3_column_type(statement, position) == SQLITE_TEXT;
    return isText && column.type == FieldType::Currency ? Value(ReadText(statement, position))
                                                        : ReadStored(statement, position, column);
}

const QString* StrayText(const Value& value, const ResultColumn& column) {
    return column.type == FieldType::Currency ? std::get_if<QString>(&value.Data()) : nullptr;
}

void RequireAmount(sqlite3* database, const Value& value, const ResultColumn& column) {
    if (const QString* text = StrayText(value, column))
        throw StoreError(AboutCell(database, column, NoNumber(*text).c_str()));
}

} // namespace lorvo
