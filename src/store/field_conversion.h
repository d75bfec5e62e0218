#pragma once
// Between a cell's value and what the file keeps of it.

#include "store/dialect_translator.h"
#include "store/value.h"

#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace lorvo {

/// `value` as a field of `type` keeps it: any non-zero is true, a text of digits is a number, a
/// number is a date by its days, and an empty text is Null where a text can't be. Raises StoreError
/// or RangeError that names `field` when the value doesn't fit.
Value ConvertForField(const Value& value, FieldType type, const std::string& field);

/// Binds a converted value as parameter `index` (from 1). Returns SQLite's result code.
int BindStored(sqlite3_stmt* statement, int index, const Value& value);

/// Cell number `position` of the statement's current row; StoreError names file, table and field
/// when the file holds something that the field's type can't be.
Value ReadStored(sqlite3_stmt* statement, int position, const ResultColumn& column);

/// The same, but a text where an amount should be is given as the text that it is.
Value ReadAsItStands(sqlite3_stmt* statement, int position, const ResultColumn& column);

/// The text in a field of amounts, which a file can hold and the program never writes; null for
/// every other value.
const QString* StrayText(const Value& value, const ResultColumn& column);
/// Raises the StoreError of ReadStored when the value is such a text.
void RequireAmount(sqlite3* database, const Value& value, const ResultColumn& column);

} // namespace lorvo
