#include "platform/values/exact_arithmetic.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace lorvo {
namespace {

constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
using Result = std::optional<std::int64_t>;

TEST(ExactArithmeticTest, SumsAndDifferencesEndWhereTheTypeEnds) {
    EXPECT_EQ(ExactSum(kMax - 1, 1), Result(kMax));
    EXPECT_EQ(ExactSum(kMax, 1), std::nullopt);
    EXPECT_EQ(ExactSum(kMin, -1), std::nullopt);
    EXPECT_EQ(ExactSum(kMin, kMax), Result(-1));
    EXPECT_EQ(ExactDifference(0, kMin), std::nullopt);
    EXPECT_EQ(ExactDifference(-1, kMin), Result(kMax));
    EXPECT_EQ(ExactDifference(kMin, 1), std::nullopt);
    EXPECT_EQ(ExactDifference(kMax, -1), std::nullopt);
}

TEST(ExactArithmeticTest, ProductsAreExactBeforeTheyAreDivided) {
    EXPECT_EQ(ExactProductDivided(kMax, 10000, 10000), Result(kMax));
    EXPECT_EQ(ExactProductDivided(kMin, 10000, 10000), Result(kMin));
    EXPECT_EQ(ExactProductDivided(kMin, -10000, 10000), std::nullopt);
    EXPECT_EQ(ExactProductDivided(kMax, 10001, 10000), std::nullopt);
    EXPECT_EQ(ExactProductDivided(kMin, kMin, 1), std::nullopt);
}

TEST(ExactArithmeticTest, QuotientsRoundHalfToEven) {
    EXPECT_EQ(ExactProductDivided(5, 1, 10), Result(0));
    EXPECT_EQ(ExactProductDivided(15, 1, 10), Result(2));
    EXPECT_EQ(ExactProductDivided(-25, 1, 10), Result(-2));
    EXPECT_EQ(ExactProductDivided(-26, 1, 10), Result(-3));
}

TEST(ExactArithmeticTest, AppendsDigitsUpToTheLargestCount) {
    EXPECT_EQ(ExactAppended(1844674407370955161U, 5), 18446744073709551615U);
    EXPECT_EQ(ExactAppended(1844674407370955161U, 6), std::nullopt);
}

#ifdef __SIZEOF_INT128__

__extension__ using Wide = __int128;

/// What a type of twice the width says.
Result WideProductDivided(std::int64_t left, std::int64_t right, std::uint32_t divisor) {
    const Wide product = Wide{left} * right;
    const Wide size = product < 0 ? -product : product;
    const Wide twiceRest = size % divisor * 2;
    Wide quotient = size / divisor;
    if (twiceRest > divisor || (twiceRest == divisor && quotient % 2 != 0))
        ++quotient;
    const Wide result = product < 0 ? -quotient : quotient;
    if (result < kMin || result > kMax)
        return std::nullopt;
    return static_cast<std::int64_t>(result);
}

TEST(ExactArithmeticTest, AgreesWithAWiderType) {
    std::mt19937_64 dice(20261121); // NOLINT: the same numbers in every run
    for (int i = 0; i < 200000; ++i) {
        // Any number of bits is as likely as any other.
        const auto left = static_cast<std::int64_t>(dice()) >> dice() % 64;
        const auto right = static_cast<std::int64_t>(dice()) >> dice() % 64;
        const std::uint32_t divisor =
            i % 2 == 0 ? 10000 : 1 + static_cast<std::uint32_t>(dice() >> 33);
        ASSERT_EQ(ExactProductDivided(left, right, divisor),
                  WideProductDivided(left, right, divisor))
            << left << " × " << right << " / " << divisor;
    }
}

#endif

} // namespace
} // namespace lorvo
