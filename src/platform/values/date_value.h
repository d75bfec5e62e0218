#pragma once
// A date with a time of day. Day 0 is 1899-12-30, the date value 0 of desktop stores.

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lorvo {

class DateValue {
  public:
    constexpr DateValue() = default;

    /// A calendar day at midnight (proleptic Gregorian). Raises RangeError on a day that does not
    /// exist.
    static DateValue FromCalendar(int year, int month, int day);
    static constexpr DateValue FromDays(std::int32_t daysSinceZero, std::int32_t secondOfDay = 0) {
        DateValue result;
        result.days_ = daysSinceZero;
        result.seconds_ = secondOfDay;
        return result;
    }
    /// Reads "YYYY-MM-DD", optionally followed by 'T' or a blank and "HH:MM[:SS[.fff]]".
    /// Nullopt when the text is none of these.
    [[nodiscard]] static std::optional<DateValue> FromIso(std::string_view text);

    /// "YYYY-MM-DDTHH:MM:SS", as the store keeps it.
    std::string ToIso() const;

    constexpr std::int32_t Days() const { return days_; }
    constexpr std::int32_t SecondOfDay() const { return seconds_; }
    int Year() const;
    int Month() const;
    int Day() const;
    int Hour() const { return seconds_ / 3600; }
    int Minute() const { return seconds_ / 60 % 60; }
    int Second() const { return seconds_ % 60; }

    /// The same day at midnight.
    constexpr DateValue DateOnly() const { return FromDays(days_); }
    constexpr DateValue WithSecondOfDay(std::int32_t seconds) const {
        return FromDays(days_, seconds);
    }
    /// The same time of day, so many days later (or earlier).
    constexpr DateValue PlusDays(std::int32_t days) const {
        return FromDays(days_ + days, seconds_);
    }
    constexpr bool IsZero() const { return days_ == 0 && seconds_ == 0; }

    constexpr auto operator<=>(const DateValue&) const = default;

  private:
    std::int32_t days_ = 0;
    std::int32_t seconds_ = 0;
};

/// Calendar months from `earlier` to `later` with no regard to the day of the month.
int MonthDifference(DateValue earlier, DateValue later);

} // namespace lorvo
