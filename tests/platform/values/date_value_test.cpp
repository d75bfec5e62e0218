#include "platform/values/date_value.h"

#include "platform/values/errors.h"

#include <gtest/gtest.h>

namespace lorvo {
namespace {

TEST(DateValue, TheZeroIsTheEndOf1899) {
    EXPECT_EQ(DateValue(), DateValue::FromCalendar(1899, 12, 30));
    EXPECT_TRUE(DateValue().IsZero());
    EXPECT_EQ(DateValue().ToIso(), "1899-12-30T00:00:00");
}

TEST(DateValue, KnownDaysHaveTheirNumbers) {
    EXPECT_EQ(DateValue::FromCalendar(1900, 1, 1).Days(), 2);
    EXPECT_EQ(DateValue::FromCalendar(2000, 1, 1).Days(), 36526);
    EXPECT_EQ(DateValue::FromCalendar(2005, 5, 14).Days(), 38486);
    EXPECT_EQ(DateValue::FromCalendar(1899, 12, 29).Days(), -1);
}

TEST(DateValue, EveryDayOfEightCenturiesComesBackFromItsParts) {
    const DateValue last = DateValue::FromCalendar(2400, 12, 31);
    for (DateValue day = DateValue::FromCalendar(1600, 1, 1); day <= last; day = day.PlusDays(1))
        ASSERT_EQ(DateValue::FromCalendar(day.Year(), day.Month(), day.Day()), day);
}

TEST(DateValue, RefusesADayThatDoesNotExistAndNamesIt) {
    EXPECT_THROW(DateValue::FromCalendar(2005, 2, 29), RangeError);
    EXPECT_THROW(DateValue::FromCalendar(1900, 2, 29), RangeError);
    EXPECT_THROW(DateValue::FromCalendar(2005, 13, 1), RangeError);
    EXPECT_THROW(DateValue::FromCalendar(2005, 0, 1), RangeError);
    EXPECT_THROW(DateValue::FromCalendar(2005, 1, 0), RangeError);
    EXPECT_THROW(DateValue::FromCalendar(2005, 257, 257), RangeError);
    EXPECT_THROW(DateValue::FromCalendar(10000, 1, 1), RangeError);
    EXPECT_NO_THROW(DateValue::FromCalendar(2000, 2, 29));
    try {
        DateValue::FromCalendar(2005, 4, 31);
        FAIL();
    } catch (const RangeError& error) {
        EXPECT_STREQ(error.what(), "Datum 31.4.2005 neexistuje.");
    }
}

TEST(DateValue, ReadsIsoWithAndWithoutATime) {
    const DateValue day = DateValue::FromCalendar(2005, 5, 14);
    EXPECT_EQ(DateValue::FromIso("2005-05-14"), day);
    EXPECT_EQ(DateValue::FromIso("2005-05-14T09:30"), day.WithSecondOfDay(34200));
    EXPECT_EQ(DateValue::FromIso("2005-05-14 23:59:59"), day.WithSecondOfDay(86399));
    EXPECT_EQ(DateValue::FromIso("2005-05-14T23:59:59.123"), day.WithSecondOfDay(86399));
}

TEST(DateValue, RefusesWhatIsNotIso) {
    for (const char* text :
         {"", "14.5.2005", "2005-5-14", "2005-02-30", "2005-05-14T", "2005-05-14X",
          "2005-05-14T9:30", "2005-05-14T24:00", "2005-05-14T10:60", "2005-05-14T10:00:60",
          "2005-05-14T10:00:00.", "2005-05-14T10:00 ", "2005-05-14T10:00:00.5x", "0000-01-01",
          "-005-01-01"})
        EXPECT_FALSE(DateValue::FromIso(text)) << text;
}

TEST(DateValue, IsoTextComesBack) {
    for (int day = -100000; day < 200000; day += 997) {
        const DateValue value = DateValue::FromDays(day, (day % 86400 + 86400) % 86400);
        ASSERT_EQ(DateValue::FromIso(value.ToIso()), value);
    }
}

TEST(DateValue, PartsOfTheTimeOfDay) {
    const DateValue value = DateValue::FromIso("2005-05-14T08:05:59").value();
    EXPECT_EQ(value.Hour(), 8);
    EXPECT_EQ(value.Minute(), 5);
    EXPECT_EQ(value.Second(), 59);
    EXPECT_EQ(value.DateOnly(), DateValue::FromCalendar(2005, 5, 14));
    EXPECT_EQ(value.PlusDays(20).ToIso(), "2005-06-03T08:05:59");
    EXPECT_LT(value.DateOnly(), value);
}

TEST(DateValue, MonthDifferenceLooksAtMonthsAlone) {
    const auto day = [](int year, int month, int dayOfMonth) {
        return DateValue::FromCalendar(year, month, dayOfMonth);
    };
    EXPECT_EQ(MonthDifference(day(2005, 1, 31), day(2005, 2, 1)), 1);
    EXPECT_EQ(MonthDifference(day(2005, 1, 1), day(2005, 1, 31)), 0);
    EXPECT_EQ(MonthDifference(day(2004, 11, 15), day(2005, 5, 14)), 6);
    EXPECT_EQ(MonthDifference(day(2005, 5, 14), day(2004, 11, 15)), -6);
}

} // namespace
} // namespace lorvo
