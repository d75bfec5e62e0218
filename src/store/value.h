#pragma once
// One cell of a record set.

#include "platform/values/date_value.h"
#include "platform/values/money.h"

#include <QString>
#include <variant>

namespace lorvo {

/// Holds Null, a whole number, a boolean, a currency amount, a date or a text, and reads as what
/// the caller asks for. Readers treat Null as the type's zero, as office code does.
class Value {
  public:
    Value() = default; ///< Null
    Value(bool value) : data_(value) {}
    Value(int value) : data_(static_cast<qint64>(value)) {}
    Value(qint64 value) : data_(value) {}
    Value(Currency value) : data_(value) {}
    Value(DateValue value) : data_(value) {}
    Value(QString value) : data_(std::move(value)) {}
    Value(const char*) = delete;

    bool IsNull() const { return std::holds_alternative<std::monostate>(data_); }

    /// Null reads as 0, true as -1, a currency or text by its whole part; a text that is no number
    /// raises StoreError. A number outside 32 bits raises RangeError.
    int ToInt() const;
    /// Null reads as false, a number as "is not 0".
    bool ToBool() const;
    /// Null reads as 0. A number counts whole units; a text goes through Currency::FromText.
    Currency ToCurrency() const;
    /// Null reads as the date value 0; a text that is no date raises StoreError.
    DateValue ToDate() const;
    /// Null reads as an empty text; a number or an amount as plain text with a decimal point.
    QString ToText() const;

    const std::variant<std::monostate, qint64, bool, Currency, DateValue, QString>& Data() const {
        return data_;
    }
    bool operator==(const Value&) const = default;

  private:
    std::variant<std::monostate, qint64, bool, Currency, DateValue, QString> data_;
};

} // namespace lorvo
