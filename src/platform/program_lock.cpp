#include "platform/program_lock.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace lorvo {

using namespace Qt::StringLiterals;

#ifdef Q_OS_WIN

// A folder can't be locked here; a byte far behind the database's end can.
ProgramLock::ProgramLock(const QString& programFolder) {
    constexpr DWORD kFarAway = 0x7fffffff;
    const QString path = QDir::toNativeSeparators(programFolder + u"/data.mdb"_s);
    file_ = CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_READ,
                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file_ == INVALID_HANDLE_VALUE) {
        file_ = nullptr;
        return;
    }
    OVERLAPPED place = {};
    place.OffsetHigh = kFarAway;
    if (!LockFileEx(file_, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place)) {
        const DWORD code = GetLastError();
        isMine_ = code != ERROR_LOCK_VIOLATION && code != ERROR_IO_PENDING;
    }
}

ProgramLock::~ProgramLock() {
    if (file_)
        CloseHandle(file_);
}

#else

// The folder and not the file, which may be put in another one's place, and in which the engine's
// own locks would go when the file is closed.
ProgramLock::ProgramLock(const QString& programFolder)
    : folder_(
          open(QFile::encodeName(programFolder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (folder_ >= 0 && flock(folder_, LOCK_EX | LOCK_NB) != 0)
        isMine_ = errno != EWOULDBLOCK;
}

ProgramLock::~ProgramLock() {
    if (folder_ >= 0)
        close(folder_);
}

#endif

} // namespace lorvo
