// Any bytes as an ini file: what is set reads back, and every other line stays as it is.

#include "fuzz/fuzz_target.h"

#include "platform/ini_text.h"

#include <cstdlib>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    auto ini = lorvo::IniText::FromBytes(bytes);
    if (!ini)
        return 0;
    if (ini->ToBytes() != bytes)
        std::abort();
    const QString section = QStringLiteral("Main");
    const QString key = QStringLiteral("Ignorovat tridy");
    ini->SetValue(section, key, QStringLiteral("1"));
    const auto again = lorvo::IniText::FromBytes(ini->ToBytes());
    if (!again || again->Value(section, key) != u"1")
        std::abort();
    return 0;
}
