#include "platform/values/joined_lines.h"

#include <QChar>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

TEST(JoinedLines, BreaksAndTabsAtTheEndsGo) {
    EXPECT_EQ(JoinedLines(u"Novák\r\n"_s), u"Novák"_s);
    EXPECT_EQ(JoinedLines(u"\n\tNovák\t"_s), u"Novák"_s);
    EXPECT_EQ(JoinedLines(u" Novák "_s), u" Novák "_s);
    EXPECT_EQ(JoinedLines(u"\r\n"_s), QString());
}

TEST(JoinedLines, ThoseWithinBecomeOneBlank) {
    EXPECT_EQ(JoinedLines(u"Dlouhá 1\r\nZlín\tČR\u2028EU\u2029x"_s), u"Dlouhá 1 Zlín ČR EU x"_s);
    EXPECT_EQ(JoinedLines(u"a\n\n\tb"_s), u"a b"_s);
    EXPECT_EQ(JoinedLines(u"a \n b"_s), u"a  b"_s);
}

TEST(JoinedLines, WhatIsNoCharacterOfATextGoes) {
    EXPECT_EQ(JoinedLines(u"a"_s + QChar(0) + u"b\x1b\x7f\uffff"_s), u"ab"_s);
    EXPECT_EQ(JoinedLines(u"x🐕"_s.left(2)), u"x"_s);
    EXPECT_EQ(JoinedLines(u"🐕x"_s.mid(1)), u"x"_s);
    EXPECT_EQ(JoinedLines(u"🐕 שלום e\u0301"_s), u"🐕 שלום e\u0301"_s);
}

} // namespace
} // namespace lorvo
