#include "platform/values/cp1250.h"

#include <QList>
#include <algorithm>
#include <array>

namespace lorvo {

namespace {

// Characters of the bytes 0x80 to 0xFF. Undefined bytes (81, 83, 88, 90, 98) stand for the control
// characters of their own number.
constexpr std::array<char16_t, 128> kUpperHalf = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039,
    0x015A, 0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x0098, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141,
    0x00A4, 0x0104, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB,
    0x013D, 0x02DD, 0x013E, 0x017C, 0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3,
    0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, 0x010D, 0x00E9, 0x0119, 0x00EB,
    0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};

// Letters with a stroke have no decomposition in Unicode, but a base letter all the same.
struct StrokeLetter {
    char16_t letter;
    char base;
};
constexpr StrokeLetter kStrokeLetters[] = {{u'Ø', 'O'}, {u'ø', 'o'}, {u'Ħ', 'H'}, {u'ħ', 'h'},
                                           {u'Ŧ', 'T'}, {u'ŧ', 't'}, {u'ı', 'i'}};

constexpr std::size_t kEncoderSize = 0x2123; // up to the trade mark sign, the highest of the page

/// Byte of each character, 0 where there is none.
using Encoder = std::array<char, kEncoderSize>;

constexpr Encoder MakeEncoder() {
    Encoder encoder{};
    for (std::size_t c = 0; c < 0x80; ++c)
        encoder[c] = static_cast<char>(c);
    for (std::size_t i = 0; i < kUpperHalf.size(); ++i)
        encoder[kUpperHalf[i]] = static_cast<char>(0x80 + i);
    return encoder;
}

constexpr Encoder kEncoder = MakeEncoder();

bool TryEncode(char32_t c, char& byte) {
    if (c >= kEncoderSize || (kEncoder[c] == 0 && c != 0))
        return false;
    byte = kEncoder[c];
    return true;
}

bool IsMark(char32_t c) {
    return QChar::category(c) == QChar::Mark_NonSpacing;
}

void AppendBaseLetters(char32_t c, QByteArray& out) {
    char byte = '?';
    if (TryEncode(c, byte) || QChar::decompositionTag(c) == QChar::NoDecomposition) {
        const auto* stroke = std::find_if(std::begin(kStrokeLetters), std::end(kStrokeLetters),
                                          [c](StrokeLetter each) { return each.letter == c; });
        out.append(stroke == std::end(kStrokeLetters) ? byte : stroke->base);
        return;
    }
    for (const char32_t part : QChar::decomposition(c).toUcs4()) {
        if (!IsMark(part))
            AppendBaseLetters(part, out);
    }
}

/// For a text that holds something beyond the code page. Composed first, so that a c with a caron
/// behind it is a č; a mark that no letter composes with goes the way of the ñ's tilde.
QByteArray EncodeWithBaseLetters(const QString& text) {
    QByteArray out;
    for (const char32_t c : text.normalized(QString::NormalizationForm_C).toUcs4()) {
        if (out.isEmpty() || !IsMark(c))
            AppendBaseLetters(c, out);
    }
    return out;
}

} // namespace

QByteArray ToCp1250(const QString& text) {
    QByteArray out(text.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!TryEncode(text.at(i).unicode(), out.data()[i]))
            return EncodeWithBaseLetters(text);
    }
    return out;
}

QString FromCp1250(const QByteArray& bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes.at(i));
        text[i] = byte < 0x80 ? QChar(char16_t{byte}) : QChar(kUpperHalf[byte - 0x80u]);
    }
    return text;
}

} // namespace lorvo
