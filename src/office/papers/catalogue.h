#pragma once
// The text of the show's catalogue.

namespace lorvo {

class WordProcessor;

/// Types the catalogue: rings, in each its breeds in use, in each its dogs by sex, class and name,
/// on a landscape page of two columns. `withAwards` adds what each dog won. The rows are read as of
/// one moment. Raises StoreError, and RangeError for a dog whose class is none of the table's.
void TypeCatalogue(WordProcessor& word, bool withAwards);

} // namespace lorvo
