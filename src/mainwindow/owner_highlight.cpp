#include "mainwindow/owner_highlight.h"

#include "app/module_values.h"
#include "mainwindow/main_tree.h"
#include "store/psi.h"

namespace lorvo {

void HighlightOwnersDogs(MainTree& tree) {
    TreeNodes& nodes = tree.Nodes();
    nodes.ClearDogBackgrounds();
    for (const Psi& dog : DogsOfOwner(Module().CurrentOwner, DogOrder::ByID)) {
        TreeNode* node = nodes.Find(NodeKey::Dog(dog.ID));
        if (!node)
            continue;
        tree.EnsureVisible(node);
        nodes.SetBackground(node, kHighlight);
    }
    tree.SetSelectionBarShown(false);
}

void ClearHighlight(MainTree& tree) {
    tree.Nodes().ClearDogBackgrounds();
    tree.SetSelectionBarShown(true);
}

} // namespace lorvo
