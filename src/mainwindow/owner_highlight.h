#pragma once
// Yellow behind all dogs of one owner in the main tree.

namespace lorvo {

class MainTree;

/// Takes every highlight away, puts it behind the dogs of `CurrentOwner` and makes these visible.
/// A dog of a breed that the tree doesn't show is left out. The selection bar, which would cover
/// the highlight, is hidden.
void HighlightOwnersDogs(MainTree& tree);
/// White behind all dogs, and the selection bar again.
void ClearHighlight(MainTree& tree);

} // namespace lorvo
