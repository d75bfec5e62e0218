#include "office/copies/copy_ladder.h"

#include "support/print_qt.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using Positions = std::vector<std::size_t>;

const DateValue kNow = DateValue::FromCalendar(2027, 5, 14).WithSecondOfDay(8 * 3600);

/// Copies of so many rows, each some days older than the one before.
std::vector<AgedCopy> Copies(const std::vector<int>& rows, int daysApart) {
    std::vector<AgedCopy> copies;
    for (const int count : rows)
        copies.push_back({kNow.PlusDays(-daysApart * static_cast<int>(copies.size())), count});
    return copies;
}

TEST(CopyLadder, NamesTellTheMoment) {
    const DateValue moment = DateValue::FromCalendar(2027, 5, 4).WithSecondOfDay(3661);
    EXPECT_EQ(CopyName(moment), u"data 2027-05-04 01.01.01.mdb"_s);
    EXPECT_EQ(MomentOfCopy(CopyName(moment)), moment);
    for (const char* name : {"data.mdb", "data 2027-05-04.mdb", "data 2027-02-30 01.01.01.mdb",
                             "data 2027-05-04 01.01.01.bak"})
        EXPECT_EQ(MomentOfCopy(QString::fromUtf8(name)), std::nullopt) << name;
}

TEST(CopyLadder, TheLastTenStay) {
    EXPECT_EQ(CopiesToDrop(Copies(std::vector<int>(10, 5), 0), kNow), Positions());
    EXPECT_EQ(CopiesToDrop(Copies(std::vector<int>(12, 5), 0), kNow), (Positions{10, 11}));
}

TEST(CopyLadder, OneOfEachDayForTwoWeeksAndOneOfEachMonthForAYear) {
    const auto dropped = CopiesToDrop(Copies(std::vector<int>(800, 5), 1), kNow);
    // 14 days, of which the first 10 are the last ten anyway; then one of each of 11 earlier
    // months.
    EXPECT_EQ(800 - dropped.size(), 14u + 11u);
    EXPECT_TRUE(std::ranges::find(dropped, 799u) != dropped.end());
}

TEST(CopyLadder, CopiesAheadOfTheClockTakeNoPlaceFromNewOnes) {
    std::vector<AgedCopy> copies(12, {kNow.PlusDays(365), 5});
    for (const AgedCopy& copy : Copies(std::vector<int>(12, 5), 0))
        copies.push_back(copy);
    EXPECT_EQ(CopiesToDrop(copies, kNow), (Positions{22, 23}));
}

TEST(CopyLadder, AFullCopyNeverGivesWayToEmptierOnes) {
    std::vector<int> rows(20, 0);
    rows[15] = 400;
    EXPECT_FALSE(std::ranges::count(CopiesToDrop(Copies(rows, 0), kNow), 15u));
    EXPECT_FALSE(std::ranges::count(CopiesToDrop(Copies(rows, 300), kNow), 15u))
        << "twelve years later";
}

} // namespace
} // namespace lorvo
