#pragma once
// How large a made-up show is.

#include <optional>
#include <string_view>

namespace lorvo::show {

struct ShowSize {
    std::string_view name;
    int dogs;
    int owners;
    int rings;
    int breeds;    ///< breeds of the official list that are in use
    int subgroups; ///< breeds of the user's own below them
    int payments;
};

/// "club", "national" or "world".
std::optional<ShowSize> SizeNamed(std::string_view name);

/// Which dogs have a catalogue number.
enum class Numbers { None, Some, All };
std::optional<Numbers> NumbersNamed(std::string_view name);

} // namespace lorvo::show
