#pragma once
// How much text the store takes.

namespace lorvo {

/// Longest text that a text field takes, in characters.
inline constexpr int kLongestText = 255;

} // namespace lorvo
