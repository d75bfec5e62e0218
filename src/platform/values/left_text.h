#pragma once
// Texts cut to a width.

#include <QString>

namespace lorvo {

/// The first `width` UTF-16 units of the text; one fewer where the cut would halve a character.
inline QString LeftText(const QString& text, qsizetype width) {
    const bool halves = width > 0 && width < text.size() && text[width - 1].isHighSurrogate();
    return text.left(halves ? width - 1 : width);
}

} // namespace lorvo
