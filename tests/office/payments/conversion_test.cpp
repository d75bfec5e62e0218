#include "office/payments/conversion.h"

#include "platform/values/errors.h"

#include <gtest/gtest.h>

namespace lorvo {
namespace {

Meny Rate(const char* rate) {
    Meny currency;
    currency.ID = 7;
    currency.Kurs = Currency::FromText(rate);
    return currency;
}

std::string Converted(const char* amount, const char* rate) {
    return InMainCurrency(Currency::FromText(amount), Rate(rate)).ToPlainText(',');
}

TEST(Conversion, IsTheExactProductRoundedHalfToEvenAtTheFourthDecimal) {
    EXPECT_EQ(Converted("100", "25.355"), "2535,5");
    EXPECT_EQ(Converted("0.5", "0.0001"), "0");
    EXPECT_EQ(Converted("1.5", "0.0001"), "0,0002");
    EXPECT_EQ(Converted("2.5", "0.0001"), "0,0002");
    EXPECT_EQ(Converted("-2.5", "0.0001"), "-0,0002");
    EXPECT_EQ(Converted("3", "-2"), "-6");
    EXPECT_EQ(Converted("3", "0"), "0");
}

TEST(Conversion, AnAmountTooLargeToKeepIsAFailure) {
    EXPECT_THROW(Converted("99999", "900000000000"), RangeError);
}

TEST(Conversion, APaymentKeepsTheRateOfItsMoment) {
    Meny currency = Rate("25.5");
    Uhrady payment;
    SetPaid(payment, Currency::FromUnits(10), currency);
    currency.Kurs = Currency::FromUnits(30);
    EXPECT_EQ(payment.Castka, Currency::FromUnits(10));
    EXPECT_EQ(payment.Mena, 7);
    EXPECT_EQ(payment.Kurs, Currency::FromText("25.5"));
    EXPECT_EQ(payment.Kc, Currency::FromUnits(255));
}

} // namespace
} // namespace lorvo
