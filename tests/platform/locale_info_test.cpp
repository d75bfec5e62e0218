#include "platform/real_services.h"
#include "support/print_qt.h"

#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const DateValue kDay = DateValue::FromCalendar(2005, 5, 14);

TEST(LocaleInfo, CzechDatesHaveNoLeadingZeros) {
    const auto czech = MakeLocaleInfo(QLocale(QLocale::Czech));
    EXPECT_EQ(czech->ShortDatePattern(), u"d.M.yyyy"_s);
    EXPECT_EQ(czech->ShortDate(kDay.WithSecondOfDay(60)), u"14.5.2005"_s);
    EXPECT_EQ(czech->DateText(kDay), u"14.5.2005"_s);
    EXPECT_EQ(czech->DateText(kDay.WithSecondOfDay(8 * 3600 + 5 * 60 + 9)), u"14.5.2005 8:05:09"_s);
    EXPECT_EQ(czech->ShortDate(DateValue()), u"30.12.1899"_s);
}

TEST(LocaleInfo, CzechMoney) {
    const auto czech = MakeLocaleInfo(QLocale(QLocale::Czech));
    EXPECT_EQ(czech->DecimalSign(), ',');
    EXPECT_EQ(czech->Item(kLocaleCurrencySymbol), u"Kč"_s);
    EXPECT_EQ(czech->Item(0), QString());
    EXPECT_EQ(czech->Item(9999), QString());
}

TEST(LocaleInfo, OtherLocalesHaveTheirOwnSigns) {
    const auto english = MakeLocaleInfo(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(english->DecimalSign(), '.');
    EXPECT_EQ(english->Item(kLocaleCurrencySymbol), u"$"_s);
    EXPECT_EQ(english->ShortDate(kDay), u"5/14/2005"_s);
    const auto polish = MakeLocaleInfo(QLocale(QLocale::Polish));
    EXPECT_EQ(polish->DecimalSign(), ',');
    EXPECT_TRUE(polish->ShortDate(kDay).endsWith(u"2005"_s));
}

TEST(LocaleInfo, WithoutAChosenLocaleTheProgramIsCzech) {
    // The tests run in the C locale.
    const auto own = MakeLocaleInfo();
    EXPECT_EQ(own->DateText(kDay), u"14.5.2005"_s);
    EXPECT_EQ(own->DecimalSign(), ',');
    EXPECT_EQ(own->Item(kLocaleCurrencySymbol), u"Kč"_s);
}

TEST(LocaleInfo, NumbersByCzechRules) {
    const auto czech = MakeLocaleInfo(QLocale(QLocale::Czech));
    EXPECT_EQ(czech->PlainNumber(u" 1234,5 "_s), u"1234.5"_s);
    EXPECT_EQ(czech->PlainNumber(u"-1 234"_s), u"-1234"_s);
    EXPECT_EQ(czech->PlainNumber(u"1\u00a0234,50"_s), u"1234.50"_s);
    EXPECT_EQ(czech->PlainNumber(u"+,5"_s), u"+.5"_s);
    EXPECT_EQ(czech->PlainNumber(u"7,"_s), u"7."_s);
    EXPECT_EQ(czech->PlainNumber(u"1.5"_s), u"1.5"_s);
    for (const QString& text : {u""_s, u" "_s, u"-"_s, u","_s, u"1.234,5"_s, u"1,2,3"_s, u"1,2 3"_s,
                                u"12a"_s, u"1e5"_s, u"--1"_s, u"1-"_s, u"12 Kč"_s, u"٣"_s})
        EXPECT_FALSE(czech->IsNumeric(text)) << text.toStdString();
}

TEST(LocaleInfo, NumbersByOtherRules) {
    const auto english = MakeLocaleInfo(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(english->PlainNumber(u"1,234.5"_s), u"1234.5"_s);
    EXPECT_EQ(english->PlainNumber(u"12,5"_s), u"12.5"_s);
    EXPECT_EQ(english->PlainNumber(u"1,234"_s), u"1234"_s);
}

} // namespace
} // namespace lorvo
