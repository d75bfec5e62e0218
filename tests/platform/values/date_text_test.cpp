#include "platform/values/date_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lorvo {
namespace {

const DateValue kToday = DateValue::FromCalendar(2026, 11, 21);

struct Spelling {
    std::string text;
    std::string date; ///< empty: no date
};

std::string Shown(const std::optional<DateValue>& date) {
    return date ? date->ToIso().substr(0, 10) : std::string();
}

TEST(DateText, AWholeDateNamesItsYearInFull) {
    const std::vector<Spelling> spellings = {
        {"5.6.2024", "2024-06-05"},
        {"05.06.2024", "2024-06-05"},
        {"5.06.2024", "2024-06-05"},
        {"05.6.2024", "2024-06-05"},
        {"5. 6. 2024", "2024-06-05"},
        {"05. 06. 2024", "2024-06-05"},
        {" 5.6.2024 ", "2024-06-05"},
        {"5 . 6 . 2024", "2024-06-05"},
        {"5.6.2024.", "2024-06-05"},
        {"5.\t6.\t2024", "2024-06-05"},
        {"5/6/2024", "2024-06-05"},
        {"05/06/2024", "2024-06-05"},
        {"5-6-2024", "2024-06-05"},
        {"5,6,2024", "2024-06-05"},
        {"5.6-2024", "2024-06-05"},
        {"5 6 2024", "2024-06-05"},
        {"05062024", "2024-06-05"},
        {" 05062024", "2024-06-05"},
        {"2024-06-05", "2024-06-05"},
        {"29.2.2024", "2024-02-29"},
        {"29.2.2000", "2000-02-29"},
        {"31.12.9999", "9999-12-31"},
        {"1.1.1601", "1601-01-01"},
        {"29.2.2023", ""},
        {"29.2.1900", ""},
        {"31.4.2024", ""},
        {"0.6.2024", ""},
        {"5.0.2024", ""},
        {"5.13.2024", ""},
        {"32.1.2024", ""},
        {"5.6.0000", ""},
        {"5.6.24", ""},
        {"5.6.", ""},
        {"5.6.202", ""},
        {"5.6.20245", ""},
        {"5..6.2024", ""},
        {"5.6.2024 x", ""},
        {"5.6.20 24", ""},
        {"-5.6.2024", ""},
        {"5.6.2024.1", ""},
        {"5.6.2024..", ""},
        {"31042024", ""},
        {"2024-6-5", "2024-06-05"},
        {"2024-13-05", ""},
        {"005.6.2024", ""},
        {"5.006.2024", ""},
        {"0506202", ""},
        {"050620245", ""},
        {"", ""},
        {" ", ""},
        {".", ""},
        {"5. června 2024", ""},
        {"99999999999.1.2024", ""},
    };
    for (const Spelling& spelling : spellings)
        EXPECT_EQ(Shown(WholeDateFromText(spelling.text, DateOrder::DayFirst)), spelling.date)
            << spelling.text;
}

TEST(DateText, AYearLeftOutIsThatOfToday) {
    for (const char* text : {"5.6.", "5.6", "05.06.", "5. 6.", "5/6", "5-6", "5,6", " 5.6. "}) {
        EXPECT_EQ(Shown(DateFromText(text, DateOrder::DayFirst, kToday, YearWindow::Around)),
                  "2026-06-05")
            << text;
        EXPECT_EQ(Shown(DateFromText(text, DateOrder::DayFirst, kToday, YearWindow::Past)),
                  "2026-06-05")
            << text;
    }
    EXPECT_EQ(Shown(DateFromText("31.12.", DateOrder::DayFirst, kToday, YearWindow::Past)),
              "2026-12-31");
    EXPECT_EQ(Shown(DateFromText("29.2.", DateOrder::DayFirst, kToday, YearWindow::Around)), "");
}

TEST(DateText, ABirthInTwoDigitsIsNeverInTheFuture) {
    const std::vector<Spelling> spellings = {
        {"5.6.24", "2024-06-05"},
        {"05.06.24", "2024-06-05"},
        {"5. 6. 24", "2024-06-05"},
        {"5/6/24", "2024-06-05"},
        {"050624", "2024-06-05"},
        {"21.11.26", "2026-11-21"},
        {"22.11.26", "1926-11-22"},
        {"1.1.27", "1927-01-01"},
        {"31.12.99", "1999-12-31"},
        {"29.2.28", "1928-02-29"},
        {"1.1.00", "2000-01-01"},
        {"29.2.23", ""},
        {"310424", ""},
        {"5.6.2019", "2019-06-05"},
        {"5.6.1", ""},
        {"5.6.123", ""},
        {"0506", ""},
        {"5", ""},
        {"24", ""},
        {"2024", ""},
        {"05.06.24x", ""},
    };
    for (const Spelling& spelling : spellings)
        EXPECT_EQ(Shown(DateFromText(spelling.text, DateOrder::DayFirst, kToday, YearWindow::Past)),
                  spelling.date)
            << spelling.text;
}

TEST(DateText, AShowInTwoDigitsIsNearToday) {
    const std::vector<Spelling> spellings = {
        {"5.6.24", "2024-06-05"}, {"22.11.26", "2026-11-22"}, {"1.1.27", "2027-01-01"},
        {"311275", "2075-12-31"}, {"1.1.76", "1976-01-01"},   {"31.12.99", "1999-12-31"},
    };
    for (const Spelling& spelling : spellings)
        EXPECT_EQ(
            Shown(DateFromText(spelling.text, DateOrder::DayFirst, kToday, YearWindow::Around)),
            spelling.date)
            << spelling.text;
}

TEST(DateText, AnotherDeskWritesTheMonthFirst) {
    EXPECT_EQ(Shown(WholeDateFromText("6/5/2024", DateOrder::MonthFirst)), "2024-06-05");
    EXPECT_EQ(Shown(WholeDateFromText("06052024", DateOrder::MonthFirst)), "2024-06-05");
    EXPECT_EQ(Shown(WholeDateFromText("2024-06-05", DateOrder::MonthFirst)), "2024-06-05");
    EXPECT_EQ(Shown(DateFromText("6/5", DateOrder::MonthFirst, kToday, YearWindow::Past)),
              "2026-06-05");
}

} // namespace
} // namespace lorvo
