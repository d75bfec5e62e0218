#pragma once
// The breeds and their subgroups with columns and check boxes, as the register and the wizard show
// them.

#include <QAbstractItemModel>
#include <QHash>
#include <array>
#include <memory>
#include <vector>

namespace lorvo {

struct Plemena;

enum BreedCell {
    kBreedName,
    kBreedRing,
    kBreedFci,
    kBreedDogs,
    kBreedUsed,
    kBreedOwn,
    kBreedCells
};

struct BreedNode {
    int ID = 0;
    BreedNode* parent = nullptr; ///< null for a breed of its own
    std::vector<std::unique_ptr<BreedNode>> children;
    std::array<QString, kBreedCells> cells;
    bool checked = false;
    bool inUse = false; ///< painted with the background of breeds in use
    bool blue = false;  ///< the user's own
    int row = 0;
};

class BreedTreeModel : public QAbstractItemModel {
    Q_OBJECT
  public:
    /// The columns shown, each a cell with its heading.
    struct Column {
        BreedCell cell;
        QString heading;
    };
    BreedTreeModel(std::vector<Column> columns, QObject* parent);

    /// Replaces all nodes. A subgroup whose breed isn't among `top` is left out.
    void SetNodes(std::vector<std::unique_ptr<BreedNode>> top);
    BreedNode* AddChild(BreedNode& parent, std::unique_ptr<BreedNode> child);
    void Remove(BreedNode& node);

    BreedNode* Find(int ID) const { return byID_.value(ID); }
    BreedNode* NodeAt(const QModelIndex& index) const;
    QModelIndex IndexOf(const BreedNode& node, int column = 0) const;
    /// All nodes in the tree's order, collapsed or not.
    std::vector<BreedNode*> InOrder() const;

    void SetCell(BreedNode& node, BreedCell cell, const QString& text);
    /// Without Ticked.
    void SetChecked(BreedNode& node, bool checked);
    void SetInUse(BreedNode& node, bool inUse);
    void SetEditable(bool editable) { editable_ = editable; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  Q_SIGNALS:
    /// The clerk ticked or unticked a node; its state has already changed.
    void Ticked(int ID);

  private:
    void Changed(const BreedNode& node);

    std::vector<Column> columns_;
    std::vector<std::unique_ptr<BreedNode>> top_;
    QHash<int, BreedNode*> byID_;
    bool editable_ = false;
};

/// A node with the texts that a breed's row gives alone: name with the original one in brackets and
/// FCI group, blue when it is the user's own.
std::unique_ptr<BreedNode> MakeBreedNode(const Plemena& breed);
/// "Název (Původní název)" of a breed, both trimmed.
QString BreedTitle(const QString& nazev, const QString& nazevOrig);
/// The FCI group as a cell shows it.
QString FciText(int fci);
/// Hangs the subgroups under their breeds.
std::vector<std::unique_ptr<BreedNode>>
JoinSubgroups(std::vector<std::unique_ptr<BreedNode>> top,
              std::vector<std::pair<int, std::unique_ptr<BreedNode>>> subgroups);

} // namespace lorvo
