#include "platform/values/format_number.h"

#include "platform/values/errors.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace lorvo {

namespace {

/// A number as its decimal digits, without its sign.
struct Decimal {
    bool negative = false;
    std::string whole; ///< digits before the decimal sign, none for 0
    std::string decimals;

    bool IsZero() const {
        return whole.empty() && decimals.find_first_not_of('0') == std::string::npos;
    }
};

Decimal FromDigits(bool negative, std::string digits, std::ptrdiff_t pointAt) {
    if (pointAt < 0)
        digits.insert(0, static_cast<std::size_t>(-pointAt), '0');
    const auto cut = static_cast<std::size_t>(std::max<std::ptrdiff_t>(pointAt, 0));
    if (digits.size() < cut)
        digits.append(cut - digits.size(), '0');
    Decimal number{negative, digits.substr(0, cut), digits.substr(cut)};
    number.whole.erase(0, std::min(number.whole.find_first_not_of('0'), number.whole.size()));
    return number;
}

Decimal ToDecimal(Currency value) {
    const std::int64_t raw = value.Raw();
    const std::uint64_t size =
        raw < 0 ? 0 - static_cast<std::uint64_t>(raw) : static_cast<std::uint64_t>(raw);
    Decimal number{raw < 0, {}, std::to_string(Currency::kScale + size % Currency::kScale)};
    number.decimals.erase(0, 1);
    if (size >= Currency::kScale)
        number.whole = std::to_string(size / Currency::kScale);
    return number;
}

/// Fifteen digits: what of a double is certain, so that 0.285 is a half that rounds up.
Decimal ToDecimal(double value) {
    if (!std::isfinite(value))
        throw RangeError("Hodnotu, která není číslo, nelze zapsat jako číslo.");
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                   std::chars_format::scientific, 14);
    const std::string text(buffer.data(), end.ptr);
    const std::size_t mark = text.find('e');
    std::string digits = text.substr(0, 1) + text.substr(2, mark - 2);
    return FromDigits(std::signbit(value), std::move(digits), std::stoi(text.substr(mark + 1)) + 1);
}

void ShiftLeft(Decimal& number, std::size_t places) {
    if (places == 0)
        return;
    number.decimals.append(places, '0');
    const auto point = static_cast<std::ptrdiff_t>(number.whole.size() + places);
    number = FromDigits(number.negative, number.whole + number.decimals, point);
}

/// Half away from zero.
void RoundTo(Decimal& number, std::size_t decimals) {
    if (number.decimals.size() <= decimals) {
        number.decimals.append(decimals - number.decimals.size(), '0');
        return;
    }
    const bool up = number.decimals[decimals] >= '5';
    if (!up) {
        number.decimals.resize(decimals);
        return;
    }
    std::string digits = '0' + number.whole + number.decimals.substr(0, decimals);
    for (std::size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            break;
        }
        digits[i] = '0';
    }
    const auto point = static_cast<std::ptrdiff_t>(digits.size() - decimals);
    number = FromDigits(number.negative, std::move(digits), point);
}

bool IsPlace(char c) {
    return c == '0' || c == '#';
}

/// What a pattern asks for as a whole, found before the first character is written.
struct Shape {
    std::size_t wholePlaces = 0;
    std::size_t decimalPlaces = 0;
    std::size_t percents = 0;
    std::size_t pointAt = std::string_view::npos;
    bool grouped = false;

    explicit Shape(std::string_view pattern) {
        pointAt = pattern.find('.');
        const std::string_view whole = pattern.substr(0, pointAt);
        wholePlaces = static_cast<std::size_t>(std::count_if(whole.begin(), whole.end(), IsPlace));
        decimalPlaces =
            static_cast<std::size_t>(std::count_if(pattern.begin(), pattern.end(), IsPlace)) -
            wholePlaces;
        percents = static_cast<std::size_t>(std::count(pattern.begin(), pattern.end(), '%'));
        const std::size_t comma = whole.find(',', whole.find_first_of("0#"));
        grouped = wholePlaces > 0 && comma != std::string_view::npos;
    }
};

/// Writes a pattern out from left to right, a number's digits in its places.
class PatternWriter {
  public:
    PatternWriter(Shape shape, const Decimal& number, char decimalSign)
        : shape_(shape), number_(number), decimalSign_(decimalSign), placesLeft_(shape.wholePlaces),
          decimalsShown_(number.decimals.find_last_not_of('0') + 1) {}

    std::string Write(std::string_view pattern) {
        if (number_.negative && !number_.IsZero())
            out_ = "-";
        for (std::size_t i = 0; i < pattern.size(); ++i)
            WriteOne(pattern[i], i);
        return std::move(out_);
    }

  private:
    void WriteOne(char c, std::size_t at) {
        if (at == shape_.pointAt)
            WritePoint();
        else if (IsPlace(c) && at < shape_.pointAt)
            WriteWholePlace(c);
        else if (IsPlace(c))
            WriteDecimalPlace(c);
        else if (c != ',')
            out_ += c;
    }

    void WritePoint() {
        if (shape_.wholePlaces == 0)
            out_ += number_.whole;
        out_ += decimalSign_;
    }

    void WriteWholePlace(char place) {
        const std::size_t digits = number_.whole.size();
        if (placesLeft_ == shape_.wholePlaces) {
            for (std::size_t left = digits; left > placesLeft_; --left)
                WriteWholeDigit(number_.whole[digits - left], left);
        }
        if (placesLeft_ <= digits)
            WriteWholeDigit(number_.whole[digits - placesLeft_], placesLeft_);
        else if (place == '0' || zeros_)
            WriteWholeDigit('0', placesLeft_);
        --placesLeft_;
    }

    /// `left` counts the digits from this one to the decimal sign.
    void WriteWholeDigit(char digit, std::size_t left) {
        out_ += digit;
        zeros_ = true;
        if (shape_.grouped && left > 1 && left % 3 == 1)
            out_ += decimalSign_ == ',' ? "\u00a0" : ",";
    }

    void WriteDecimalPlace(char place) {
        if (place == '0' || decimalAt_ < decimalsShown_)
            out_ += number_.decimals[decimalAt_];
        ++decimalAt_;
    }

    Shape shape_;
    const Decimal& number_;
    char decimalSign_;
    std::size_t placesLeft_;    ///< places for whole digits not yet written
    std::size_t decimalsShown_; ///< decimals up to the last one that isn't 0
    std::size_t decimalAt_ = 0;
    bool zeros_ = false; ///< a digit stands already, so that further ones are written as 0
    std::string out_;
};

std::string Format(std::string_view pattern, Decimal number, char decimalSign) {
    const Shape shape(pattern);
    ShiftLeft(number, 2 * shape.percents);
    RoundTo(number, shape.decimalPlaces);
    return PatternWriter(shape, number, decimalSign).Write(pattern);
}

} // namespace

std::string FormatNumber(std::string_view pattern, Currency value, char decimalSign) {
    return Format(pattern, ToDecimal(value), decimalSign);
}

std::string FormatNumber(std::string_view pattern, double value, char decimalSign) {
    return Format(pattern, ToDecimal(value), decimalSign);
}

} // namespace lorvo
