#include "platform/values/one_line.h"

#include <QChar>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

TEST(OneLine, BreaksAndTabsAtTheEndsGo) {
    EXPECT_EQ(OneLine(u"Novák\r\n"_s), u"Novák"_s);
    EXPECT_EQ(OneLine(u"\n\tNovák\t"_s), u"Novák"_s);
    EXPECT_EQ(OneLine(u" Novák "_s), u" Novák "_s);
    EXPECT_EQ(OneLine(u"\r\n"_s), QString());
}

TEST(OneLine, ThoseWithinBecomeOneBlank) {
    EXPECT_EQ(OneLine(u"Dlouhá 1\r\nZlín\tČR\u2028EU\u2029x"_s), u"Dlouhá 1 Zlín ČR EU x"_s);
    EXPECT_EQ(OneLine(u"a\n\n\tb"_s), u"a b"_s);
    EXPECT_EQ(OneLine(u"a \n b"_s), u"a  b"_s);
}

TEST(OneLine, WhatIsNoCharacterOfATextGoes) {
    EXPECT_EQ(OneLine(u"a"_s + QChar(0) + u"b\x1b\x7f\uffff"_s), u"ab"_s);
    EXPECT_EQ(OneLine(u"x🐕"_s.left(2)), u"x"_s);
    EXPECT_EQ(OneLine(u"🐕x"_s.mid(1)), u"x"_s);
    EXPECT_EQ(OneLine(u"🐕 שלום e\u0301"_s), u"🐕 שלום e\u0301"_s);
}

} // namespace
} // namespace lorvo
