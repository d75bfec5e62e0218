#pragma once
// windows-1250, the 8-bit code page of the files that the program exchanges.

#include <QByteArray>
#include <QString>

namespace lorvo {

/// A character that the code page lacks becomes its base letter where there is one (ñ gives n),
/// else a question mark. The five bytes that the code page leaves undefined go through unchanged
/// (as U+0081 and so on). Never fails.
QByteArray ToCp1250(const QString& text);
/// Every byte has a character, the undefined ones the control character of the same number, so
/// that reading and writing back gives the same bytes.
QString FromCp1250(const QByteArray& bytes);

} // namespace lorvo
