#pragma once
// A show of the usual size, with texts as long as they come.

#include "support/temp_database.h"

namespace lorvo::test {

/// A dog whose texts and whose owner's are long, in the special breed.
inline constexpr int kWordyDogID = 1;
inline constexpr int kWordyOwnerID = 1;

/// Puts a club show into the database in place of what it holds. The same in every run.
void PutGeneratedShow(TempDatabase& database);

} // namespace lorvo::test
