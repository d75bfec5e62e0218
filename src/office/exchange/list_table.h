#pragma once
// A list as a table for other programs: what a window shows, with amounts and dates as values.

#include "platform/values/date_value.h"
#include "platform/values/money.h"

#include <QString>
#include <QStringList>
#include <variant>
#include <vector>

namespace lorvo {

/// Empty, a text, a count, an amount in the main currency unless its heading says otherwise, a day.
using TableCell = std::variant<std::monostate, QString, int, Currency, DateValue>;
using TableRow = std::vector<TableCell>;

struct ListTable {
    QString title;
    QStringList headings;
    std::vector<TableRow> rows;
    TableRow totals; ///< as wide as a row; empty where nothing can be summed up
};

/// A date, or nothing for a Null one.
TableCell DayCell(const std::optional<DateValue>& day);

/// Texts as a spreadsheet with Czech settings reads them: decimal comma, no blanks between
/// thousands, d.M.yyyy.
QString CellText(const TableCell& cell);
/// Headings, rows and totals as texts.
std::vector<QStringList> TextRows(const ListTable& table);

} // namespace lorvo
