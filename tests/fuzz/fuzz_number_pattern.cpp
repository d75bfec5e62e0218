// Any bytes as a number pattern and a value.

#include "fuzz/fuzz_target.h"

#include "platform/values/errors.h"
#include "platform/values/format_number.h"

#include <cstring>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::int64_t raw = 0;
    if (size < sizeof raw)
        return 0;
    std::memcpy(&raw, data, sizeof raw);
    double number = 0;
    std::memcpy(&number, data, sizeof number);
    const std::string_view pattern(reinterpret_cast<const char*>(data) + sizeof raw,
                                   size - sizeof raw);
    try {
        lorvo::FormatNumber(pattern, lorvo::Currency::FromRaw(raw), ',');
        lorvo::FormatNumber(pattern, number, ',');
    } catch (const lorvo::RangeError&) { // refused
    }
    return 0;
}
