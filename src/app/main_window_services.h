#pragma once
// What other windows may ask of the main window.

#include <QString>

namespace lorvo {

class TreeNodes;
struct ViewPreferences;

class MainWindowServices {
  public:
    virtual ~MainWindowServices() = default;

    /// Key of the node selected in the tree, empty when none is.
    virtual QString SelectedNode() const = 0;
    virtual bool NodeExists(const QString& key) const = 0;
    virtual QString NodeText(const QString& key) const = 0;

    /// Selects the node and makes it visible. Raises Error when there is no such node.
    virtual void SelectNode(const QString& key) = 0;
    virtual void MakeNodeVisible(const QString& key) = 0;
    /// Adds a dog node below `parentKey`, last among its siblings. Raises Error when there is no
    /// such parent.
    virtual void AddDogNode(const QString& parentKey, int psiID, const QString& text,
                            bool male) = 0;
    virtual void SetNodeText(const QString& key, const QString& text) = 0;

    /// Rebuilds the tree from the database.
    virtual void LoadData() = 0;
    /// Shows the panel of a node, with its figures read afresh.
    virtual void ShowNodeInfo(const QString& key) = 0;
    /// The title above the panels.
    virtual void SetItemTitle(const QString& text) = 0;
    virtual QString Caption() const = 0;
    /// How the tree is to look; a change shows when it is built anew.
    virtual ViewPreferences& Look() = 0;
    /// The nodes of the tree as they stand, for the numbering's walk. A stand-in without a tree
    /// raises Error.
    virtual TreeNodes& Nodes();
};

/// The main window of the running program, or a test's stand-in.
MainWindowServices& TheMainWindow();
void SetTheMainWindow(MainWindowServices* window);

} // namespace lorvo
