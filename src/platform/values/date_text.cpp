#include "platform/values/date_text.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <vector>

namespace lorvo {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kSigns = "./-,"; // the comma is what a Czech keypad has for the dot
constexpr size_t kShortYear = 2;
constexpr size_t kFullYear = 4;
constexpr int kCentury = 100;

/// The parts of a date as they were written; an empty year was left out.
struct Spelling {
    std::string_view day;
    std::string_view month;
    std::string_view year;
};

Spelling InOrder(DateOrder order, std::string_view first, std::string_view second,
                 std::string_view year) {
    return order == DateOrder::DayFirst ? Spelling{first, second, year}
                                        : Spelling{second, first, year};
}

size_t EndOfRun(std::string_view text, std::string_view of, size_t from) {
    return std::min(text.find_first_not_of(of, from), text.size());
}

/// Where the next part begins: past blanks, at most one sign, and blanks.
size_t PastSeparator(std::string_view text, size_t from) {
    size_t at = EndOfRun(text, kBlanks, from);
    if (at < text.size() && kSigns.find(text[at]) != std::string_view::npos)
        at = EndOfRun(text, kBlanks, at + 1);
    return at;
}

/// The runs of digits, empty when anything else stands in the text than separators between them
/// and one behind them.
std::vector<std::string_view> Parts(std::string_view text) {
    std::vector<std::string_view> parts;
    size_t at = EndOfRun(text, kBlanks, 0);
    while (at < text.size()) {
        const size_t end = EndOfRun(text, "0123456789", at);
        if (end == at)
            return {};
        parts.push_back(text.substr(at, end - at));
        at = PastSeparator(text, end);
    }
    return parts;
}

bool IsShort(std::string_view part) {
    return part.size() == 1 || part.size() == 2;
}

bool IsYear(std::string_view part) {
    return part.size() == kShortYear || part.size() == kFullYear;
}

/// A run of digits alone: ddMMyyyy or ddMMyy.
std::optional<Spelling> FromDigits(std::string_view digits, DateOrder order) {
    if (digits.size() != 4 + kShortYear && digits.size() != 4 + kFullYear)
        return {};
    return InOrder(order, digits.substr(0, 2), digits.substr(2, 2), digits.substr(4));
}

std::optional<Spelling> FromText(std::string_view text, DateOrder order) {
    const std::vector<std::string_view> parts = Parts(text);
    if (parts.size() == 1)
        return FromDigits(parts[0], order);
    if (parts.size() == 2 && IsShort(parts[0]) && IsShort(parts[1]))
        return InOrder(order, parts[0], parts[1], {});
    if (parts.size() != 3 || !IsShort(parts[1]))
        return {};
    if (parts[0].size() == kFullYear && IsShort(parts[2]))
        return Spelling{parts[2], parts[1], parts[0]};
    if (IsShort(parts[0]) && IsYear(parts[2]))
        return InOrder(order, parts[0], parts[1], parts[2]);
    return {};
}

int Number(std::string_view digits) {
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

std::optional<DateValue> OnCalendar(const Spelling& date, int year) {
    using namespace std::chrono;
    const year_month_day day{std::chrono::year(year),
                             month(static_cast<unsigned>(Number(date.month))),
                             std::chrono::day(static_cast<unsigned>(Number(date.day)))};
    if (!day.ok() || year < 1)
        return {};
    return DateValue::FromCalendar(year, Number(date.month), Number(date.day));
}

std::optional<DateValue> InWindow(const Spelling& date, DateValue today, YearWindow window) {
    const int latest = window == YearWindow::Past ? today.Year() : today.Year() + kCentury / 2 - 1;
    const int year = latest - (latest - Number(date.year)) % kCentury;
    const auto inLatest = OnCalendar(date, year);
    if (window == YearWindow::Past && inLatest && *inLatest > today)
        return OnCalendar(date, year - kCentury);
    return inLatest;
}

} // namespace

std::optional<DateValue> WholeDateFromText(std::string_view text, DateOrder order) {
    const auto date = FromText(text, order);
    if (!date || date->year.size() != kFullYear)
        return {};
    return OnCalendar(*date, Number(date->year));
}

std::optional<DateValue> DateFromText(std::string_view text, DateOrder order, DateValue today,
                                      YearWindow window) {
    const auto date = FromText(text, order);
    if (!date)
        return {};
    if (date->year.empty())
        return OnCalendar(*date, today.Year());
    if (date->year.size() == kFullYear)
        return OnCalendar(*date, Number(date->year));
    return InWindow(*date, today, window);
}

} // namespace lorvo
