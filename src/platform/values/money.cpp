#include "platform/values/money.h"

#include "platform/values/errors.h"

#include <limits>

namespace lorvo {

namespace {

__extension__ using Wide = __int128;

constexpr int kDecimals = 4;
constexpr Wide kFarTooLarge = Wide{1} << 64; // where reading on would only risk the wide type

[[noreturn]] void RaiseTooLarge(const std::string& what) {
    throw RangeError("Částka " + what + " je mimo rozsah, který lze uložit.");
}

[[noreturn]] void RaiseNotNumber(std::string_view text) {
    throw RangeError("Text „" + std::string(text) + "“ není částka.");
}

std::string Operation(Currency left, const char* sign, Currency right) {
    return left.ToPlainText(',') + sign + right.ToPlainText(',');
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

/// Quotient of non-negative `value`, the half rounded to the even neighbour.
Wide DividedHalfEven(Wide value, Wide divisor) {
    const Wide quotient = value / divisor;
    const Wide twice = value % divisor * 2;
    const bool up = twice > divisor || (twice == divisor && quotient % 2 != 0);
    return quotient + (up ? 1 : 0);
}

/// The digits of a decimal text, gathered while they are read from the left.
class DecimalReader {
  public:
    explicit DecimalReader(std::string_view whole) : whole_(whole) {}

    void Take(char c) {
        if ((c == '.' || c == ',') && !pastSign_)
            pastSign_ = true;
        else if (c >= '0' && c <= '9')
            TakeDigit(c - '0');
        else
            RaiseNotNumber(whole_);
    }

    /// Ten-thousandths without the sign, rounded half to even.
    Wide Count() const {
        if (!anyDigit_)
            RaiseNotNumber(whole_);
        Wide count = count_;
        for (int i = decimals_; i < kDecimals; ++i)
            count *= 10;
        const bool up = next_ > 5 || (next_ == 5 && (beyond_ || count % 2 != 0));
        return count + (up ? 1 : 0);
    }

  private:
    void TakeDigit(int digit) {
        anyDigit_ = true;
        if (!pastSign_ || decimals_ < kDecimals) {
            count_ = count_ * 10 + digit;
            decimals_ += pastSign_ ? 1 : 0;
            if (count_ > kFarTooLarge)
                RaiseTooLarge(std::string(whole_));
        } else if (next_ < 0) {
            next_ = digit;
        } else {
            beyond_ = beyond_ || digit != 0;
        }
    }

    std::string_view whole_;
    Wide count_ = 0;
    int decimals_ = 0;
    int next_ = -1; ///< the first decimal that has no place
    bool beyond_ = false;
    bool pastSign_ = false;
    bool anyDigit_ = false;
};

bool FitsRaw(Wide count) {
    return count >= std::numeric_limits<std::int64_t>::min() &&
           count <= std::numeric_limits<std::int64_t>::max();
}

} // namespace

Currency Currency::FromUnits(std::int64_t units) {
    std::int64_t raw = 0;
    if (__builtin_mul_overflow(units, kScale, &raw))
        RaiseTooLarge(std::to_string(units));
    return FromRaw(raw);
}

Currency Currency::FromText(std::string_view text) {
    std::string_view rest = Trimmed(text);
    const bool negative = !rest.empty() && rest.front() == '-';
    if (negative || (!rest.empty() && rest.front() == '+'))
        rest.remove_prefix(1);
    DecimalReader reader(text);
    for (const char c : rest)
        reader.Take(c);
    const Wide count = negative ? -reader.Count() : reader.Count();
    if (!FitsRaw(count))
        RaiseTooLarge(std::string(text));
    return FromRaw(static_cast<std::int64_t>(count));
}

std::string Currency::ToPlainText(char decimalSign) const {
    const std::uint64_t size =
        raw_ < 0 ? 0 - static_cast<std::uint64_t>(raw_) : static_cast<std::uint64_t>(raw_);
    const auto scale = static_cast<std::uint64_t>(kScale);
    std::string text = (raw_ < 0 ? "-" : "") + std::to_string(size / scale);
    if (size % scale == 0)
        return text;
    std::string decimals = std::to_string(scale + size % scale).substr(1);
    decimals.erase(decimals.find_last_not_of('0') + 1);
    return text + decimalSign + decimals;
}

Currency Currency::operator+(Currency other) const {
    std::int64_t raw = 0;
    if (__builtin_add_overflow(raw_, other.raw_, &raw))
        RaiseTooLarge(Operation(*this, " + ", other));
    return FromRaw(raw);
}

Currency Currency::operator-(Currency other) const {
    std::int64_t raw = 0;
    if (__builtin_sub_overflow(raw_, other.raw_, &raw))
        RaiseTooLarge(Operation(*this, " - ", other));
    return FromRaw(raw);
}

Currency Currency::operator-() const {
    return Currency() - *this;
}

Currency Currency::operator*(Currency other) const {
    const Wide product = Wide{raw_} * other.raw_;
    const Wide size = DividedHalfEven(product < 0 ? -product : product, kScale);
    const Wide count = product < 0 ? -size : size;
    if (!FitsRaw(count))
        RaiseTooLarge(Operation(*this, " × ", other));
    return FromRaw(static_cast<std::int64_t>(count));
}

} // namespace lorvo
