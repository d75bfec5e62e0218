#pragma once
// What a failed file operation of the system means to a clerk.

#include <QString>

class QFileDevice;

namespace lorvo {

/// The cause in Czech, for the end of a sentence ("na disku není volné místo"). `code` is the
/// system's own number: errno's value, or Windows' last error. One that has no text of its own is
/// told with the system's words in brackets.
QString CauseOfFailure(int code);
/// The same for what the file's last operation failed on.
QString CauseOfFailure(const QFileDevice& file);
/// The same for the system's call that has just returned. A call that failed without a number is
/// told as a full disk's, which is what a short write without a word means.
QString CauseOfLastFailure();

/// Raises PlatformError: "WHAT „PATH“: CAUSE".
[[noreturn]] void FailOnFile(const QString& what, const QString& path, const QString& cause);
/// The same of a file that can't be written.
[[noreturn]] void FailToWriteFile(const QString& path, const QString& cause);

} // namespace lorvo
