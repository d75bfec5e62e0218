#pragma once
// Tables as text with separators (RFC 4180, with the separator chosen): reading what others wrote,
// and writing what a Czech spreadsheet opens right.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <array>
#include <vector>

namespace lorvo {

/// The separators that are told apart, the likeliest first.
inline constexpr std::array kCsvSeparators = {u';', u',', u'\t', u'|'};

/// The name that a clerk knows the separator by.
QString SeparatorName(QChar separator);

/// The separator that stands most often outside quotes in the first line; the semicolon where none
/// does.
QChar GuessSeparator(const QString& text);

/// Lines and their fields, blank lines left out. A field in quotes may hold separators, line ends
/// and doubled quotes; a quote that is never closed ends with the text. Never fails.
std::vector<QStringList> CsvRows(const QString& text, QChar separator);

/// Text in UTF-8 with its mark, semicolons and \r\n: what a Czech Excel and LibreOffice open
/// without asking. Fields are quoted where they must be.
QByteArray CsvBytes(const std::vector<QStringList>& rows);

} // namespace lorvo
