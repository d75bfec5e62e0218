#pragma once
// The nodes of the main tree, without any view of them.

#include "office/tree/node_key.h"

#include <QHash>
#include <QRgb>
#include <memory>
#include <vector>

namespace lorvo {

inline constexpr QRgb kBlack = qRgb(0, 0, 0);
inline constexpr QRgb kWhite = qRgb(255, 255, 255);
inline constexpr QRgb kMaleText = qRgb(0, 0, 255);
inline constexpr QRgb kFemaleText = qRgb(255, 0, 0);
inline constexpr QRgb kHighlight = qRgb(255, 255, 0);
inline constexpr QRgb kPathText = qRgb(0, 144, 0);
inline constexpr QRgb kPathBackground = qRgb(192, 255, 192);

/// One node. Read its members freely; change it only through TreeNodes.
struct TreeNode {
    using Siblings = std::vector<std::unique_ptr<TreeNode>>;

    TreeNode* parent = nullptr; ///< null at the top level
    const Siblings* siblings = nullptr;
    Siblings children;
    QString text;
    NodeKey key;
    int row = 0; ///< position among its siblings
    QRgb colour = kBlack;
    QRgb background = kWhite;
    bool keyed = true;  ///< false for a ring that the store doesn't know yet
    bool tagged = true; ///< false for a ring added since the last reload
    bool bold = false;

    NodeKind Kind() const { return key.kind; }
    int Id() const { return key.id; }
    bool IsDog() const { return key.kind == NodeKind::Dog; }
    /// The key's text; empty for a node without a key.
    QString Key() const;
    /// "K" + ring, "C" + class number, "P" + a blank + dog; empty for the other kinds and for a
    /// node without a tag.
    QString Tag() const;
    TreeNode* FirstChild() const { return children.empty() ? nullptr : children.front().get(); }
    TreeNode* NextSibling() const;
};

// The neighbours as the numbering walk asks for them.
inline TreeNode* FirstChild(const TreeNode& node) {
    return node.FirstChild();
}
inline TreeNode* NextSibling(const TreeNode& node) {
    return node.NextSibling();
}
inline TreeNode* Parent(const TreeNode& node) {
    return node.parent;
}
inline bool IsDog(const TreeNode& node) {
    return node.IsDog();
}

/// Told before and after each change of the nodes, so that a model can follow.
class TreeObserver {
  public:
    virtual ~TreeObserver() = default;
    virtual void AboutToReset() = 0;
    virtual void Reset() = 0;
    /// A node is about to become the last child of `parent` (null: the last at the top level).
    virtual void AboutToAppend(TreeNode* parent) = 0;
    virtual void Appended() = 0;
    virtual void AboutToRemove(TreeNode* node) = 0;
    virtual void Removed() = 0;
    /// The node is about to become the last child of another parent.
    virtual void AboutToMove(TreeNode* node, TreeNode* newParent) = 0;
    virtual void Moved() = 0;
    /// Text, key, weight or colours of one node are new.
    virtual void Changed(TreeNode* node) = 0;
    /// The colours of any number of nodes are new.
    virtual void Recoloured() = 0;
};

class TreeNodes {
  public:
    TreeNodes() = default;
    TreeNodes(const TreeNodes&) = delete;
    TreeNodes& operator=(const TreeNodes&) = delete;

    /// At most one observer; null for none.
    void SetObserver(TreeObserver* observer) { observer_ = observer; }

    /// Clears the tree; what is added during its lifetime reaches the observer as one reset, also
    /// when an exception ends the rebuilding halfway.
    class Rebuilding {
      public:
        explicit Rebuilding(TreeNodes& nodes);
        ~Rebuilding();
        Rebuilding(const Rebuilding&) = delete;
        Rebuilding& operator=(const Rebuilding&) = delete;

      private:
        TreeNodes& nodes_;
    };

    // Finding. Null when there is no such node.
    TreeNode* Find(const NodeKey& key) const { return byKey_.value(key); }
    TreeNode* Find(const QString& key) const;
    /// As Find, but raises Error that names the key.
    TreeNode& Get(const QString& key) const;

    // The tree's order: each node before its children, siblings by row. Null at the ends.
    const TreeNode::Siblings& TopLevel() const { return topLevel_; }
    int Count() const { return count_; }
    TreeNode* First() const;
    TreeNode* Last() const;
    TreeNode* Next(const TreeNode* node) const;
    TreeNode* Previous(const TreeNode* node) const;
    /// Node by its position in the tree's order, from 1.
    TreeNode* At(int position) const;

    // Adding, always last among the siblings. Error when the key is taken.
    TreeNode* AddUnassignedRoot(const QString& text);
    TreeNode* AddRing(int id, const QString& text);
    TreeNode* AddBreed(TreeNode* ring, int id, const QString& text);
    TreeNode* AddClass(TreeNode* breed, int trida, const QString& text);
    TreeNode* AddDog(TreeNode* parent, int id, const QString& text, bool male);
    /// A ring before the store knows it: neither key nor tag, not bold.
    TreeNode* AddRingWithoutKey(const QString& text);
    /// Gives such a ring its key; the tag stays out.
    void GiveKey(TreeNode* ring, int id);

    /// Removes the node with all below it.
    void Remove(TreeNode* node);
    /// Makes the node the last child of `newParent`; below its own parent it stays where it is.
    void Move(TreeNode* node, TreeNode* newParent);
    void SetText(TreeNode* node, const QString& text);
    void SetBold(TreeNode* node, bool bold);

    // Colours.
    void SetBackground(TreeNode* node, QRgb colour);
    /// White behind all dogs; their text keeps its colour.
    void ClearDogBackgrounds();
    /// Black on white for every node, dogs among them.
    void ClearAllColours();
    /// Black on white for every node that isn't a dog, which takes the marks of the path away.
    void ClearPath();
    /// Marks one node as part of the path to the node shown.
    void MarkOnPath(TreeNode* node);

  private:
    TreeNode::Siblings& ChildrenOf(TreeNode* parent) {
        return parent ? parent->children : topLevel_;
    }
    TreeNode* Append(TreeNode* parent, std::unique_ptr<TreeNode> node);
    TreeNode* PutIn(TreeNode* parent, std::unique_ptr<TreeNode> node);
    std::unique_ptr<TreeNode> TakeOut(TreeNode* node);
    void Forget(const TreeNode* node);
    template<typename Visitor> void ForEach(Visitor visit) const;

    TreeNode::Siblings topLevel_;
    QHash<NodeKey, TreeNode*> byKey_;
    std::vector<TreeNode*> onPath_; ///< the nodes that bear the path's colours
    int count_ = 0;
    bool rebuilding_ = false;
    TreeObserver* observer_ = nullptr;
};

} // namespace lorvo
