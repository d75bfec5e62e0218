#include "office/texts/post_code.h"

#include <gtest/gtest.h>

namespace lorvo {
namespace {

TEST(PostCode, IsFiveDigitsWithBlanksOrWithout) {
    EXPECT_EQ(PostCodeFromText(u"76001"_qs), 76001);
    EXPECT_EQ(PostCodeFromText(u" 0 12 34"_qs), 1234);
}

TEST(PostCode, NoneIsZero) {
    for (const QString& text : {QString(), u"   "_qs, u"0"_qs, u" 0 "_qs})
        EXPECT_EQ(PostCodeFromText(text), 0) << text.toStdString();
}

TEST(PostCode, AnythingElseIsNone) {
    for (const QString& text : {u"00"_qs, u"123"_qs, u"123456"_qs, u"1100a"_qs, u"-1234"_qs})
        EXPECT_FALSE(PostCodeFromText(text)) << text.toStdString();
}

TEST(PostCode, IsCleanedOfItsBlanks) {
    EXPECT_EQ(CleanedPostCode(u" 760 01 "_qs), u"76001");
    EXPECT_EQ(CleanedPostCode(u"  "_qs), u"0");
    EXPECT_EQ(CleanedPostCode(u"12 3"_qs), u"123");
}

} // namespace
} // namespace lorvo
