// Any bytes as a date: what is taken for one is written and read back as the same.

#include "fuzz/fuzz_target.h"

#include "platform/values/date_value.h"

#include <cstdlib>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto date =
        lorvo::DateValue::FromIso(std::string_view(reinterpret_cast<const char*>(data), size));
    if (date && lorvo::DateValue::FromIso(date->ToIso()) != date)
        std::abort();
    return 0;
}
