#include "store/ostatni.h"

#include "store/routines_fixture.h"

namespace lorvo::test {

namespace {

using OstatniTest = RoutinesTest;

const DateValue kDay = DateValue::FromCalendar(2005, 5, 14);

TEST_F(OstatniTest, AnEmptyTableHasNoValues) {
    EXPECT_FALSE(ShowWideValues());
}

TEST_F(OstatniTest, AnEmptyRowHasNoDate) {
    InsertEmptyShowWideValues();
    ASSERT_TRUE(ShowWideValues());
    EXPECT_FALSE(ShowWideValues()->DatumVystavy);
}

TEST_F(OstatniTest, TheDateGoesIntoTheOneRow) {
    SetShowDate(kDay);
    SetShowDate(kDay.PlusDays(1));
    EXPECT_EQ(ShowWideValues()->DatumVystavy, kDay.PlusDays(1));
    EXPECT_EQ(Column("SELECT COUNT(*) FROM Ostatni"), Texts{"1"});
}

TEST_F(OstatniTest, AClearedDateIsTheDateValueZero) {
    EXPECT_THROW(ClearShowDate(), StoreError);
    SetShowDate(kDay);
    ClearShowDate();
    EXPECT_EQ(ShowWideValues()->DatumVystavy, DateValue());
    EXPECT_FALSE(IsNull("SELECT DatumVystavy FROM Ostatni"));
}

} // namespace

} // namespace lorvo::test
