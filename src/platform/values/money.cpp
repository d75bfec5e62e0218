#include "platform/values/money.h"

#include "platform/values/errors.h"
#include "platform/values/exact_arithmetic.h"

namespace lorvo {

namespace {

constexpr int kDecimals = 4;

[[noreturn]] void RaiseTooLarge(const std::string& what) {
    throw RangeError("Číslo " + what + " je mimo rozsah, který lze uložit.");
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

/// The digits of a decimal text, gathered while they are read from the left.
class DecimalReader {
  public:
    explicit DecimalReader(std::string_view whole) : whole_(whole) {}

    void Take(char c) {
        if ((c == '.' || c == ',') && !pastSign_)
            pastSign_ = true;
        else if (c >= '0' && c <= '9')
            TakeDigit(static_cast<unsigned>(c - '0'));
        else
            RaiseNotNumber(whole_);
    }

    /// Ten-thousandths without the sign, rounded half to even.
    std::uint64_t Count() const {
        if (!anyDigit_)
            RaiseNotNumber(whole_);
        std::uint64_t count = count_;
        for (int i = decimals_; i < kDecimals; ++i)
            count = WithDigit(count, 0);
        const bool up = next_ > 5 || (next_ == 5 && (beyond_ || count % 2 != 0));
        return count + (up ? 1 : 0);
    }

  private:
    std::uint64_t WithDigit(std::uint64_t count, unsigned digit) const {
        const std::optional<std::uint64_t> longer = ExactAppended(count, digit);
        if (!longer)
            RaiseTooLarge(std::string(whole_));
        return *longer;
    }

    void TakeDigit(unsigned digit) {
        anyDigit_ = true;
        if (!pastSign_ || decimals_ < kDecimals) {
            count_ = WithDigit(count_, digit);
            decimals_ += pastSign_ ? 1 : 0;
        } else if (next_ < 0) {
            next_ = static_cast<int>(digit);
        } else {
            beyond_ = beyond_ || digit != 0;
        }
    }

    std::string_view whole_;
    std::uint64_t count_ = 0;
    int decimals_ = 0;
    int next_ = -1; ///< the first decimal that has no place
    bool beyond_ = false;
    bool pastSign_ = false;
    bool anyDigit_ = false;
};

} // namespace

Currency Currency::FromUnits(std::int64_t units) {
    const std::optional<std::int64_t> raw = ExactProductDivided(units, kScale, 1);
    if (!raw)
        RaiseTooLarge(std::to_string(units));
    return FromRaw(*raw);
}

Currency Currency::FromText(std::string_view text) {
    std::string_view rest = Trimmed(text);
    const bool negative = !rest.empty() && rest.front() == '-';
    if (negative || (!rest.empty() && rest.front() == '+'))
        rest.remove_prefix(1);
    DecimalReader reader(text);
    for (const char c : rest)
        reader.Take(c);
    const std::optional<std::int64_t> count = ExactSigned(negative, reader.Count());
    if (!count)
        RaiseTooLarge(std::string(text));
    return FromRaw(*count);
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
    const std::optional<std::int64_t> raw = ExactSum(raw_, other.raw_);
    if (!raw)
        RaiseTooLarge(Operation(*this, " + ", other));
    return FromRaw(*raw);
}

Currency Currency::operator-(Currency other) const {
    const std::optional<std::int64_t> raw = ExactDifference(raw_, other.raw_);
    if (!raw)
        RaiseTooLarge(Operation(*this, " - ", other));
    return FromRaw(*raw);
}

Currency Currency::operator-() const {
    return Currency() - *this;
}

Currency Currency::operator*(Currency other) const {
    const std::optional<std::int64_t> raw = ExactProductDivided(raw_, other.raw_, kScale);
    if (!raw)
        RaiseTooLarge(Operation(*this, " × ", other));
    return FromRaw(*raw);
}

} // namespace lorvo
