#pragma once
// A row of a table on its way to an entry: the readers of its cells take turns at it.

#include "office/exchange/entry_fields.h"
#include "office/exchange/entry_line.h"
#include "office/exchange/entry_tables.h"
#include "platform/values/date_text.h"

namespace lorvo {

struct EntryReading {
    const QStringList& row;
    const ColumnChoice& columns;
    EntryLine line;

    /// A cell's text on one line, without what no box of the program could hold.
    QString Text(EntryField field) const;
    /// The same; refuses the line where the text is wider than its place.
    QString Text(EntryField field, int width);

    /// The clerk has to look; he may take the line nevertheless.
    void Doubt(const QString& reason);
    /// The line can't be taken.
    void Refuse(const QString& reason);
};

/// "„text“", as reasons cite a cell.
QString InQuotes(const QString& text);
/// A day in the spellings that the program's own boxes take, or as a spreadsheet counts days.
[[nodiscard]] std::optional<DateValue> DayFromCell(const QString& text, DateValue today,
                                                   YearWindow window);

/// Name, breed, sex, birth and class, by the rules of the dog editor.
void ReadDogCells(EntryReading& reading, const EntryTables& tables);
/// The owner's boxes; finds him among the known ones by name, town and post code.
void ReadOwnerCells(EntryReading& reading, const EntryTables& tables);
/// Show, closing, first dog, competitions and what was paid.
void ReadShowCells(EntryReading& reading, const EntryTables& tables);

} // namespace lorvo
