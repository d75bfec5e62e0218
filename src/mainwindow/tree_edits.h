#pragma once
// Edits of single records behind the nodes of the main tree: each asks where it must, writes, and
// patches the node.

#include "platform/message_boxes.h"

namespace lorvo {

class MainWindowServices;
class TreeNodes;
struct TreeNode;

/// Every member raises StoreError when the store refuses; what was written before stays written.
class TreeEdits {
  public:
    /// Nodes and window outlive it; the window's caption stands over the message boxes.
    TreeEdits(TreeNodes& nodes, MainWindowServices& window) : nodes_(nodes), window_(window) {}

    /// Removes a ring without breeds, a breed without dogs, or a dog, when the clerk agrees; shows
    /// a message when it isn't empty. Returns whether the node is gone. Class nodes stay.
    bool Remove(TreeNode* node);
    /// Stores a new name of a ring or a breed and shows it on the node.
    void Rename(TreeNode* node, const QString& name);
    /// Drops a breed on a ring or the unassigned root, or a dog on a breed; nothing else moves.
    void Drop(TreeNode* dragged, TreeNode* target);

    // On the dog last shown, `CurrentDogID`.
    void SetFirstClosing(bool first);
    /// Takes the mark from all dogs of `CurrentOwner` first.
    void MakeFirstDog();

    /// Whether a dog may be added from a breed's menu: a main currency, no catalogue number on the
    /// first dog, a show date. Adds the main show where there is none. Shows why not.
    [[nodiscard]] bool MayAddDog();
    /// The lighter test of the command bar: a row with the show date, whatever it holds.
    [[nodiscard]] bool HasShowDateRow();
    void Exclaim(const QString& text);

  private:
    [[nodiscard]] bool RemoveRing(TreeNode* ring);
    bool RemoveBreed(TreeNode* breed);
    [[nodiscard]] bool RemoveDog(TreeNode* dog);
    bool Confirm(const QString& question);
    void Stop(const QString& text);
    MessageAnswer Show(const QString& text, MessageIcon icon,
                       MessageButtons buttons = MessageButtons::Ok);

    TreeNodes& nodes_;
    MainWindowServices& window_;
};

} // namespace lorvo
