#pragma once
// The sheets that confirm an entry and let one person in, one to a dog.

#include <QByteArray>
#include <QStringList>
#include <array>

namespace lorvo {

class RunProgress;
class WordProcessor;

/// A text of the sheet that the clerk may edit.
struct ConfirmationLine {
    const char16_t* label;
    const char16_t* text; ///< what stands there at first
    const char* placeholder;
};

extern const std::array<ConfirmationLine, 11> kConfirmationLines;

/// Appends a filled copy of the pattern for every dog by catalogue number, until the clerk stops.
/// `textLines` has a text for each of kConfirmationLines. Raises StoreError, and RangeError for a
/// dog whose class is none of the table's.
void AppendConfirmations(QByteArray& output, const QByteArray& pattern,
                         const QStringList& textLines, RunProgress& progress);
/// Types the sheets of the first five dogs. Raises as AppendConfirmations does.
void TypeConfirmations(WordProcessor& word, const QStringList& textLines, RunProgress& progress);

} // namespace lorvo
