#include "platform/values/exact_arithmetic.h"

#include <array>
#include <limits>

namespace lorvo {

namespace {

constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();

std::uint64_t SizeOf(std::int64_t value) {
    const auto bits = static_cast<std::uint64_t>(value);
    return value < 0 ? 0 - bits : bits;
}

/// A number of 128 bits, its lowest 32 first.
using Parts = std::array<std::uint32_t, 4>;

std::uint32_t Low(std::uint64_t value) {
    return static_cast<std::uint32_t>(value & 0xFFFFFFFFU);
}

Parts Product(std::uint64_t left, std::uint64_t right) {
    const std::array<std::uint64_t, 2> lefts = {Low(left), left >> 32};
    const std::array<std::uint64_t, 2> rights = {Low(right), right >> 32};
    Parts product = {};
    for (std::size_t i = 0; i < 2; ++i) {
        std::uint64_t carry = 0;
        for (std::size_t k = 0; k < 2; ++k) {
            carry += product[i + k] + lefts[i] * rights[k];
            product[i + k] = Low(carry);
            carry >>= 32;
        }
        product[i + 2] = Low(carry);
    }
    return product;
}

/// Leaves the quotient in `value` and returns the remainder.
std::uint32_t Divide(Parts& value, std::uint32_t divisor) {
    std::uint64_t rest = 0;
    for (std::size_t i = value.size(); i-- > 0;) {
        rest = rest << 32 | value[i];
        value[i] = static_cast<std::uint32_t>(rest / divisor);
        rest %= divisor;
    }
    return static_cast<std::uint32_t>(rest);
}

} // namespace

std::optional<std::int64_t> ExactSum(std::int64_t left, std::int64_t right) {
    if (right > 0 ? left > kMax - right : left < kMin - right)
        return std::nullopt;
    return left + right;
}

std::optional<std::int64_t> ExactDifference(std::int64_t left, std::int64_t right) {
    if (right < 0 ? left > kMax + right : left < kMin + right)
        return std::nullopt;
    return left - right;
}

std::optional<std::int64_t> ExactProductDivided(std::int64_t left, std::int64_t right,
                                                std::uint32_t divisor) {
    Parts value = Product(SizeOf(left), SizeOf(right));
    const std::uint64_t twiceRest = std::uint64_t{2} * Divide(value, divisor);
    if (value[3] != 0 || value[2] != 0)
        return std::nullopt;
    const std::uint64_t size = std::uint64_t{value[1]} << 32 | value[0];
    const bool up = twiceRest > divisor || (twiceRest == divisor && size % 2 != 0);
    if (up && size == std::numeric_limits<std::uint64_t>::max())
        return std::nullopt;
    return ExactSigned((left < 0) != (right < 0), size + (up ? 1 : 0));
}

std::optional<std::int64_t> ExactSigned(bool negative, std::uint64_t size) {
    if (size > SizeOf(negative ? kMin : kMax))
        return std::nullopt;
    return static_cast<std::int64_t>(negative ? 0 - size : size);
}

std::optional<std::uint64_t> ExactAppended(std::uint64_t count, unsigned digit) {
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
    if (count > (kMost - digit) / 10)
        return std::nullopt;
    return count * 10 + digit;
}

} // namespace lorvo
