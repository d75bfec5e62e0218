#pragma once
// What the program asks of the user's locale.

#include "platform/values/date_value.h"

#include <QString>
#include <optional>

namespace lorvo {

/// The locale's item with the currency symbol, in the platform's numbering.
inline constexpr int kLocaleCurrencySymbol = 20;

class LocaleInfo {
  public:
    virtual ~LocaleInfo() = default;
    /// The text of a locale item; empty for an item that doesn't exist, 0 among them.
    virtual QString Item(int item) const = 0;
    virtual char DecimalSign() const = 0;
    /// Short date of a date value: "14.5.2005" in a Czech locale, with " H:mm:ss" behind it when
    /// there is a time of day.
    virtual QString DateText(DateValue value) const = 0;
    /// Short date without the time.
    virtual QString ShortDate(DateValue value) const = 0;
    /// The pattern of the short date as date pickers take it ("d.M.yyyy").
    virtual QString ShortDatePattern() const = 0;
    /// A text that is a number (values/number_text.h, with the locale's grouping), rewritten
    /// without grouping and with a point as the decimal sign; nullopt for any other text, the empty
    /// one among them.
    [[nodiscard]] virtual std::optional<QString> PlainNumber(const QString& text) const = 0;

    [[nodiscard]] bool IsNumeric(const QString& text) const {
        return PlainNumber(text).has_value();
    }
};

} // namespace lorvo
