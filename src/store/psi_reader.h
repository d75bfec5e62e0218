#pragma once
// The one reader of whole rows of Psi, for the routines of psi.cpp and psi_lists.cpp.

#include "store/psi.h"
#include "store/record_set.h"

namespace lorvo {

Psi ReadPsi(const RecordSet& row);

} // namespace lorvo
