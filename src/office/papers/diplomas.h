#pragma once
// The text on pre-printed diplomas, one to a dog.

#include <QByteArray>

namespace lorvo {

class RunProgress;
class WordProcessor;

/// Appends a filled copy of the pattern for every dog by catalogue number, until the clerk stops.
/// Raises StoreError, and RangeError for a dog whose class is none of the table's.
void AppendDiplomas(QByteArray& output, const QByteArray& pattern, RunProgress& progress);
/// Types a page for every dog by name, until the clerk stops. Raises as AppendDiplomas does.
void TypeDiplomas(WordProcessor& word, RunProgress& progress);

} // namespace lorvo
