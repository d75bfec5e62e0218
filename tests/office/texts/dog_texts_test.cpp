#include "office/texts/dog_texts.h"

#include "app/module_values.h"
#include "office/texts/colours.h"
#include "platform/values/errors.h"
#include "support/recording_platform.h"

#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class DogTextsTest : public ::testing::Test {
  protected:
    DogTextsTest() { Module() = ModuleValues(); }
    ~DogTextsTest() override { Module() = ModuleValues(); }

    RecordingPlatform platform;
};

TEST_F(DogTextsTest, AFullNameKeepsItsBlankWhereAPartIsMissing) {
    EXPECT_EQ(FullName(u"Rex"_s, u"z Lhoty"_s), u"Rex z Lhoty");
    EXPECT_EQ(FullName(u"Rex"_s, {}), u"Rex ");
}

TEST_F(DogTextsTest, EachBreedHasItsTableOfClasses) {
    EXPECT_EQ(ClassName(3, ClassNamesOf(ClassListOf(12)), {}), u"mladých");
    EXPECT_EQ(ClassName(3, ClassNamesOf(ClassListOf(kSpecialBreedID)), {}), u"dospívajících");
    EXPECT_EQ(ClassName(20, Module().ClassNames, {}), u"");
}

TEST_F(DogTextsTest, AClassOutsideTheTableNamesItsDogWithItsPercentSigns) {
    for (const int trida : {0, 21}) {
        try {
            ClassName(trida, Module().ClassNames, u"Sto %1 a %2"_s);
            FAIL() << trida;
        } catch (const RangeError& failure) {
            EXPECT_EQ(failure.what(), "Pes „Sto %1 a %2“ má třídu " + std::to_string(trida) +
                                          ", ale třídy jsou jen 1 až 20.");
        }
    }
}

TEST_F(DogTextsTest, SmallWordsAreThoseOfTheWindows) {
    EXPECT_EQ(SexText(true) + SexText(false), u"PesFena");
    EXPECT_EQ(ClosingText(true) + u' ' + ClosingText(false), u"I II");
    EXPECT_EQ(YesNo(true) + YesNo(false), u"AnoNe");
    EXPECT_EQ(UnassignedText(), u"-nezařazeno-");
}

TEST_F(DogTextsTest, WhatIsNotKnownIsEmpty) {
    EXPECT_EQ(DateOrEmpty(DateValue::FromCalendar(2005, 5, 14)), u"14.5.2005");
    EXPECT_EQ(DateOrEmpty(std::nullopt), u"");
    EXPECT_EQ(NumberOrEmpty(17), u"17");
    EXPECT_EQ(NumberOrEmpty(std::nullopt), u"");
}

TEST_F(DogTextsTest, ABreedWithoutACzechNameHasItsOriginalOne) {
    EXPECT_EQ(BreedName(u"Pudl"_s, u"Caniche"_s), u"Pudl");
    EXPECT_EQ(BreedName({}, u"Caniche"_s), u"Caniche");
}

TEST_F(DogTextsTest, ABalanceIsRedBelowZeroAndGreenAbove) {
    EXPECT_EQ(BalanceColour(Currency::FromRaw(-1), kOverpaidInDogList), QColor(255, 0, 0));
    EXPECT_EQ(BalanceColour(Currency::FromRaw(1), kOverpaidOnDogCard), QColor(0, 192, 0));
    EXPECT_EQ(BalanceColour(Currency::FromRaw(1), kOverpaidOnOwnerCard), QColor(0, 255, 0));
    EXPECT_EQ(BalanceColour(Currency::FromRaw(1), kOverpaidInExhibitors), QColor(0, 180, 0));
    EXPECT_EQ(BalanceColour(Currency::FromRaw(1), kOverpaidInDogList), QColor(0, 160, 0));
    EXPECT_EQ(BalanceColour(Currency(), kOverpaidInDogList), std::nullopt);
}

} // namespace
} // namespace lorvo::test
