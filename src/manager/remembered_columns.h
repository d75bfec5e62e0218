#pragma once
// Which column is which: by heading, and as the clerk chose for headings like these before.

#include "office/exchange/entry_fields.h"

namespace lorvo {

ColumnChoice RememberedColumns(const QStringList& headings);
/// Keeps the heading of each field in the settings.
void RememberColumns(const QStringList& headings, const ColumnChoice& columns);

} // namespace lorvo
