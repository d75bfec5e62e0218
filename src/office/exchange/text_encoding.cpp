#include "office/exchange/text_encoding.h"

#include "platform/values/cp1250.h"

#include <QStringDecoder>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kBytesLookedAt = 1000;

std::optional<TextEncoding> MarkedEncoding(const QByteArray& bytes) {
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return TextEncoding::Utf8;
    if (bytes.startsWith("\xFF\xFE"))
        return TextEncoding::Utf16LittleEndian;
    if (bytes.startsWith("\xFE\xFF"))
        return TextEncoding::Utf16BigEndian;
    return std::nullopt;
}

/// How many of the bytes at even (or odd) places at the beginning are 0.
qsizetype ZerosAt(const QByteArray& bytes, qsizetype parity) {
    qsizetype zeros = 0;
    for (qsizetype i = parity; i < std::min(bytes.size(), kBytesLookedAt); i += 2)
        zeros += bytes[i] == '\0' ? 1 : 0;
    return zeros;
}

/// Plain letters of UTF-16 have a zero half; no other encoding of text has any zero.
std::optional<TextEncoding> UnmarkedUtf16(const QByteArray& bytes) {
    const qsizetype pairs = std::min(bytes.size(), kBytesLookedAt) / 2;
    if (pairs == 0)
        return std::nullopt;
    if (ZerosAt(bytes, 1) * 2 > pairs)
        return TextEncoding::Utf16LittleEndian;
    if (ZerosAt(bytes, 0) * 2 > pairs)
        return TextEncoding::Utf16BigEndian;
    return std::nullopt;
}

/// A broken byte here and there doesn't make another encoding of a text whose letters are right.
bool IsUtf8(const QByteArray& bytes) {
    const QString decoded = QString::fromUtf8(bytes);
    qsizetype letters = 0;
    for (const QChar letter : decoded)
        letters += letter.unicode() > 0x7F && letter != QChar::ReplacementCharacter ? 1 : 0;
    const qsizetype broken = decoded.count(QChar::ReplacementCharacter);
    return broken == 0 || broken * 10 < letters;
}

QString DecodedBy(QStringDecoder::Encoding encoding, const QByteArray& bytes) {
    QStringDecoder decoder(encoding, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(bytes);
}

QString RawText(const QByteArray& bytes, TextEncoding encoding) {
    switch (encoding) {
    case TextEncoding::Utf8:
        return DecodedBy(QStringDecoder::Utf8, bytes);
    case TextEncoding::Windows1250:
        return FromCp1250(bytes);
    case TextEncoding::Utf16LittleEndian:
        return DecodedBy(QStringDecoder::Utf16LE, bytes);
    case TextEncoding::Utf16BigEndian:
        return DecodedBy(QStringDecoder::Utf16BE, bytes);
    }
    return {};
}

} // namespace

QString EncodingName(TextEncoding encoding) {
    switch (encoding) {
    case TextEncoding::Utf8:
        return u"UTF-8"_s;
    case TextEncoding::Windows1250:
        return u"windows-1250 (středoevropské)"_s;
    case TextEncoding::Utf16LittleEndian:
        return u"UTF-16 LE"_s;
    case TextEncoding::Utf16BigEndian:
        return u"UTF-16 BE"_s;
    }
    return {};
}

TextEncoding GuessEncoding(const QByteArray& bytes) {
    if (const auto marked = MarkedEncoding(bytes))
        return *marked;
    if (const auto wide = UnmarkedUtf16(bytes))
        return *wide;
    return IsUtf8(bytes) ? TextEncoding::Utf8 : TextEncoding::Windows1250;
}

QString Decoded(const QByteArray& bytes, TextEncoding encoding) {
    QString text = RawText(bytes, encoding);
    if (text.startsWith(QChar::ByteOrderMark))
        text.remove(0, 1);
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    return text;
}

} // namespace lorvo
