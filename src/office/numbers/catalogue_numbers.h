#pragma once
// Catalogue numbers of the dogs on the main tree.

namespace lorvo {

class TreeNodes;

/// Numbers the dogs from 1 in the order of the tree as it stands: writes Cislo and, when all are
/// written, puts the numbers in front of the nodes' texts. Each dog is a write of its own; what was
/// written before a failure stays written. Raises StoreError, or RangeError past 32,767.
void GenerateCatalogueNumbers(TreeNodes& nodes);

} // namespace lorvo
