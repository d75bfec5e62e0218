#pragma once
// Whole numbers of 64 bits without wrap-around: a result that doesn't fit is none. In standard C++
// alone, since not every compiler has a wider type or overflow checks of its own.

#include <cstdint>
#include <optional>

namespace lorvo {

[[nodiscard]] std::optional<std::int64_t> ExactSum(std::int64_t left, std::int64_t right);
std::optional<std::int64_t> ExactDifference(std::int64_t left, std::int64_t right);

/// left × right / divisor, the product exact however large, the quotient rounded half to even.
/// The divisor is 1 or more.
[[nodiscard]] std::optional<std::int64_t> ExactProductDivided(std::int64_t left, std::int64_t right,
                                                              std::uint32_t divisor);

/// A size with its sign.
[[nodiscard]] std::optional<std::int64_t> ExactSigned(bool negative, std::uint64_t size);

/// count × 10 + digit, for a decimal text read from the left; the digit is 0 to 9.
[[nodiscard]] std::optional<std::uint64_t> ExactAppended(std::uint64_t count, unsigned digit);

} // namespace lorvo
