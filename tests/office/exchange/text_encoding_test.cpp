#include "office/exchange/text_encoding.h"

#include "platform/values/cp1250.h"
#include "support/print_qt.h"

#include <QStringEncoder>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

using namespace Qt::StringLiterals;

const QString kText = u"Jméno;Město\nŽeryk;Ústí\n"_s;

QByteArray Utf16(QStringEncoder::Encoding encoding, QStringEncoder::Flag flag) {
    QStringEncoder encoder(encoding, flag);
    return encoder(kText);
}

TEST(TextEncoding, IsGuessedFromTheBytes) {
    EXPECT_EQ(GuessEncoding(kText.toUtf8()), TextEncoding::Utf8);
    EXPECT_EQ(GuessEncoding("\xEF\xBB\xBF" + kText.toUtf8()), TextEncoding::Utf8);
    EXPECT_EQ(GuessEncoding(ToCp1250(kText)), TextEncoding::Windows1250);
    for (const auto flag : {QStringEncoder::Flag::WriteBom, QStringEncoder::Flag::Default}) {
        EXPECT_EQ(GuessEncoding(Utf16(QStringEncoder::Utf16LE, flag)),
                  TextEncoding::Utf16LittleEndian);
        EXPECT_EQ(GuessEncoding(Utf16(QStringEncoder::Utf16BE, flag)),
                  TextEncoding::Utf16BigEndian);
    }
    EXPECT_EQ(GuessEncoding("Rex;Praha"), TextEncoding::Utf8);
    EXPECT_EQ(GuessEncoding({}), TextEncoding::Utf8);
    EXPECT_EQ(GuessEncoding(kText.toUtf8().repeated(9) + "\xFF"), TextEncoding::Utf8);
}

TEST(TextEncoding, GivesTheSameTextFromEach) {
    EXPECT_EQ(Decoded("\xEF\xBB\xBF" + kText.toUtf8(), TextEncoding::Utf8), kText);
    EXPECT_EQ(Decoded(ToCp1250(kText), TextEncoding::Windows1250), kText);
    EXPECT_EQ(Decoded(Utf16(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom),
                      TextEncoding::Utf16LittleEndian),
              kText);
    EXPECT_EQ(Decoded(Utf16(QStringEncoder::Utf16BE, QStringEncoder::Flag::Default),
                      TextEncoding::Utf16BigEndian),
              kText);
}

TEST(TextEncoding, AllLineEndsAreOne) {
    EXPECT_EQ(Decoded("a\r\nb\rc\nd", TextEncoding::Utf8), u"a\nb\nc\nd"_s);
}

TEST(TextEncoding, BytesWithoutALetterAreSeen) {
    EXPECT_TRUE(Decoded("\xC8"
                        "apek",
                        TextEncoding::Utf8)
                    .contains(QChar::ReplacementCharacter));
}

} // namespace
} // namespace lorvo
