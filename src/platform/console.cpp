#include "platform/console.h"

#include <cstdio>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <QString>
#include <windows.h>
#endif

namespace lorvo {

#ifdef _WIN32

void WriteToConsole(std::string_view text) {
    DWORD written = 0;
    const HANDLE redirected = GetStdHandle(STD_OUTPUT_HANDLE);
    if (redirected != nullptr && redirected != INVALID_HANDLE_VALUE) {
        WriteFile(redirected, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    } else if (AttachConsole(ATTACH_PARENT_PROCESS)) {
        const auto wide =
            QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdWString();
        WriteConsoleW(GetStdHandle(STD_OUTPUT_HANDLE), wide.data(), static_cast<DWORD>(wide.size()),
                      &written, nullptr);
    }
}

#else

void WriteToConsole(std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stdout);
}

#endif

} // namespace lorvo
