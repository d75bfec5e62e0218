#include "office/texts/money_texts.h"

#include "app/module_values.h"
#include "support/recording_platform.h"

#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class MoneyTextsTest : public ::testing::Test {
  protected:
    MoneyTextsTest() {
        Module() = ModuleValues();
        Module().MainCurrency = u"Kč"_s;
    }
    ~MoneyTextsTest() override { Module() = ModuleValues(); }

    static Currency Units(int amount) { return Currency::FromUnits(amount); }

    RecordingPlatform platform;
};

TEST_F(MoneyTextsTest, APriceIsThePlainNumberWithTheCurrency) {
    EXPECT_EQ(PriceText(Units(300)), u"300 Kč");
    EXPECT_EQ(PriceText(Currency::FromText("1234.5")), u"1234,5 Kč");
    EXPECT_EQ(WithMainCurrency({}), u" Kč");
}

TEST_F(MoneyTextsTest, AnOverpaymentHasAPlusAndArrearsTheirMinus) {
    EXPECT_EQ(TotalsLine(Units(1000), Units(1250)),
              u"Poplatky celkem: 1 000,00 Kč, uhrazeno celkem: 1 250,00 Kč, "
              u"bilance: + 250,00 Kč");
    EXPECT_EQ(TotalsLine(Units(2500), Units(0)),
              u"Poplatky celkem: 2 500,00 Kč, uhrazeno celkem:  0,00 Kč, "
              u"bilance: -2 500,00 Kč");
    EXPECT_EQ(TotalsLine(Units(5), Units(5)),
              u"Poplatky celkem:  5,00 Kč, uhrazeno celkem:  5,00 Kč, bilance:  0,00 Kč");
}

} // namespace
} // namespace lorvo::test
