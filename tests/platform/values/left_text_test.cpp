#include "platform/values/left_text.h"

#include <gtest/gtest.h>

namespace lorvo {
namespace {

TEST(LeftText, CutsToTheWidthAndNeverThroughACharacter) {
    EXPECT_EQ(LeftText(QStringLiteral("Rek"), 5), QStringLiteral("Rek"));
    EXPECT_EQ(LeftText(QStringLiteral("Rekovna"), 3), QStringLiteral("Rek"));
    EXPECT_EQ(LeftText(QString(), 3), QString());
    EXPECT_EQ(LeftText(QStringLiteral("ab🐕"), 3), QStringLiteral("ab"));
    EXPECT_EQ(LeftText(QStringLiteral("ab🐕c"), 4), QStringLiteral("ab🐕"));
    EXPECT_EQ(LeftText(QStringLiteral("🐕"), 0), QString());
}

} // namespace
} // namespace lorvo
