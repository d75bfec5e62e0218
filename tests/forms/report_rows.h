#pragma once
// Rows for the tests of lists.

#include "forms/report_list.h"

namespace lorvo {

inline ReportRow MakeRow(const char* key, std::initializer_list<const char*> texts) {
    ReportRow row;
    row.key = QString::fromUtf8(key);
    for (const char* text : texts)
        row.cells.push_back({QString::fromUtf8(text)});
    return row;
}

} // namespace lorvo
