#pragma once
// Whether a file holds a show, before anything works on it.

#include <QString>

namespace lorvo {

/// Raises StoreError, which names the file and the reason, or the engine's failure where something
/// speaks against working on the file; touches neither it nor a journal beside it.
void RequireShow(const QString& path);

} // namespace lorvo
