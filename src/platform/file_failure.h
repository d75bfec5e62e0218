#pragma once
// What a failed file operation of the system means to a clerk.

#include <QString>

class QFileDevice;

namespace lorvo {

/// The cause in Czech, for the end of a sentence ("na disku není volné místo"). `error` is errno's
/// value; one that has no text of its own is told with the system's words in brackets.
QString CauseOfFailure(int error);
/// The same for what the file's last operation failed on.
QString CauseOfFailure(const QFileDevice& file);
/// The same for the system's own number, which isn't errno's everywhere.
QString CauseOfSystemFailure(int code);
/// The same for the system's call that has just returned.
QString CauseOfLastFailure();

/// Raises PlatformError: "WHAT „PATH“: CAUSE".
[[noreturn]] void FailOnFile(const QString& what, const QString& path, int error);
/// The same of a file that can't be written.
[[noreturn]] void FailToWriteFile(const QString& path, int error);

} // namespace lorvo
