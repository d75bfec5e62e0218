#include "platform/values/money.h"

#include "platform/values/errors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

namespace lorvo {
namespace {

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

std::string RangeErrorText(const std::function<void()>& action) {
    try {
        action();
    } catch (const RangeError& error) {
        return error.what();
    }
    return {};
}

TEST(Money, ReadsPlainDecimalText) {
    EXPECT_EQ(Currency::FromText("300").Raw(), 3000000);
    EXPECT_EQ(Currency::FromText(" 0,5 ").Raw(), 5000);
    EXPECT_EQ(Currency::FromText("-1234.5678").Raw(), -12345678);
    EXPECT_EQ(Currency::FromText("+.25").Raw(), 2500);
    EXPECT_EQ(Currency::FromText("7,").Raw(), 70000);
}

TEST(Money, RoundsTheFifthDecimalHalfToEven) {
    EXPECT_EQ(Currency::FromText("0.00005").Raw(), 0);
    EXPECT_EQ(Currency::FromText("0.00015").Raw(), 2);
    EXPECT_EQ(Currency::FromText("0.000150000").Raw(), 2);
    EXPECT_EQ(Currency::FromText("0.00025").Raw(), 2);
    EXPECT_EQ(Currency::FromText("0.000250001").Raw(), 3);
    EXPECT_EQ(Currency::FromText("-0.00015").Raw(), -2);
    EXPECT_EQ(Currency::FromText("0.00049999").Raw(), 5);
    EXPECT_EQ(Currency::FromText("0.00044999").Raw(), 4);
}

TEST(Money, RefusesTextThatIsNoAmountAndQuotesIt) {
    for (const std::string text :
         {"", " ", "-", ",", "12 Kč", "1e3", "1.2.3", "1 000", "--1", "0x1"}) {
        EXPECT_NE(RangeErrorText([&] { Currency::FromText(text); }).find("„" + text + "“"),
                  std::string::npos)
            << text;
    }
}

TEST(Money, ReadsTheWholeRangeAndNothingBeyond) {
    EXPECT_EQ(Currency::FromText("922337203685477.5807").Raw(), kMax);
    EXPECT_EQ(Currency::FromText("-922337203685477.5807").Raw(), -kMax);
    EXPECT_EQ(Currency::FromText("-922337203685477.5808").Raw(), kMin);
    EXPECT_THROW(Currency::FromText("922337203685477.5808"), RangeError);
    EXPECT_THROW(Currency::FromText("922337203685477.58075"), RangeError);
    EXPECT_THROW(Currency::FromText("99999999999999999999999999999999999999999999"), RangeError);
    EXPECT_THROW(Currency::FromUnits(kMax), RangeError);
    EXPECT_EQ(Currency::FromUnits(-922337203685477).Raw(), -9223372036854770000);
}

TEST(Money, WritesPlainText) {
    EXPECT_EQ(Currency::FromUnits(300).ToPlainText(','), "300");
    EXPECT_EQ(Currency::FromRaw(5000).ToPlainText(','), "0,5");
    EXPECT_EQ(Currency::FromRaw(-1).ToPlainText('.'), "-0.0001");
    EXPECT_EQ(Currency::FromRaw(kMin).ToPlainText('.'), "-922337203685477.5808");
    EXPECT_EQ(Currency().ToPlainText(','), "0");
}

TEST(Money, RefusesToWrapAround) {
    const Currency largest = Currency::FromRaw(kMax);
    const Currency smallest = Currency::FromRaw(kMin);
    const Currency least = Currency::FromRaw(1);
    EXPECT_THROW(largest + least, RangeError);
    EXPECT_THROW(smallest - least, RangeError);
    EXPECT_THROW(-smallest, RangeError);
    EXPECT_THROW(largest * Currency::FromText("1.0001"), RangeError);
    EXPECT_THROW(smallest * Currency::FromUnits(-1), RangeError);
    EXPECT_EQ(smallest * Currency::FromUnits(1), smallest);
    EXPECT_EQ(RangeErrorText([&] { largest + least; }),
              "Číslo 922337203685477,5807 + 0,0001 je mimo rozsah, který lze uložit.");
}

TEST(Money, AFailedSumLeavesTheAmountAsItWas) {
    Currency amount = Currency::FromRaw(kMax);
    EXPECT_THROW(amount += Currency::FromRaw(1), RangeError);
    EXPECT_EQ(amount.Raw(), kMax);
}

TEST(Money, ProductRoundsHalfToEven) {
    const Currency half = Currency::FromText("0.5");
    EXPECT_EQ((Currency::FromRaw(1) * half).Raw(), 0);
    EXPECT_EQ((Currency::FromRaw(3) * half).Raw(), 2);
    EXPECT_EQ((Currency::FromRaw(5) * half).Raw(), 2);
    EXPECT_EQ((Currency::FromRaw(-3) * half).Raw(), -2);
    EXPECT_EQ((Currency::FromRaw(-5) * half).Raw(), -2);
    EXPECT_EQ(Currency::FromUnits(15) * Currency::FromText("25.345"),
              Currency::FromText("380.175"));
}

/// Amounts of all sizes, small ones as likely as large ones.
class MoneyProperties : public ::testing::Test {
  protected:
    std::int64_t AnyRaw(int maxBits) {
        const int bits = std::uniform_int_distribution<int>(0, maxBits)(random_);
        const auto size =
            std::uniform_int_distribution<std::int64_t>(0, (kMax >> (63 - bits)))(random_);
        return random_() % 2 ? size : -size;
    }
    std::mt19937_64 random_{20050514};
};

TEST_F(MoneyProperties, TheOrderOfASumDoesNotMatter) {
    for (int round = 0; round < 200; ++round) {
        std::vector<Currency> amounts;
        for (int i = 0; i < 50; ++i)
            amounts.push_back(Currency::FromRaw(AnyRaw(56)));
        const Currency sum = std::accumulate(amounts.begin(), amounts.end(), Currency());
        std::shuffle(amounts.begin(), amounts.end(), random_);
        ASSERT_EQ(std::accumulate(amounts.begin(), amounts.end(), Currency()), sum);
        for (const Currency amount : amounts)
            amounts.front() += amount - amount;
        ASSERT_EQ(std::accumulate(amounts.begin(), amounts.end(), Currency()), sum);
    }
}

TEST_F(MoneyProperties, AProductIsTheNearestAmountAndTheEvenOneOfTwo) {
    for (int round = 0; round < 20000; ++round) {
        const std::int64_t left = AnyRaw(31);
        const std::int64_t right = AnyRaw(31);
        const std::int64_t exact = left * right; // of a scale twice as fine
        const std::int64_t rounded = (Currency::FromRaw(left) * Currency::FromRaw(right)).Raw();
        const std::int64_t error = exact - rounded * Currency::kScale;
        ASSERT_LE(std::abs(error), Currency::kScale / 2) << left << " * " << right;
        if (std::abs(error) == Currency::kScale / 2) {
            ASSERT_EQ(rounded % 2, 0) << left << " * " << right;
        }
    }
}

TEST_F(MoneyProperties, AProductHasNoOrderAndCarriesTheSign) {
    for (int round = 0; round < 2000; ++round) {
        const Currency left = Currency::FromRaw(AnyRaw(31));
        const Currency right = Currency::FromRaw(AnyRaw(31));
        ASSERT_EQ(left * right, right * left);
        ASSERT_EQ(-left * right, -(left * right));
        ASSERT_EQ(left * Currency::FromUnits(1), left);
    }
}

TEST_F(MoneyProperties, TextAndBackIsTheSameAmount) {
    for (int round = 0; round < 20000; ++round) {
        const Currency amount = Currency::FromRaw(AnyRaw(63));
        ASSERT_EQ(Currency::FromText(amount.ToPlainText(',')), amount);
        ASSERT_EQ(Currency::FromText(amount.ToPlainText('.')), amount);
    }
}

} // namespace
} // namespace lorvo
