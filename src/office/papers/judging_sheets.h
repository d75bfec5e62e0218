#pragma once
// The sheets on which the judges write, one to a dog.

#include <QByteArray>

class QString;

namespace lorvo {

class RunProgress;
class WordProcessor;

/// Appends a filled copy of the pattern for every dog by catalogue number, until the clerk stops.
/// `title` is the show's. Raises StoreError, and RangeError for a dog whose class is none of the
/// table's.
void AppendJudgingSheets(QByteArray& output, const QByteArray& pattern, const QString& title,
                         RunProgress& progress);
/// Types a page for every dog by catalogue number, until the clerk stops; the sheet in hand is
/// finished. Raises as AppendJudgingSheets does.
void TypeJudgingSheets(WordProcessor& word, const QString& title, RunProgress& progress);

} // namespace lorvo
