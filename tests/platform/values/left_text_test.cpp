#include "platform/values/left_text.h"

#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

TEST(LeftText, CutsToTheWidthAndNeverThroughACharacter) {
    EXPECT_EQ(LeftText(u"Rek"_s, 5), u"Rek"_s);
    EXPECT_EQ(LeftText(u"Rekovna"_s, 3), u"Rek"_s);
    EXPECT_EQ(LeftText(QString(), 3), QString());
    EXPECT_EQ(LeftText(u"ab🐕"_s, 3), u"ab"_s);
    EXPECT_EQ(LeftText(u"ab🐕c"_s, 4), u"ab🐕"_s);
    EXPECT_EQ(LeftText(u"🐕"_s, 0), QString());
}

} // namespace
} // namespace lorvo
