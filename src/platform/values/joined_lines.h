#pragma once
// Texts from elsewhere on one line.

#include <QString>

namespace lorvo {

/// The text as one line: line breaks and tabs at its ends go, those within become one blank each
/// run, and what is no character of a text (control characters, half of a character) goes.
QString JoinedLines(const QString& text);

} // namespace lorvo
