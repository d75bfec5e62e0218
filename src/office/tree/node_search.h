#pragma once
// Searching the main tree by text.

#include "office/tree/tree_nodes.h"

namespace lorvo {

/// The next breed or dog from `position` on (from 1, in the tree's order) whose text fits the
/// pattern "*" + `text` + "*", whatever the letter case; `text` may hold wildcards itself. Sets
/// `position` behind the node found; null and `position` as it was when nothing fits. Raises Error
/// on a pattern that is none, such as a "[" that is never closed.
TreeNode* FindByText(const TreeNodes& nodes, const QString& text, int& position);

} // namespace lorvo
