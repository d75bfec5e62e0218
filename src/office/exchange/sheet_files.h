#pragma once
// Spreadsheets: reading what others sent (.xlsx, .ods) and handing lists out (.xlsx). Both stand on
// libraries that not every system has; where one is missing, tables go in and out as CSV alone.

#include "office/exchange/list_table.h"

#include <QByteArray>

namespace lorvo {

/// Whether this build reads .xlsx and .ods, and writes .xlsx.
[[nodiscard]] bool CanReadSheets();
bool CanWriteSheets();

/// Whether the name ends as a spreadsheet's does.
bool IsSheetName(const QString& path);

/// The first sheet as text: dates as the count of days, amounts with a decimal point. Raises
/// PlatformError when the file is no spreadsheet or can't be read here.
std::vector<QStringList> SheetRows(const QString& path);

/// The table as a workbook with one sheet: amounts, counts and dates are numbers, the heading stays
/// in sight. The same table gives the same bytes. Raises PlatformError.
QByteArray SheetBytes(const ListTable& table);

} // namespace lorvo
