#pragma once
// Builds the main tree from the store.

#include "app/view_preferences.h"
#include "office/tree/tree_nodes.h"

namespace lorvo {

/// What the node of the breeds outside all rings is called.
QString UnassignedRootText();

/// Rebuilds the nodes from the database, with classes and with detail as `look` says. A dog whose
/// class has no node raises Error, and so does the store; the tree then holds what was built
/// before.
void LoadTree(TreeNodes& nodes, const ViewPreferences& look = {});

/// The nodes that the stored `expandedItems` (keys, each followed by "|") bring back expanded.
/// Pieces that name no node are skipped, and class nodes are never among them.
std::vector<TreeNode*> NodesToExpand(const TreeNodes& nodes, const QString& expandedItems);

} // namespace lorvo
