#pragma once
// The console that the program was started from, where there is one.

#include <string_view>

namespace lorvo {

/// Writes a text in UTF-8: to where the output is redirected, else to the console of the shell. On
/// Windows a program with windows isn't given one and asks for that of its parent.
void WriteToConsole(std::string_view text);

} // namespace lorvo
