#pragma once
// Short hands for what every document types.

#include "platform/word_processor.h"

namespace lorvo {

inline void TypeParagraphs(WordProcessor& word, int count) {
    for (int i = 0; i < count; ++i)
        word.TypeParagraph();
}

/// A text and so many paragraph marks behind it.
inline void TypeLine(WordProcessor& word, const QString& text, int paragraphs = 1) {
    word.TypeText(text);
    TypeParagraphs(word, paragraphs);
}

} // namespace lorvo
