#include "office/dogs/class_eligibility.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>

namespace lorvo {
namespace {

constexpr std::array<std::int16_t, 8> kFrom = {3, 6, 9, 15, 15, 15, 15, 96};
constexpr std::array<std::int16_t, 8> kTo = {6, 9, 18, 24, 999, 999, 999, 999};
constexpr std::array<std::int16_t, 4> kSpecialFrom = {6, 12, 18, 24};
constexpr std::array<std::int16_t, 4> kSpecialTo = {12, 18, 24, 999};

DateValue Day(int day, int month, int year) {
    return DateValue::FromCalendar(year, month, day);
}

int StandardAge(DateValue born, DateValue show) {
    return AgeInMonths(born, show, ClassList::Standard);
}

int SpecialAge(DateValue born, DateValue show) {
    return AgeInMonths(born, show, ClassList::Special);
}

std::vector<int> Standard(int age) {
    return OpenClasses(age, kFrom, kTo);
}

std::vector<int> Special(int age) {
    return OpenClasses(age, kSpecialFrom, kSpecialTo);
}

using Classes = std::vector<int>;

struct PuppyCase {
    DateValue born;
    int standardAge;
    Classes standard;
    int specialAge;
    Classes special;
};

TEST(ClassEligibility, PuppiesAroundTheLimits) {
    const DateValue show = Day(14, 5, 2005);
    const PuppyCase cases[] = {
        {Day(15, 11, 2004), 6, {1}, 6, {}},  {Day(14, 11, 2004), 6, {1}, 7, {1}},
        {Day(13, 11, 2004), 7, {2}, 7, {1}}, {Day(14, 2, 2005), 3, {}, 4, {}},
        {Day(13, 2, 2005), 4, {1}, 4, {}},
    };
    for (const PuppyCase& each : cases) {
        SCOPED_TRACE(each.born.ToIso());
        EXPECT_EQ(StandardAge(each.born, show), each.standardAge);
        EXPECT_EQ(Standard(each.standardAge), each.standard);
        EXPECT_EQ(SpecialAge(each.born, show), each.specialAge);
        EXPECT_EQ(Special(each.specialAge), each.special);
    }
}

TEST(ClassEligibility, BornOnTheDayOfTheShowOrLater) {
    const DateValue show = Day(14, 5, 2005);
    EXPECT_EQ(StandardAge(show, show), 0);
    EXPECT_EQ(StandardAge(Day(1, 8, 2005), show), -2);
    EXPECT_EQ(Standard(0), Classes());
    EXPECT_EQ(Standard(-2), Classes());
    EXPECT_EQ(Special(0), Classes());
}

TEST(ClassEligibility, AShowWithoutADateOpensNothing) {
    EXPECT_LT(StandardAge(Day(13, 2, 2003), DateValue()), -1000);
    EXPECT_EQ(Standard(StandardAge(Day(13, 2, 2003), DateValue())), Classes());
    EXPECT_LE(StandardAge(Day(1, 1, 2000), Day(1, 1, 2000)), 0);
}

TEST(ClassEligibility, AShortMonthBehindALongOneIsJumped) {
    EXPECT_EQ(StandardAge(Day(2, 3, 2005), Day(1, 6, 2005)), 4);
    EXPECT_EQ(SpecialAge(Day(2, 3, 2005), Day(1, 6, 2005)), 3);
}

TEST(ClassEligibility, AnExactYear) {
    EXPECT_EQ(StandardAge(Day(31, 3, 2004), Day(31, 3, 2005)), 12);
    EXPECT_EQ(SpecialAge(Day(31, 3, 2004), Day(31, 3, 2005)), 13);
}

// kept: two-ways-to-count-months
TEST(ClassEligibility, TheSpecialListClosesTheDayBeforeTheBirthday) {
    const DateValue born = Day(14, 5, 2004);
    EXPECT_EQ(Special(SpecialAge(born, Day(13, 5, 2005))), Classes{1});
    EXPECT_EQ(Special(SpecialAge(born, Day(14, 5, 2005))), Classes{2});
}

TEST(ClassEligibility, OverlappingClassesAreAllOpen) {
    EXPECT_EQ(Standard(15), Classes{3});
    EXPECT_EQ(Standard(16), (Classes{3, 4, 5, 6, 7}));
    EXPECT_EQ(Standard(18), (Classes{3, 4, 5, 6, 7}));
    EXPECT_EQ(Standard(19), (Classes{4, 5, 6, 7}));
    EXPECT_EQ(Standard(24), (Classes{4, 5, 6, 7}));
    EXPECT_EQ(Standard(25), (Classes{5, 6, 7}));
    EXPECT_EQ(Standard(96), (Classes{5, 6, 7}));
    EXPECT_EQ(Standard(97), (Classes{5, 6, 7, 8}));
    EXPECT_EQ(Standard(999), (Classes{5, 6, 7, 8}));
    EXPECT_EQ(Standard(1000), Classes());
}

TEST(ClassEligibility, TheSpecialClassesFollowOneAnother) {
    for (int age = -5; age <= 999; ++age) {
        const Classes expected = age <= 6    ? Classes()
                                 : age <= 12 ? Classes{1}
                                 : age <= 18 ? Classes{2}
                                 : age <= 24 ? Classes{3}
                                             : Classes{4};
        ASSERT_EQ(Special(age), expected) << age;
    }
}

TEST(ClassEligibility, TimesOfDayDoNotMatter) {
    const DateValue born = Day(14, 11, 2004);
    const DateValue show = Day(14, 5, 2005);
    for (const int second : {0, 1, 86399}) {
        EXPECT_EQ(StandardAge(born.WithSecondOfDay(second), show), 6);
        EXPECT_EQ(StandardAge(born, show.WithSecondOfDay(second)), 6);
        EXPECT_EQ(SpecialAge(born.WithSecondOfDay(second), show.WithSecondOfDay(second)), 7);
    }
}

/// The same age by the calendar of the standard library, counted from months instead of fields.
int AgeByCalendar(std::chrono::sys_days born, std::chrono::sys_days show, ClassList list) {
    using namespace std::chrono;
    const sys_days day = list == ClassList::Standard ? show - days(1) : show;
    const year_month_day end(day);
    const sys_days firstOfMonth = sys_days(end.year() / end.month() / 1);
    const sys_days moved = born - (day - firstOfMonth) - days(1);
    const year_month_day start(moved);
    return static_cast<int>(((end.year() / end.month()) - (start.year() / start.month())).count());
}

TEST(ClassEligibility, AgreesWithTheCalendarOnAGridOfDates) {
    using namespace std::chrono;
    const sys_days firstShow = 2003y / December / 25;
    const sys_days firstBirth = 1990y / January / 1;
    const auto toValue = [](sys_days day) {
        const year_month_day date(day);
        return Day(static_cast<int>(static_cast<unsigned>(date.day())),
                   static_cast<int>(static_cast<unsigned>(date.month())),
                   static_cast<int>(date.year()));
    };
    for (sys_days show = firstShow; show < firstShow + days(500); show += days(1)) {
        const DateValue showValue = toValue(show);
        for (sys_days born = firstBirth + days((show - firstShow).count() % 7);
             born < show + days(40); born += days(7)) {
            for (const ClassList list : {ClassList::Standard, ClassList::Special})
                ASSERT_EQ(AgeInMonths(toValue(born), showValue, list),
                          AgeByCalendar(born, show, list))
                    << toValue(born).ToIso() << " at " << showValue.ToIso();
        }
    }
}

TEST(ClassEligibility, CaptionTellsDateAndAge) {
    const std::string hint =
        "Vyberte jednu ze tříd. Třídy jsou dostupné podle věku psa v den výstavy";
    EXPECT_EQ(ClassCaption(hint, "14.5.2005", 7),
              "Vyberte jednu ze tříd. Třídy jsou dostupné podle věku psa v den výstavy "
              "(14.5.2005) =7 měsíců.");
    EXPECT_EQ(ClassCaption(hint, "30.12.1899", -1230),
              "Vyberte jednu ze tříd. Třídy jsou dostupné podle věku psa v den výstavy "
              "(30.12.1899) =-1230 měsíců.");
}

} // namespace
} // namespace lorvo
