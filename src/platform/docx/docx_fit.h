#pragma once
// Text is fitted into its room, so that a paper breaks alike with whatever fonts it is printed.

#include "platform/docx/line_count.h"

#include <vector>

namespace lorvo::docx {

/// Narrows the letters as little as makes the paragraph take the same number of lines in the
/// narrowest and in the widest font, if a narrowing that still reads well does that.
void FitParagraph(Paragraph& paragraph, const LineRoom& room);

/// Makes the sheet fit a page of that height in any font, with a line to spare: a text that wraps
/// takes its room from the empty lines below the sheet's first text, and where these don't give
/// enough the long texts get smaller letters. A sheet for which all that is not enough stays as
/// long as it is.
void FitSheet(std::vector<Paragraph>& sheet, const LineRoom& room, Twips height);

} // namespace lorvo::docx
