#include "platform/values/format_number.h"

#include "platform/values/errors.h"

#include <gtest/gtest.h>

#include <limits>

namespace lorvo {
namespace {

std::string Amount(const char* value, const std::string& currency = "Kč") {
    return FormatNumber("### ##0.00 " + currency, Currency::FromText(value), ',');
}

std::string Number(std::string_view pattern, double value) {
    return FormatNumber(pattern, value, ',');
}

TEST(FormatNumber, AmountKeepsOneBlankAtTheThousands) {
    EXPECT_EQ(Amount("1234.5"), "1 234,50 Kč");
    EXPECT_EQ(Amount("12"), " 12,00 Kč");
    EXPECT_EQ(Amount("1234567"), "1234 567,00 Kč");
    EXPECT_EQ(Amount("0"), " 0,00 Kč");
    EXPECT_EQ(Amount("999.99"), " 999,99 Kč");
    EXPECT_EQ(Amount("1000"), "1 000,00 Kč");
    EXPECT_EQ(Amount("922337203685477.5807"), "922337203685 477,58 Kč");
}

TEST(FormatNumber, ASignStandsBeforeEverything) {
    EXPECT_EQ(Amount("-1234.5"), "-1 234,50 Kč");
    EXPECT_EQ(Amount("-12"), "- 12,00 Kč");
    EXPECT_EQ(Amount("-0.001"), " 0,00 Kč");
}

TEST(FormatNumber, RoundsHalfAwayFromZero) {
    EXPECT_EQ(Amount("0.005"), " 0,01 Kč");
    EXPECT_EQ(Amount("-0.005"), "- 0,01 Kč");
    EXPECT_EQ(Amount("0.0049"), " 0,00 Kč");
    EXPECT_EQ(Amount("999.995"), "1 000,00 Kč");
    EXPECT_EQ(Number("0.00", 0.285), "0,29");
    EXPECT_EQ(Number("0", 0.5), "1");
    EXPECT_EQ(Number("0", 2.5), "3");
}

TEST(FormatNumber, ACurrencyWithFormatCodesIsGarbled) {
    EXPECT_EQ(Amount("5.25", "K0"), " 5,25 K0");
    EXPECT_EQ(Amount("5.256", "K0"), " 5,25 K6");
    EXPECT_EQ(Amount("5.25", "K#"), " 5,25 K");
    EXPECT_EQ(Amount("5.25", "%"), " 525,00 %");
    EXPECT_EQ(Amount("5.25", "K,č"), " 5,25 Kč");
    EXPECT_EQ(Amount("5.25", "Kč."), " 5,25 Kč.");
}

TEST(FormatNumber, Percents) {
    EXPECT_EQ(Number("#0.00%", 0), "0,00%");
    EXPECT_EQ(Number("#0.00%", 1), "100,00%");
    EXPECT_EQ(Number("#0.00%", 1.0 / 3), "33,33%");
    EXPECT_EQ(Number("#0.00%", 0.00005), "0,01%");
    EXPECT_EQ(Number("0%%", 0.5), "5000%%");
}

TEST(FormatNumber, PostCode) {
    EXPECT_EQ(Number("000 00", 11000), "110 00");
    EXPECT_EQ(Number("000 00", 1), "000 01");
    EXPECT_EQ(Number("000 00", 0), "000 00");
    EXPECT_EQ(Number("000 00", 1234567), "12345 67");
}

TEST(FormatNumber, PlacesThatAreShownWhenThereIsADigit) {
    EXPECT_EQ(Number("#", 0), "");
    EXPECT_EQ(Number("#.##", 0.5), ",5");
    EXPECT_EQ(Number("0.0##", 1.25), "1,25");
    EXPECT_EQ(Number("0#", 5), "05");
    EXPECT_EQ(Number(".00", 12.5), "12,50");
    EXPECT_EQ(Number("ks", 12), "ks");
    EXPECT_EQ(Number("", 12), "");
}

TEST(FormatNumber, AGroupingComma) {
    EXPECT_EQ(FormatNumber("#,##0", 1234567.0, '.'), "1,234,567");
    EXPECT_EQ(FormatNumber("#,##0", 123.0, '.'), "123");
    EXPECT_EQ(Number("#,##0", 1234567), "1\u00a0234\u00a0567");
    EXPECT_EQ(FormatNumber("0,000", 1.0, '.'), "0,001");
}

TEST(FormatNumber, LargeAndSmallNumbers) {
    EXPECT_EQ(Number("0", 1e20), "100000000000000000000");
    EXPECT_EQ(Number("0.00", 1e-300), "0,00");
    EXPECT_EQ(Number("0", 999999999999999.0), "999999999999999");
    EXPECT_THROW(Number("0", std::numeric_limits<double>::quiet_NaN()), RangeError);
    EXPECT_THROW(Number("0", std::numeric_limits<double>::infinity()), RangeError);
}

} // namespace
} // namespace lorvo
