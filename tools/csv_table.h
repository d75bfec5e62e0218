#pragma once
// Tables in comma-separated text.

#include <string>
#include <string_view>
#include <vector>

namespace lorvo {

/// The rows of a table as RFC 4180 writes it: a field may stand in double quotes, in which it can
/// hold commas, line ends and doubled quotes. `text` is UTF-8; lines end with LF or CRLF. Raises
/// std::runtime_error, naming the line, on a quote that isn't closed.
std::vector<std::vector<std::string>> ParseCsv(std::string_view text);

} // namespace lorvo
