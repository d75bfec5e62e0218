#include "platform/values/number_text.h"

#include <gtest/gtest.h>

namespace lorvo {
namespace {

constexpr char kNoGroup = 0;

TEST(NumberText, CommaAndPointAreBothDecimalSigns) {
    EXPECT_EQ(NumberFromText("1 234,56", kNoGroup), "1234.56");
    EXPECT_EQ(NumberFromText("1234.56", kNoGroup), "1234.56");
    EXPECT_EQ(NumberFromText("0,5", kNoGroup), "0.5");
    EXPECT_EQ(NumberFromText(".5", kNoGroup), ".5");
    EXPECT_EQ(NumberFromText("7,", kNoGroup), "7.");
    EXPECT_EQ(NumberFromText("1.234", kNoGroup), "1.234");
}

TEST(NumberText, SignsBlanksAndGroups) {
    EXPECT_EQ(NumberFromText("  300 ", kNoGroup), "300");
    EXPECT_EQ(NumberFromText("-1 234", kNoGroup), "-1234");
    EXPECT_EQ(NumberFromText("+12 345 678,9", kNoGroup), "+12345678.9");
    EXPECT_EQ(NumberFromText("1234567", kNoGroup), "1234567");
    EXPECT_EQ(NumberFromText("1234 567,00", kNoGroup), "1234567.00");
}

TEST(NumberText, WhatMayMeanMoreThanOneNumberIsNone) {
    for (const char* text :
         {"", " ", "-", ",", "abc", "12a", "1,2,3", "1.234,50", "1,234.50", "12 34", "1 23",
          "1  234", "1,2 3", "- 5", "--1", "1-", "12 Kč", "1e5", "1 234 56"})
        EXPECT_EQ(NumberFromText(text, kNoGroup), std::nullopt) << text;
}

TEST(NumberText, ALocalesOwnGroupingHoldsWhereItIsWhole) {
    EXPECT_EQ(NumberFromText("1,234", ','), "1234");
    EXPECT_EQ(NumberFromText("1,234.5", ','), "1234.5");
    EXPECT_EQ(NumberFromText("12,5", ','), "12.5");
    EXPECT_EQ(NumberFromText("1,23", ','), "1.23");
    EXPECT_EQ(NumberFromText("1.234,5", '.'), "1234.5");
}

} // namespace
} // namespace lorvo
