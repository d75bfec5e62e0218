#pragma once
// The file as a whole.

#include <QStringList>

namespace lorvo {

/// What the engine's full check finds, in its own words; empty when the file is whole. Reads every
/// page. Raises StoreError when the store refuses.
[[nodiscard]] QStringList IntegrityFaults();

/// Writes the file anew, so that nothing of removed texts stays between its rows. A kill leaves the
/// old file or the new one. Raises StoreError when the store refuses, as on a full disk.
void WriteFileAnew();

} // namespace lorvo
