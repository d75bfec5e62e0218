#include "platform/values/cp1250.h"

#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

TEST(Cp1250, EveryByteSurvives) {
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(static_cast<char>(byte));
    const QString text = FromCp1250(all);
    EXPECT_EQ(text.size(), 256);
    EXPECT_EQ(ToCp1250(text), all);
}

TEST(Cp1250, CzechTextHasTheBytesOfTheCodePage) {
    EXPECT_EQ(ToCp1250(u"Příliš žluťoučký kůň"_s),
              QByteArray("P\xf8\xedli\x9a \x9elu\x9dou\xe8k\xfd k\xf9\xf2"));
    EXPECT_EQ(ToCp1250(u"ÚĎÁBELSKÉ ÓDY €„“–"_s), QByteArray("\xda\xcf\xc1"
                                                            "BELSK\xc9 \xd3"
                                                            "DY \x80\x84\x93\x96"));
    EXPECT_EQ(FromCp1250("\xc8\xd8\x8a"), u"ČŘŠ"_s);
}

TEST(Cp1250, UndefinedBytesAreTheirControlCharacters) {
    EXPECT_EQ(FromCp1250("\x81\x83\x88\x90\x98"), u"\u0081\u0083\u0088\u0090\u0098"_s);
}

TEST(Cp1250, AMissingCharacterBecomesItsBaseLetter) {
    EXPECT_EQ(ToCp1250(u"ñÑåÅêõ"_s), QByteArray("nNaAeo"));
    EXPECT_EQ(ToCp1250(u"Bjørn Øst ħı"_s), QByteArray("Bjorn Ost hi"));
    EXPECT_EQ(ToCp1250(u"Nguyễn"_s), QByteArray("Nguyen"));
    EXPECT_EQ(ToCp1250(u"ﬁlm"_s), QByteArray("film"));
}

TEST(Cp1250, ACharacterWithoutABaseLetterIsAQuestionMark) {
    EXPECT_EQ(ToCp1250(u"Ж中\U0001F436x"_s), QByteArray("???x"));
    EXPECT_EQ(ToCp1250(QString(QChar(0xD83D)) + u"x"_s), QByteArray("?x"));
}

TEST(Cp1250, DecomposedLettersAreComposedFirst) {
    EXPECT_EQ(ToCp1250(u"c\u030C"_s), QByteArray("\xe8"));
    EXPECT_EQ(ToCp1250(u"n\u0303"_s), QByteArray("n"));
    EXPECT_EQ(ToCp1250(u"q\u0303r"_s), QByteArray("qr"));
    EXPECT_EQ(ToCp1250(u"\u0303"_s), QByteArray("?"));
}

TEST(Cp1250, EmptyTextIsNoBytes) {
    EXPECT_TRUE(ToCp1250({}).isEmpty());
    EXPECT_TRUE(FromCp1250({}).isEmpty());
}

} // namespace
} // namespace lorvo
