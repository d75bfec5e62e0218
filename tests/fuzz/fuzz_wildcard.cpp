// Any bytes as a wildcard pattern and the text that it is held against, parted by a line break.

#include "fuzz/fuzz_target.h"

#include "office/tree/wildcard_pattern.h"
#include "platform/values/errors.h"

#include <QString>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString both =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::u16string pattern = both.section(u'\n', 0, 0).toStdU16String();
    const std::u16string text = both.section(u'\n', 1).toStdU16String();
    try {
        (void)lorvo::WildcardPattern(pattern).Matches(text);
    } catch (const lorvo::Error&) { // refused
    }
    return 0;
}
