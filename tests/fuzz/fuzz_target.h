#pragma once
// What a fuzzer calls with any bytes. It must come back, whatever they are.

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
