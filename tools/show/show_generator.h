#pragma once
// Fills the open database with a made-up show.

#include "show/show_size.h"

#include <cstdint>

namespace lorvo::show {

/// Goes through the program's own store, connected to a delivered database without shows and dogs.
/// The same size, seed and numbers give the same rows. Raises StoreError when the store refuses.
void GenerateShow(const ShowSize& size, std::uint64_t seed, Numbers numbers);

} // namespace lorvo::show
