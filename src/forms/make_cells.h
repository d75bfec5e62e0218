#pragma once
// The cells of a row of a long list.

#include "forms/report_list.h"

#include <utility>

namespace lorvo {

/// The cells in their order, each a text or a whole cell, moved in: a list in braces would copy
/// them, which in a long list takes as long as writing their texts.
template<class... Cells> std::vector<ReportCell> MakeCells(Cells&&... cells) {
    std::vector<ReportCell> row;
    row.reserve(sizeof...(cells));
    (row.push_back(ReportCell{std::forward<Cells>(cells)}), ...);
    return row;
}

} // namespace lorvo
