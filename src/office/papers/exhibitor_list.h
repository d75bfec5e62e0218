#pragma once
// The exhibitors with the catalogue numbers of their dogs.

#include <QByteArray>

namespace lorvo {

class RunProgress;
class WordProcessor;

/// Appends a filled copy of the pattern for every owner by name, until the clerk stops. Raises
/// StoreError.
void AppendExhibitors(QByteArray& output, const QByteArray& pattern, RunProgress& progress);
/// Types a line to every owner by name. Raises StoreError.
void TypeExhibitors(WordProcessor& word);

} // namespace lorvo
