#pragma once
// The copy before a command that sweeps through the whole database.

#include "office/copies/background_copy.h"

#include <functional>

namespace lorvo {

/// Copies the open database, under the wait cursor. A copy that fails doesn't hold the command up;
/// who listens is told.
void CopyBeforeSweep();

/// Who is told of a failed copy; an empty function for nobody.
void ListenForFailedCopies(std::function<void(const CopyOutcome&)> listener);

} // namespace lorvo
