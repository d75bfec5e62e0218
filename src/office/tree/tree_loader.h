#pragma once
// Builds the main tree from the store.

#include "office/tree/tree_nodes.h"

namespace lorvo {

/// What the node of the breeds outside all rings is called.
QString UnassignedRootText();

/// Rebuilds the nodes from the database; `ShowClassesOn` decides on the class level,
/// `DogDetailInTree` on the texts of dogs outside the rings. Leaves `SpecialBreed` telling of the
/// last breed. A dog whose class has no node raises Error, and so does the store; the tree then
/// holds what was built before.
void LoadTree(TreeNodes& nodes);

/// The nodes that the stored `expandedItems` (keys, each followed by "|") bring back expanded.
/// Pieces that name no node are skipped, and class nodes are never among them.
std::vector<TreeNode*> NodesToExpand(const TreeNodes& nodes, const QString& expandedItems);

} // namespace lorvo
