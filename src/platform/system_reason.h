#pragma once
// What the system says about a failed call, in Czech.

#include <QString>

class QFileDevice;

namespace lorvo {

/// The cause behind the system's error number (errno, GetLastError), with the system's own text in
/// brackets: "na disku není místo (No space left on device)". Without a full stop.
QString SystemReason(int code);

/// The same for the failed call that has just returned.
QString LastSystemReason();

/// The same for what a file's last operation failed on.
QString FileReason(const QFileDevice& file);

} // namespace lorvo
