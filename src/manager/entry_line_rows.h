#pragma once
// How judged lines look in the list of the page of entries, and how many there are of each kind.

#include "forms/report_list.h"
#include "office/exchange/entry_fields.h"
#include "office/exchange/entry_line.h"

#include <functional>

namespace lorvo {

/// The row of a line; "C" and the line's number is its key. A new one is ticked.
ReportRow RowOf(const EntryLine& line, const ColumnChoice& columns);

struct EntryCounts {
    int all = 0;
    int fresh = 0;
    int known = 0;
    int ticked = 0;
};

EntryCounts CountEntries(const std::vector<EntryLine>& lines,
                         const std::function<bool(const EntryLine&)>& isTicked);
/// "Řádků: 5, nových: 3, ...".
QString CountsText(const EntryCounts& counts);

} // namespace lorvo
