#pragma once
// What a failed file operation of the system means to a clerk.

#include <QString>

namespace lorvo {

/// The cause in Czech, for the end of a sentence ("na disku není volné místo"). `error` is errno's
/// value; one that has no text of its own is told with the system's words in brackets.
QString CauseOfFailure(int error);

/// Raises PlatformError: "WHAT „PATH“: CAUSE".
[[noreturn]] void FailOnFile(const QString& what, const QString& path, int error);
/// The same of a file that can't be written.
[[noreturn]] void FailToWriteFile(const QString& path, int error);

} // namespace lorvo
