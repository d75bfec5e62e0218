// Any bytes as an ini file: what is set reads back, and every other line stays as it is.

#include "fuzz/fuzz_target.h"

#include "platform/ini_text.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    auto ini = lorvo::IniText::FromBytes(bytes);
    if (!ini)
        return 0;
    if (ini->ToBytes() != bytes)
        std::abort();
    const QString section = u"Main"_s;
    const QString key = u"Ignorovat tridy"_s;
    ini->SetValue(section, key, u"1"_s);
    const auto again = lorvo::IniText::FromBytes(ini->ToBytes());
    if (!again || again->Value(section, key) != u"1")
        std::abort();
    return 0;
}
