// Any bytes as an amount: what is taken for one is written and read back as the same.

#include "fuzz/fuzz_target.h"

#include "platform/values/errors.h"
#include "platform/values/money.h"

#include <cstdlib>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using lorvo::Currency;
    try {
        const auto amount =
            Currency::FromText(std::string_view(reinterpret_cast<const char*>(data), size));
        if (Currency::FromText(amount.ToPlainText(',')) != amount)
            std::abort();
        (void)(amount * amount);
    } catch (const lorvo::RangeError&) { // refused
    }
    return 0;
}
