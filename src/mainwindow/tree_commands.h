#pragma once
// What the clerk does on the main tree itself. Each command writes to the database at once and
// patches its node; none rebuilds the tree but ShowAll.

#include <QObject>
#include <memory>

namespace lorvo {

class MainTree;
class MainWindowServices;
class TreeEdits;
class TreeNodes;
struct DogTask;
struct TreeNode;
struct TreeSearch;

/// Answers the tree's clicks, keys, menus and drops, and the commands that the command bar shares
/// with them.
class TreeCommands : public QObject {
    Q_OBJECT
  public:
    /// Tree, window and search outlive it.
    TreeCommands(MainTree& tree, MainWindowServices& window, TreeSearch& search, QObject* parent);
    ~TreeCommands() override;

    /// Adds "Nový kruh" to the database and the tree and starts editing its text.
    void AddRing();
    /// Adds a dog to the breed of the selected node, as the command bar does: only the row with the
    /// show date is asked for.
    void AddDogToSelected();

  private:
    void ShowMenu(TreeNode* node);
    void ShowRootMenu();
    void ShowRingMenu(TreeNode* ring);
    void ShowBreedMenu(TreeNode* breed);
    void ShowDogMenu(TreeNode* dog);
    void ShowPaymentsOf(const TreeNode& dog);

    void HideEmpty();
    void ShowAll();
    void ToggleDetail();

    void RenameSelected();
    void RenameInWindow(TreeNode* ring);
    void Find();
    void FindNext();

    void AddDogToBreed(int breedID);
    void EditDog(const TreeNode* dog);
    void OpenDogWindow(const DogTask& task);

    void StoreEditedText(TreeNode* node, const QString& text);
    void ShowSelected();

    MainTree& tree_;
    TreeNodes& nodes_;
    MainWindowServices& window_;
    TreeSearch& search_;
    std::unique_ptr<TreeEdits> edits_;
};

} // namespace lorvo
