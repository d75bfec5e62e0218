#include "platform/system_reason.h"

#include <QFileDevice>
#include <algorithm>
#include <iterator>
#include <system_error>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#endif

namespace lorvo {

namespace {

struct Cause {
    std::errc code;
    QStringView text;
};

constexpr Cause kCauses[] = {
    {std::errc::no_space_on_device, u"na disku není místo"},
    {std::errc::permission_denied, u"chybí oprávnění"},
    {std::errc::operation_not_permitted, u"chybí oprávnění"},
    {std::errc::read_only_file_system, u"disk je jen pro čtení"},
    {std::errc::file_too_large, u"soubor by byl větší, než systém dovoluje"},
    {std::errc::io_error, u"disk hlásí chybu"},
    {std::errc::no_such_file_or_directory, u"soubor nebo složka neexistuje"},
    {std::errc::not_a_directory, u"na místě složky je soubor"},
    {std::errc::is_a_directory, u"na místě souboru je složka"},
    {std::errc::file_exists, u"soubor už existuje"},
    {std::errc::filename_too_long, u"název souboru je příliš dlouhý"},
    {std::errc::device_or_resource_busy, u"soubor používá jiný program"},
    {std::errc::text_file_busy, u"soubor používá jiný program"},
    {std::errc::resource_unavailable_try_again, u"soubor používá jiný program"},
    {std::errc::no_lock_available, u"soubor nelze zamknout"},
    {std::errc::too_many_files_open, u"je otevřeno příliš mnoho souborů"},
    {std::errc::not_enough_memory, u"nedostatek paměti"},
    {std::errc::no_such_device, u"disk není připojen"},
    {std::errc::no_such_device_or_address, u"disk není připojen"},
};

#ifdef Q_OS_WIN
int LastCode() {
    return static_cast<int>(GetLastError());
}
/// What the system knows and the general list of causes doesn't.
constexpr int kFirstCode = 1;
constexpr int kLastCode = 1500;
#else
int LastCode() {
    return errno;
}
constexpr int kFirstCode = 1;
constexpr int kLastCode = 133;
#endif

QStringView CauseOf(int code) {
    const std::error_code error(code, std::system_category());
#ifdef Q_OS_WIN
    if (code == ERROR_SHARING_VIOLATION || code == ERROR_LOCK_VIOLATION)
        return u"soubor používá jiný program";
    if (code == ERROR_DISK_FULL || code == ERROR_HANDLE_DISK_FULL)
        return u"na disku není místo";
#elif defined(EDQUOT)
    if (code == EDQUOT)
        return u"na disku není místo";
#endif
    const auto* cause = std::find_if(std::begin(kCauses), std::end(kCauses),
                                     [&](const Cause& known) { return error == known.code; });
    return cause == std::end(kCauses) ? QStringView(u"systém hlásí chybu") : cause->text;
}

} // namespace

QString SystemReason(int code) {
    return u"%1 (%2)"_qs.arg(CauseOf(code), qt_error_string(code));
}

QString LastSystemReason() {
    return SystemReason(LastCode());
}

QString FileReason(const QFileDevice& file) {
    // A file keeps the system's text and not its number.
    const QString text = file.errorString();
    for (int code = kFirstCode; code <= kLastCode; ++code)
        if (qt_error_string(code) == text)
            return SystemReason(code);
    return u"soubor nelze použít (%1)"_qs.arg(text);
}

} // namespace lorvo
