#include "store/value.h"

#include "platform/values/errors.h"

#include <limits>

namespace lorvo {

namespace {

template<typename... Cases> struct Overloaded : Cases... { using Cases::operator()...; };
template<typename... Cases> Overloaded(Cases...) -> Overloaded<Cases...>;

std::string InQuotes(const QString& text) {
    return '"' + text.toStdString() + '"';
}

Currency AmountOfText(const QString& text) {
    try {
        return Currency::FromText(text.toStdString());
    } catch (const RangeError&) {
        throw StoreError(InQuotes(text) + " není číslo");
    }
}

int Narrowed(qint64 number) {
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
        throw RangeError("číslo " + std::to_string(number) + " je příliš velké");
    return static_cast<int>(number);
}

DateValue DateOfText(const QString& text) {
    const std::optional<DateValue> date = DateValue::FromIso(text.toStdString());
    if (!date)
        throw StoreError(InQuotes(text) + " není datum");
    return *date;
}

/// Days that a date with a year of four digits can have.
DateValue DateOfDays(qint64 days) {
    static const DateValue first = DateValue::FromCalendar(100, 1, 1);
    static const DateValue last = DateValue::FromCalendar(9999, 12, 31);
    if (days < first.Days() || days > last.Days())
        throw RangeError("číslo " + std::to_string(days) + " není datum");
    return DateValue::FromDays(static_cast<std::int32_t>(days));
}

} // namespace

int Value::ToInt() const {
    return std::visit(
        Overloaded{[](std::monostate) { return 0; }, [](qint64 number) { return Narrowed(number); },
                   [](bool flag) { return flag ? -1 : 0; },
                   [](Currency amount) { return Narrowed(amount.Raw() / Currency::kScale); },
                   [](DateValue date) { return static_cast<int>(date.Days()); },
                   [](const QString& text) {
                       return Narrowed(AmountOfText(text).Raw() / Currency::kScale);
                   }},
        data_);
}

bool Value::ToBool() const {
    return std::visit(
        Overloaded{[](std::monostate) { return false; }, [](qint64 number) { return number != 0; },
                   [](bool flag) { return flag; }, [](Currency amount) { return !amount.IsZero(); },
                   [](DateValue date) { return !date.IsZero(); },
                   [](const QString& text) {
                       return !AmountOfText(text).IsZero();
                   }},
        data_);
}

Currency Value::ToCurrency() const {
    return std::visit(Overloaded{[](std::monostate) { return Currency(); },
                                 [](qint64 number) { return Currency::FromUnits(number); },
                                 [](bool flag) { return Currency::FromUnits(flag ? -1 : 0); },
                                 [](Currency amount) { return amount; },
                                 [](DateValue date) { return Currency::FromUnits(date.Days()); },
                                 [](const QString& text) {
                                     return AmountOfText(text);
                                 }},
                      data_);
}

DateValue Value::ToDate() const {
    return std::visit(
        Overloaded{[](std::monostate) { return DateValue(); },
                   [](qint64 number) { return DateOfDays(number); },
                   [](bool flag) { return DateOfDays(flag ? -1 : 0); },
                   [](Currency amount) { return DateOfDays(amount.Raw() / Currency::kScale); },
                   [](DateValue date) { return date; },
                   [](const QString& text) {
                       return DateOfText(text);
                   }},
        data_);
}

QString Value::ToText() const {
    return std::visit(
        Overloaded{[](std::monostate) { return QString(); },
                   [](qint64 number) { return QString::number(number); },
                   [](bool flag) { return QString::number(flag ? -1 : 0); },
                   [](Currency amount) { return QString::fromStdString(amount.ToPlainText('.')); },
                   [](DateValue date) { return QString::fromStdString(date.ToIso()); },
                   [](const QString& text) {
                       return text;
                   }},
        data_);
}

} // namespace lorvo
