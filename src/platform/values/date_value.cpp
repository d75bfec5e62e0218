#include "platform/values/date_value.h"

#include "platform/values/errors.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace lorvo {

namespace {

// Days from 1899-12-30 to 1970-01-01, where the standard library begins to count.
constexpr std::int32_t kDaysToUnixEpoch = 25569;
constexpr int kFirstYear = 1;
constexpr int kLastYear = 9999;

std::chrono::year_month_day Calendar(std::int32_t days) {
    using namespace std::chrono;
    return year_month_day(sys_days(std::chrono::days(days - kDaysToUnixEpoch)));
}

/// Walks a text of digits and separators; any mismatch makes it fail for good.
class IsoReader {
  public:
    explicit IsoReader(std::string_view text) : rest_(text) {}

    int Digits(std::size_t count) {
        int value = 0;
        for (std::size_t i = 0; i < count; ++i)
            value = value * 10 + Digit();
        return value;
    }
    void Sign(char sign) { ok_ = Accept(sign) && ok_; }
    bool Accept(char sign) {
        if (rest_.empty() || rest_.front() != sign)
            return false;
        rest_.remove_prefix(1);
        return true;
    }
    void SkipFraction() {
        do
            Digit();
        while (ok_ && !rest_.empty());
    }
    bool AtEnd() const { return rest_.empty(); }
    bool Ok() const { return ok_; }

  private:
    int Digit() {
        if (rest_.empty() || rest_.front() < '0' || rest_.front() > '9') {
            ok_ = false;
            return 0;
        }
        const int value = rest_.front() - '0';
        rest_.remove_prefix(1);
        return value;
    }

    std::string_view rest_;
    bool ok_ = true;
};

bool InRange(int value, int first, int last) {
    return value >= first && value <= last;
}

std::optional<DateValue> FromFields(int year, int month, int day) {
    using namespace std::chrono;
    // The library's calendar types wrap what is beyond a byte.
    if (!InRange(year, kFirstYear, kLastYear) || !InRange(month, 1, 12) || !InRange(day, 1, 31))
        return std::nullopt;
    const year_month_day date{std::chrono::year(year),
                              std::chrono::month(static_cast<unsigned>(month)),
                              std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok())
        return std::nullopt;
    const auto sinceEpoch = sys_days(date).time_since_epoch().count();
    return DateValue::FromDays(static_cast<std::int32_t>(sinceEpoch) + kDaysToUnixEpoch);
}

/// Second of the day of "HH:MM[:SS[.fff]]"; nullopt on an hour, minute or second that isn't one.
std::optional<std::int32_t> ReadTime(IsoReader& reader) {
    const int hour = reader.Digits(2);
    reader.Sign(':');
    const int minute = reader.Digits(2);
    int second = 0;
    if (reader.Accept(':')) {
        second = reader.Digits(2);
        if (reader.Accept('.'))
            reader.SkipFraction();
    }
    if (!reader.Ok() || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    return hour * 3600 + minute * 60 + second;
}

} // namespace

DateValue DateValue::FromCalendar(int year, int month, int day) {
    const auto date = FromFields(year, month, day);
    if (!date)
        throw RangeError("Datum " + std::to_string(day) + "." + std::to_string(month) + "." +
                         std::to_string(year) + " neexistuje.");
    return *date;
}

std::optional<DateValue> DateValue::FromIso(std::string_view text) {
    IsoReader reader(text);
    const int year = reader.Digits(4);
    reader.Sign('-');
    const int month = reader.Digits(2);
    reader.Sign('-');
    const int day = reader.Digits(2);
    std::optional<std::int32_t> seconds = 0;
    if (reader.Ok() && (reader.Accept('T') || reader.Accept(' ')))
        seconds = ReadTime(reader);
    const auto date = FromFields(year, month, day);
    if (!reader.Ok() || !reader.AtEnd() || !seconds || !date)
        return std::nullopt;
    return date->WithSecondOfDay(*seconds);
}

std::string DateValue::ToIso() const {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02dT%02d:%02d:%02d", Year(), Month(), Day(),
                  Hour(), Minute(), Second());
    return text.data();
}

int DateValue::Year() const {
    return static_cast<int>(Calendar(days_).year());
}

int DateValue::Month() const {
    return static_cast<int>(static_cast<unsigned>(Calendar(days_).month()));
}

int DateValue::Day() const {
    return static_cast<int>(static_cast<unsigned>(Calendar(days_).day()));
}

int MonthDifference(DateValue earlier, DateValue later) {
    return (later.Year() * 12 + later.Month()) - (earlier.Year() * 12 + earlier.Month());
}

} // namespace lorvo
