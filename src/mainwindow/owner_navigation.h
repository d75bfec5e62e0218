#pragma once
// The ways among the dogs of one owner: neighbours by name, and the menu of all his dogs.

#include <QString>

namespace lorvo {

class MainTree;
class NodePanels;

class OwnerNavigation {
  public:
    OwnerNavigation(MainTree& tree, NodePanels& panels);

    /// Selects and shows the dog with that key and gives the tree the keyboard; nothing when the
    /// tree has no such node.
    void GoToDog(const QString& key);

    /// Selects the dog with that key, without showing it; nothing when the tree has no such node.
    void SelectDog(const QString& key);

    /// The menu of all dogs of the owner of `CurrentDogID`, with that dog marked; carries out what
    /// is chosen and shows the selected node. Raises StoreError when that dog is gone.
    void ShowDogMenu();

  private:
    void CarryOut(int number);

    MainTree& tree_;
    NodePanels& panels_;
};

} // namespace lorvo
