#pragma once
// The letters of files that come from elsewhere: the bytes are kept as received, and the guess can
// be put right without reading the file again.

#include <QByteArray>
#include <QString>
#include <array>
#include <optional>

namespace lorvo {

enum class TextEncoding { Utf8, Windows1250, Utf16LittleEndian, Utf16BigEndian };

inline constexpr std::array kTextEncodings = {TextEncoding::Utf8, TextEncoding::Windows1250,
                                              TextEncoding::Utf16LittleEndian,
                                              TextEncoding::Utf16BigEndian};

/// The name that a clerk knows the encoding by.
QString EncodingName(TextEncoding encoding);

/// By the mark at the beginning; without one UTF-16 where every other byte of the beginning is 0,
/// UTF-8 where nearly all letters are well-formed UTF-8, else windows-1250.
TextEncoding GuessEncoding(const QByteArray& bytes);

/// The text without a mark at its beginning and with one kind of line end (\n). Bytes that the
/// encoding has no letter for become U+FFFD. Never fails.
QString Decoded(const QByteArray& bytes, TextEncoding encoding);

} // namespace lorvo
