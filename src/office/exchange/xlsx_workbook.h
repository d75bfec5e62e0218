#pragma once
// What stands beside the sheets of an Office Open XML workbook: which part is which, the texts that
// cells share, and which cells show days.

#include "office/exchange/xml_part.h"
#include "office/exchange/zip_parts.h"

#include <QStringList>
#include <vector>

namespace lorvo {

/// The workbook's parts by name. Optional ones that the workbook lacks are empty.
struct XlsxWorkbook {
    QString sheet;         ///< the first sheet; empty where the workbook has none
    QString sharedStrings; ///< optional
    QString styles;        ///< optional
    bool from1904 = false; ///< days are counted from 1.1.1904 instead of 30.12.1899
};

/// All of these raise PlatformError, as ZipParts and XmlPart do.
XlsxWorkbook ReadWorkbook(const ZipParts& parts);
/// The shared texts in their order; none for an empty name.
QStringList ReadSharedStrings(const ZipParts& parts, const QString& name);
/// For each format of cells whether it shows a day; none for an empty name.
std::vector<bool> ReadDayFormats(const ZipParts& parts, const QString& name);

/// The text of the element that was entered last, whose runs are joined and readings of foreign
/// signs left out.
QString RunsOfText(XmlPart& xml);
/// "_x000A_" stands for a line break, and so on.
QString WithoutEscapes(const QString& text);

} // namespace lorvo
