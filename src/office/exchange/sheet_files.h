#pragma once
// Spreadsheets: reading what others sent (.xlsx, .ods) and handing lists out (.xlsx). Writing
// stands on a library that not every system has; where it is missing, tables go out as CSV alone.

#include "office/exchange/list_table.h"

#include <QByteArray>

namespace lorvo {

/// Whether this build writes .xlsx.
bool CanWriteSheets();

/// Whether the name ends as a spreadsheet's does.
bool IsSheetName(const QString& path);

/// The first sheet as text, blank rows left out: dates as days since 30.12.1899, numbers with a
/// decimal point, truths as "true" and "false", formulas by their last result, line breaks as \n.
/// Raises PlatformError when the file is no spreadsheet, or a cell holds an error or a formula
/// without a result.
std::vector<QStringList> SheetRows(const QString& path);

/// The table as a workbook with one sheet: amounts, counts and dates are numbers, the heading stays
/// in sight. The same table gives the same bytes. Raises PlatformError.
QByteArray SheetBytes(const ListTable& table);

} // namespace lorvo
