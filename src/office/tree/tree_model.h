#pragma once
// The main tree as an item model.

#include "office/tree/tree_nodes.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <QUuid>
#include <array>

namespace lorvo {

/// Roles: text, what is spoken of it, colours, bold, picture; Qt::UserRole the key, Qt::UserRole +
/// 1 the tag. Breeds and dogs can be dragged, their key being the drag's text. Only drags of this
/// model's own nodes can be dropped.
class TreeModel : public QAbstractItemModel, private TreeObserver {
    Q_OBJECT
  public:
    static constexpr int kKeyRole = Qt::UserRole;
    static constexpr int kTagRole = Qt::UserRole + 1;
    /// Pictures by position minus 1: ring, breed, class, dog, unassigned root.
    using Icons = std::array<QIcon, 5>;

    /// Follows the nodes as their observer for its lifetime.
    explicit TreeModel(TreeNodes& nodes, QObject* parent = nullptr);
    ~TreeModel() override;

    void SetIcons(const Icons& icons);
    QIcon IconOf(const TreeNode& node) const;

    /// Null for the invalid index.
    static TreeNode* NodeAt(const QModelIndex& index);
    /// The invalid index for null.
    QModelIndex IndexOf(const TreeNode* node) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// An edited text is announced by LabelEdited; the node changes only when its receiver says so.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    /// Whether a drag of this model's nodes carries the data.
    bool IsOwn(const QMimeData& data) const;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

  Q_SIGNALS:
    void LabelEdited(lorvo::TreeNode* node, const QString& text);

  private:
    void AboutToReset() override;
    void Reset() override;
    void AboutToAppend(TreeNode* parent) override;
    void Appended() override;
    void AboutToRemove(TreeNode* node) override;
    void Removed() override;
    void AboutToMove(TreeNode* node, TreeNode* newParent) override;
    void Moved() override;
    void Changed(TreeNode* node) override;
    void Recoloured() override;

    const TreeNode::Siblings& ChildrenOf(const QModelIndex& parent) const;

    TreeNodes& nodes_;
    Icons icons_;
    /// What tells this model's drags from text of other windows and of another running program.
    const QByteArray dragMark_ = QUuid::createUuid().toByteArray();
};

} // namespace lorvo
