#include "platform/real_services.h"
#include "support/print_qt.h"

#include <gtest/gtest.h>

namespace lorvo {
namespace {

const DateValue kDay = DateValue::FromCalendar(2005, 5, 14);

TEST(LocaleInfo, CzechDatesHaveNoLeadingZeros) {
    const auto czech = MakeLocaleInfo(QLocale(QLocale::Czech));
    EXPECT_EQ(czech->ShortDatePattern(), u"d.M.yyyy"_qs);
    EXPECT_EQ(czech->ShortDate(kDay.WithSecondOfDay(60)), u"14.5.2005"_qs);
    EXPECT_EQ(czech->DateText(kDay), u"14.5.2005"_qs);
    EXPECT_EQ(czech->DateText(kDay.WithSecondOfDay(8 * 3600 + 5 * 60 + 9)),
              u"14.5.2005 8:05:09"_qs);
    EXPECT_EQ(czech->ShortDate(DateValue()), u"30.12.1899"_qs);
}

TEST(LocaleInfo, CzechMoney) {
    const auto czech = MakeLocaleInfo(QLocale(QLocale::Czech));
    EXPECT_EQ(czech->DecimalSign(), ',');
    EXPECT_EQ(czech->Item(kLocaleCurrencySymbol), u"Kč"_qs);
    EXPECT_EQ(czech->Item(0), QString());
    EXPECT_EQ(czech->Item(9999), QString());
}

TEST(LocaleInfo, OtherLocalesHaveTheirOwnSigns) {
    const auto english = MakeLocaleInfo(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(english->DecimalSign(), '.');
    EXPECT_EQ(english->Item(kLocaleCurrencySymbol), u"$"_qs);
    EXPECT_EQ(english->ShortDate(kDay), u"5/14/2005"_qs);
    const auto polish = MakeLocaleInfo(QLocale(QLocale::Polish));
    EXPECT_EQ(polish->DecimalSign(), ',');
    EXPECT_TRUE(polish->ShortDate(kDay).endsWith(u"2005"_qs));
}

TEST(LocaleInfo, WithoutAChosenLocaleTheProgramIsCzech) {
    // The tests run in the C locale.
    const auto own = MakeLocaleInfo();
    EXPECT_EQ(own->DateText(kDay), u"14.5.2005"_qs);
    EXPECT_EQ(own->DecimalSign(), ',');
    EXPECT_EQ(own->Item(kLocaleCurrencySymbol), u"Kč"_qs);
}

TEST(LocaleInfo, NumbersByCzechRules) {
    const auto czech = MakeLocaleInfo(QLocale(QLocale::Czech));
    EXPECT_EQ(czech->PlainNumber(u" 1234,5 "_qs), u"1234.5"_qs);
    EXPECT_EQ(czech->PlainNumber(u"-1 234"_qs), u"-1234"_qs);
    EXPECT_EQ(czech->PlainNumber(u"1\u00a0234,50"_qs), u"1234.50"_qs);
    EXPECT_EQ(czech->PlainNumber(u"+,5"_qs), u"+.5"_qs);
    EXPECT_EQ(czech->PlainNumber(u"7,"_qs), u"7."_qs);
    EXPECT_EQ(czech->PlainNumber(u"1.5"_qs), u"1.5"_qs);
    for (const QString& text :
         {u""_qs, u" "_qs, u"-"_qs, u","_qs, u"1.234,5"_qs, u"1,2,3"_qs, u"1,2 3"_qs, u"12a"_qs,
          u"1e5"_qs, u"--1"_qs, u"1-"_qs, u"12 Kč"_qs, u"٣"_qs})
        EXPECT_FALSE(czech->IsNumeric(text)) << text.toStdString();
}

TEST(LocaleInfo, NumbersByOtherRules) {
    const auto english = MakeLocaleInfo(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(english->PlainNumber(u"1,234.5"_qs), u"1234.5"_qs);
    EXPECT_EQ(english->PlainNumber(u"12,5"_qs), u"12.5"_qs);
    EXPECT_EQ(english->PlainNumber(u"1,234"_qs), u"1234"_qs);
}

} // namespace
} // namespace lorvo
