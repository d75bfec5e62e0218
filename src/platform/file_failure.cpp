#include "platform/file_failure.h"

#include "platform/values/errors.h"

#include <QDir>
#include <QFileDevice>
#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#endif

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

struct Cause {
    int code;
    const char16_t* text;
};

constexpr char16_t kFullDisk[] = u"na disku není volné místo";
constexpr char16_t kNoRight[] = u"chybí právo zápisu do souboru nebo složky";
constexpr char16_t kReadOnlyDisk[] = u"disk je jen pro čtení";
constexpr char16_t kMissing[] = u"soubor nebo jeho složka neexistuje";
constexpr char16_t kNoFolder[] = u"část cesty není složka";
constexpr char16_t kExists[] = u"tento název má jiný soubor";
constexpr char16_t kTooLarge[] = u"soubor je větší, než disk nebo systém dovoluje";
constexpr char16_t kTooManyFiles[] = u"je otevřeno příliš mnoho souborů";
constexpr char16_t kLongName[] = u"název je příliš dlouhý";
constexpr char16_t kInUse[] = u"soubor právě používá jiný program";
constexpr char16_t kFaultyDisk[] = u"disk nelze číst ani zapisovat, může být vadný nebo odpojený";
constexpr char16_t kQuota[] = u"je vyčerpán přidělený prostor na disku";

#ifdef Q_OS_WIN
constexpr int kDiskQuotaExceeded = 1295; // a number that MinGW's headers don't name

constexpr Cause kCauses[] = {
    {ERROR_DISK_FULL, kFullDisk},
    {ERROR_HANDLE_DISK_FULL, kFullDisk},
    {ERROR_ACCESS_DENIED, kNoRight},
    {ERROR_WRITE_PROTECT, kReadOnlyDisk},
    {ERROR_FILE_NOT_FOUND, kMissing},
    {ERROR_PATH_NOT_FOUND, kMissing},
    {ERROR_INVALID_DRIVE, kMissing},
    {ERROR_DIRECTORY, kNoFolder},
    {ERROR_FILE_EXISTS, kExists},
    {ERROR_ALREADY_EXISTS, kExists},
    {ERROR_FILE_TOO_LARGE, kTooLarge},
    {ERROR_TOO_MANY_OPEN_FILES, kTooManyFiles},
    {ERROR_FILENAME_EXCED_RANGE, kLongName},
    {ERROR_SHARING_VIOLATION, kInUse},
    {ERROR_LOCK_VIOLATION, kInUse},
    {ERROR_USER_MAPPED_FILE, kInUse},
    {ERROR_NOT_READY, kFaultyDisk},
    {ERROR_CRC, kFaultyDisk},
    {ERROR_READ_FAULT, kFaultyDisk},
    {ERROR_WRITE_FAULT, kFaultyDisk},
    {ERROR_IO_DEVICE, kFaultyDisk},
    {kDiskQuotaExceeded, kQuota},
};

int LastCode() {
    return static_cast<int>(GetLastError());
}
#else
constexpr Cause kCauses[] = {
    {ENOSPC, kFullDisk},
    {EACCES, kNoRight},
    {EPERM, kNoRight},
    {EROFS, kReadOnlyDisk},
    {ENOENT, kMissing},
    {ENOTDIR, kNoFolder},
    {EISDIR, u"tento název má složka"},
    {EEXIST, kExists},
    {EFBIG, kTooLarge},
    {EMFILE, kTooManyFiles},
    {ENFILE, kTooManyFiles},
    {ENAMETOOLONG, kLongName},
    {EBUSY, kInUse},
    {ETXTBSY, kInUse},
    {EIO, kFaultyDisk},
    {EDQUOT, kQuota},
};

int LastCode() {
    return errno;
}
#endif

QString Refused(const QString& systemText) {
    return u"systém operaci odmítl (%1)"_s.arg(systemText);
}

} // namespace

QString CauseOfFailure(int code) {
    for (const Cause& cause : kCauses) {
        if (cause.code == code)
            return QString::fromUtf16(cause.text);
    }
    return Refused(qt_error_string(code));
}

QString CauseOfFailure(const QFileDevice& file) {
    if (file.error() == QFileDevice::NoError)
        return CauseOfLastFailure();
    // A file keeps the system's text and not its number.
    for (const Cause& cause : kCauses) {
        if (qt_error_string(cause.code) == file.errorString())
            return QString::fromUtf16(cause.text);
    }
    return Refused(file.errorString());
}

QString CauseOfLastFailure() {
    const int code = LastCode();
    return code != 0 ? CauseOfFailure(code) : QString::fromUtf16(kFullDisk);
}

void FailOnFile(const QString& what, const QString& path, const QString& cause) {
    throw PlatformError(
        u"%1 „%2“: %3"_s.arg(what, QDir::toNativeSeparators(path), cause).toStdString());
}

void FailToWriteFile(const QString& path, const QString& cause) {
    FailOnFile(u"Soubor nelze zapsat"_s, path, cause);
}

} // namespace lorvo
