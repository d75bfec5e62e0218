#pragma once
// The one reader of whole rows of Psi, for the store's own files.

#include "store/psi.h"

#include <string>

namespace lorvo {

/// Dogs by what stands in a statement behind the table's name; `top` such as "TOP 5 " cuts them.
std::vector<Psi> ReadDogs(const std::string& rest, const std::string& top = {});

} // namespace lorvo
