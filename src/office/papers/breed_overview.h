#pragma once
// Breeds and dogs counted by FCI group, for the show's statistics.

class QString;

namespace lorvo {

class WordProcessor;

/// Types the counts of breeds in use and of their dogs. Raises StoreError, and RangeError where a
/// count outgrows 16 bits.
void TypeBreedOverview(WordProcessor& word, const QString& title);

} // namespace lorvo
