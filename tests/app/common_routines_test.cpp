#include "app/common_routines.h"

#include "app/module_values.h"
#include "platform/values/errors.h"
#include "support/recording_platform.h"

#include <QFile>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class CommonRoutines : public ::testing::Test {
  protected:
    ~CommonRoutines() override { Module() = {}; }
    static QString Amount(const char* text) { return AmountText(Currency::FromText(text)); }

    test::RecordingPlatform platform_;
};

TEST_F(CommonRoutines, PreferencesLieBelowTheKeyOfTheProgram) {
    EXPECT_EQ(ReadRegValue(u"Sys"_s, u"ShowGrid"_s), QString());
    WriteRegValue(u"Sys"_s, u"ShowGrid"_s, u"1"_s);
    EXPECT_EQ(ReadRegValue(u"Sys"_s, u"ShowGrid"_s), u"1"_s);
    EXPECT_EQ(platform_.settings.at(u"Sys\\ShowGrid"_s), u"1"_s);
    EXPECT_EQ(ThePlatform().settings->Read(u"Software\\Hollow Peak\\Lorvo\\Sys"_s, u"ShowGrid"_s),
              u"1"_s);
}

TEST_F(CommonRoutines, AnEmailNeedsItsFirstAtBeforeItsLastDot) {
    for (const QString& text : {u"a@b.cz"_s, u"@."_s, u"a.b@c."_s, u"a@b@c.cz"_s})
        EXPECT_TRUE(IsEmailValid(text)) << text.toStdString();
    for (const QString& text : {u""_s, u"ab.cz"_s, u"a@b"_s, u"a.b@c"_s, u".@"_s, u"@"_s, u"."_s})
        EXPECT_FALSE(IsEmailValid(text)) << text.toStdString();
}

TEST_F(CommonRoutines, TheLocaleTellsItsCurrency) {
    EXPECT_EQ(GetLocaleText(kLocaleCurrencySymbol), u"Kč"_s);
    EXPECT_EQ(GetLocaleText(0), QString());
}

TEST_F(CommonRoutines, AnIniValueIsReadFromItsFile) {
    const QString path = platform_.ProgramFolder() + u"/Lorvosys.ini"_s;
    EXPECT_EQ(ReadIniValue(u"Main"_s, u"Ignorovat tridy"_s, path), QString());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Main]\r\nIgnorovat tridy=1\r\n");
    file.close();
    EXPECT_EQ(ReadIniValue(u"Main"_s, u"Ignorovat tridy"_s, path), u"1"_s);
}

TEST_F(CommonRoutines, AmountsStandInTheMainCurrency) {
    Module().MainCurrency = u"Kč"_s;
    EXPECT_EQ(Amount("1234.5"), u"1 234,50 Kč"_s);
    EXPECT_EQ(Amount("12"), u" 12,00 Kč"_s);
    EXPECT_EQ(Amount("1234567"), u"1234 567,00 Kč"_s);
    EXPECT_EQ(Amount("-5"), u"- 5,00 Kč"_s);
}

TEST_F(CommonRoutines, ACurrencyOfFormatCodesGarblesItsAmounts) {
    Module().MainCurrency = u"#K%"_s;
    EXPECT_EQ(Amount("1.2345"), u" 123,45 K%"_s);
    Module().MainCurrency = u"0"_s;
    EXPECT_EQ(Amount("1.236"), u" 1,23 6"_s);
    Module().MainCurrency.clear();
    EXPECT_EQ(Amount("1"), u" 1,00 "_s);
}

TEST_F(CommonRoutines, PlainAmountsHaveNoFixedDecimals) {
    EXPECT_EQ(PlainAmount(Currency::FromUnits(300)), u"300"_s);
    EXPECT_EQ(PlainAmount(Currency::FromText("25.5")), u"25,5"_s);
}

TEST_F(CommonRoutines, WhatTheLocaleTakesForANumberIsAnAmount) {
    EXPECT_EQ(AmountFromText(u" 1 234,5 "_s), Currency::FromText("1234.5"));
    EXPECT_EQ(AmountFromText(u"-1\u00a0000"_s), Currency::FromUnits(-1000));
    EXPECT_THROW(AmountFromText(u""_s), RangeError);
    EXPECT_THROW(AmountFromText(u"abc"_s), RangeError);
    EXPECT_THROW(AmountFromText(u"999999999999999"_s), RangeError);
}

TEST_F(CommonRoutines, PercentsAndPostCodes) {
    EXPECT_EQ(PercentText(1, 3), u"33,33%"_s);
    EXPECT_EQ(PercentText(3, 3), u"100,00%"_s);
    EXPECT_EQ(PercentText(0, 0), u"0,00%"_s);
    EXPECT_EQ(PostCodeText(11000), u"110 00"_s);
    EXPECT_EQ(PostCodeText(600), u"006 00"_s);
}

} // namespace
} // namespace lorvo
