#pragma once
// Looks through the whole database and says in words what isn't as it should be.

#include <QStringList>

namespace lorvo {

struct ShowCheck {
    QStringList faults;  ///< sentences; empty when all is well
    QStringList figures; ///< what was looked at, in sentences
    bool IsWell() const { return faults.isEmpty(); }
};

/// The file itself, references that point nowhere, and the sums of the lists against the payments.
/// Writes nothing. Raises StoreError when the store refuses.
ShowCheck CheckShow();

} // namespace lorvo
