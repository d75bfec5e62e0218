#include "store/value.h"

#include "platform/values/errors.h"

#include <gtest/gtest.h>
#include <limits>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const Value kDay(DateValue::FromCalendar(1900, 1, 2));

TEST(ValueTest, ReadsAsAWholeNumber) {
    EXPECT_EQ(Value().ToInt(), 0);
    EXPECT_EQ(Value(7).ToInt(), 7);
    EXPECT_EQ(Value(true).ToInt(), -1);
    EXPECT_EQ(Value(Currency::FromRaw(-19999)).ToInt(), -1);
    EXPECT_EQ(Value(u" 12,9 "_s).ToInt(), 12);
    EXPECT_EQ(kDay.ToInt(), 3);
    EXPECT_EQ(Value(qint64{std::numeric_limits<int>::min()}).ToInt(),
              std::numeric_limits<int>::min());
    EXPECT_THROW(Value(qint64{1} << 31).ToInt(), RangeError);
    EXPECT_THROW(Value(u"3000000000"_s).ToInt(), RangeError);
    EXPECT_THROW(Value(u"sto"_s).ToInt(), StoreError);
    EXPECT_THROW(Value(QString()).ToInt(), StoreError);
}

TEST(ValueTest, ReadsAsABoolean) {
    EXPECT_FALSE(Value().ToBool());
    EXPECT_FALSE(Value(0).ToBool());
    EXPECT_TRUE(Value(1).ToBool());
    EXPECT_TRUE(Value(-1).ToBool());
    EXPECT_TRUE(Value(Currency::FromRaw(1)).ToBool());
    EXPECT_TRUE(Value(u"1"_s).ToBool());
    EXPECT_FALSE(Value(DateValue()).ToBool());
}

TEST(ValueTest, ReadsAsAnAmount) {
    EXPECT_EQ(Value().ToCurrency(), Currency());
    EXPECT_EQ(Value(3).ToCurrency(), Currency::FromUnits(3));
    EXPECT_EQ(Value(true).ToCurrency(), Currency::FromUnits(-1));
    EXPECT_EQ(Value(u"12,5"_s).ToCurrency(), Currency::FromRaw(125000));
    EXPECT_EQ(kDay.ToCurrency(), Currency::FromUnits(3));
    EXPECT_THROW(Value(std::numeric_limits<qint64>::max()).ToCurrency(), RangeError);
    EXPECT_THROW(Value(u"sto"_s).ToCurrency(), StoreError);
}

TEST(ValueTest, ReadsAsADate) {
    EXPECT_EQ(Value().ToDate(), DateValue());
    EXPECT_EQ(Value(0).ToDate(), DateValue());
    EXPECT_EQ(Value(3).ToDate(), DateValue::FromCalendar(1900, 1, 2));
    EXPECT_EQ(Value(u"2005-05-14"_s).ToDate(), DateValue::FromCalendar(2005, 5, 14));
    EXPECT_EQ(Value(Currency::FromUnits(3)).ToDate(), DateValue::FromCalendar(1900, 1, 2));
    EXPECT_EQ(Value(true).ToDate(), DateValue::FromCalendar(1899, 12, 29));
    EXPECT_THROW(Value(u"14.5.2005"_s).ToDate(), StoreError);
    EXPECT_THROW(Value(99999999).ToDate(), RangeError);
}

TEST(ValueTest, ReadsAsText) {
    EXPECT_EQ(Value().ToText(), QString());
    EXPECT_EQ(Value(-7).ToText(), u"-7"_s);
    EXPECT_EQ(Value(true).ToText(), u"-1"_s);
    EXPECT_EQ(Value(Currency::FromRaw(12345)).ToText(), u"1.2345"_s);
    EXPECT_EQ(kDay.ToText(), u"1900-01-02T00:00:00"_s);
    EXPECT_EQ(Value(u"žluť"_s).ToText(), u"žluť"_s);
}

} // namespace
} // namespace lorvo
