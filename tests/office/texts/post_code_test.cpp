#include "office/texts/post_code.h"

#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

TEST(PostCode, IsFiveDigitsWithBlanksOrWithout) {
    EXPECT_EQ(PostCodeFromText(u"76001"_s), 76001);
    EXPECT_EQ(PostCodeFromText(u" 0 12 34"_s), 1234);
}

TEST(PostCode, NoneIsZero) {
    for (const QString& text : {QString(), u"   "_s, u"0"_s, u" 0 "_s})
        EXPECT_EQ(PostCodeFromText(text), 0) << text.toStdString();
}

TEST(PostCode, AnythingElseIsNone) {
    for (const QString& text : {u"00"_s, u"123"_s, u"123456"_s, u"1100a"_s, u"-1234"_s})
        EXPECT_FALSE(PostCodeFromText(text)) << text.toStdString();
}

TEST(PostCode, IsCleanedOfItsBlanks) {
    EXPECT_EQ(CleanedPostCode(u" 760 01 "_s), u"76001");
    EXPECT_EQ(CleanedPostCode(u"  "_s), u"0");
    EXPECT_EQ(CleanedPostCode(u"12 3"_s), u"123");
}

} // namespace
} // namespace lorvo
