#include "platform/values/number_text.h"

#include <algorithm>

namespace lorvo {

namespace {

constexpr std::size_t kGroupDigits = 3;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t CountDigits(std::string_view text) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsDigit) -
                                    text.begin());
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Takes text away from its front as it is read.
class Reader {
  public:
    explicit Reader(std::string_view text) : rest_(Trimmed(text)) {}

    bool IsAtEnd() const { return rest_.empty(); }
    std::string Sign() { return StartsWith("+-") ? std::string(Take(1)) : std::string(); }
    std::string Digits() { return std::string(Take(CountDigits(rest_))); }
    bool DecimalSign() { return StartsWith(",.") && !Take(1).empty(); }

    /// Digits and the groups behind them; the digits alone where no group follows.
    std::string GroupedDigits(char group) {
        std::string digits = Digits();
        if (digits.empty())
            return digits;
        const char between = StartsWith(" ") ? ' ' : group;
        while (between != 0 && StartsWith({&between, 1}) &&
               CountDigits(rest_.substr(1)) == kGroupDigits)
            digits += Take(1 + kGroupDigits).substr(1);
        return digits;
    }

  private:
    bool StartsWith(std::string_view any) const {
        return !rest_.empty() && any.find(rest_.front()) != std::string_view::npos;
    }
    std::string_view Take(std::size_t count) {
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }

    std::string_view rest_;
};

} // namespace

std::optional<std::string> NumberFromText(std::string_view text, char group) {
    Reader reader(text);
    std::string number = reader.Sign();
    const std::string whole = reader.GroupedDigits(group);
    number += whole;
    std::string decimals;
    if (reader.DecimalSign()) {
        decimals = reader.Digits();
        number += '.' + decimals;
    }
    if (!reader.IsAtEnd() || (whole.empty() && decimals.empty()))
        return {};
    return number;
}

} // namespace lorvo
