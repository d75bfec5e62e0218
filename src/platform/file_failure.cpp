#include "platform/file_failure.h"

#include "platform/values/errors.h"

#include <QDir>
#include <QFileDevice>
#include <cerrno>
#include <system_error>
#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

struct Cause {
    int error;
    const char16_t* text;
};

constexpr Cause kCauses[] = {
    {ENOSPC, u"na disku není volné místo"},
    {EACCES, u"chybí právo zápisu do souboru nebo složky"},
    {EPERM, u"chybí právo zápisu do souboru nebo složky"},
    {EROFS, u"disk je jen pro čtení"},
    {ENOENT, u"soubor nebo jeho složka neexistuje"},
    {ENOTDIR, u"část cesty není složka"},
    {EISDIR, u"tento název má složka"},
    {EEXIST, u"tento název má jiný soubor"},
    {EFBIG, u"soubor je větší, než disk nebo systém dovoluje"},
    {EMFILE, u"je otevřeno příliš mnoho souborů"},
    {ENFILE, u"je otevřeno příliš mnoho souborů"},
    {ENAMETOOLONG, u"název je příliš dlouhý"},
    {EBUSY, u"soubor právě používá jiný program"},
    {ETXTBSY, u"soubor právě používá jiný program"},
    {EIO, u"disk nelze číst ani zapisovat, může být vadný nebo odpojený"},
#ifdef EDQUOT
    {EDQUOT, u"je vyčerpán přidělený prostor na disku"},
#endif
};

} // namespace

QString CauseOfFailure(int error) {
    for (const Cause& cause : kCauses) {
        if (cause.error == error)
            return QString::fromUtf16(cause.text);
    }
    return u"systém operaci odmítl (%1)"_s.arg(
        QString::fromLocal8Bit(std::generic_category().message(error).c_str()));
}

QString CauseOfFailure(const QFileDevice& file) {
    // A file keeps the system's text and not its number.
    for (const Cause& cause : kCauses) {
        if (qt_error_string(cause.error) == file.errorString())
            return QString::fromUtf16(cause.text);
    }
    return u"systém operaci odmítl (%1)"_s.arg(file.errorString());
}

QString CauseOfSystemFailure(int code) {
    const auto condition = std::system_category().default_error_condition(code);
    return CauseOfFailure(condition.category() == std::generic_category() ? condition.value()
                                                                          : code);
}

QString CauseOfLastFailure() {
#ifdef Q_OS_WIN
    return CauseOfSystemFailure(static_cast<int>(GetLastError()));
#else
    return CauseOfFailure(errno);
#endif
}

void FailOnFile(const QString& what, const QString& path, int error) {
    throw PlatformError(
        u"%1 „%2“: %3"_s.arg(what, QDir::toNativeSeparators(path), CauseOfFailure(error))
            .toStdString());
}

void FailToWriteFile(const QString& path, int error) {
    FailOnFile(u"Soubor nelze zapsat"_s, path, error);
}

} // namespace lorvo
