#pragma once
// What the clerk is told of a document that is written but not to be seen.

#include "platform/word_processor.h"

namespace lorvo {

/// A message that says where the document lies and what opens it, where the desktop opened nothing.
void TellWhenNotOpened(const ShownDocument& document, const QString& title);

} // namespace lorvo
