#pragma once
// The text of a cell in an OpenDocument spreadsheet.

#include "office/exchange/xml_part.h"

namespace lorvo {

/// The text of the paragraph that was entered last, without comments and drawings. Raises as
/// XmlPart does.
QString ParagraphText(XmlPart& xml);

} // namespace lorvo
