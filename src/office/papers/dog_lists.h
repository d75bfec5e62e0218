#pragma once
// The entered dogs in groups.

#include <QByteArray>

namespace lorvo {

class RunProgress;
class WordProcessor;

enum class DogGrouping { ByBreed, BySex, ByOwner, ByClass };

/// Types the groups with a line to each dog, until the clerk stops. Grouped by class there are
/// males alone. Raises StoreError, and RangeError for a dog whose class is none of the table's.
void TypeDogList(WordProcessor& word, DogGrouping grouping, RunProgress& progress);

/// Appends for each breed in use a filled copy of the group's pattern, and behind it for each of
/// its dogs one of the row's pattern that lies in the group's; until the clerk stops.
/// Raises StoreError, and PlatformError where the group's text has no row pattern.
void AppendDogList(QByteArray& output, const QByteArray& pattern, RunProgress& progress);

} // namespace lorvo
