#pragma once
// Exact money: a fixed-point number with four decimals, held as an integer count of
// ten-thousandths, as the store keeps it too.

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace lorvo {

class Currency {
  public:
    /// Ten-thousandths in one unit.
    static constexpr std::int64_t kScale = 10000;

    constexpr Currency() = default;

    /// From a whole number of units. Raises RangeError when it doesn't fit.
    static Currency FromUnits(std::int64_t units);
    /// From the stored count of ten-thousandths; every count is a valid amount.
    static constexpr Currency FromRaw(std::int64_t tenThousandths) {
        Currency result;
        result.raw_ = tenThousandths;
        return result;
    }
    /// From plain decimal text: optional sign, digits, optional decimal sign (point or comma) and
    /// decimals; blanks around are ignored. A fifth and further decimal rounds half to even.
    /// An empty text or anything else raises RangeError that quotes the text.
    static Currency FromText(std::string_view text);

    constexpr std::int64_t Raw() const { return raw_; }
    constexpr bool IsZero() const { return raw_ == 0; }
    constexpr bool IsNegative() const { return raw_ < 0; }

    /// Plain text without fixed decimals: 300 gives "300", 0.5 gives "0,5" with decimalSign ','.
    std::string ToPlainText(char decimalSign) const;

    /// Sums and differences are exact; RangeError on overflow, never a wrap-around.
    Currency operator+(Currency other) const;
    Currency operator-(Currency other) const;
    Currency operator-() const;
    Currency& operator+=(Currency other) { return *this = *this + other; }
    Currency& operator-=(Currency other) { return *this = *this - other; }
    /// Rounded half to even at the fourth decimal; RangeError on overflow.
    Currency operator*(Currency other) const;

    constexpr auto operator<=>(const Currency&) const = default;

  private:
    std::int64_t raw_ = 0;
};

} // namespace lorvo
