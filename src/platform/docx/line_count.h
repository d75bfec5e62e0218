#pragma once
// How many lines a paragraph takes.

#include "platform/docx/docx_text.h"
#include "platform/docx/font_widths.h"

#include <set>

namespace lorvo::docx {

/// The room that lines have between the margins of a page or column.
struct LineRoom {
    Twips width = 0;
    std::set<Twips> tabStops; ///< beside the paragraph's own
};

/// Lines of the paragraph with its letters at `percent` of their width.
int CountLines(const Paragraph& paragraph, const LineRoom& room, FontWidths widths, int percent);

} // namespace lorvo::docx
