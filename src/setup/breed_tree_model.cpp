#include "setup/breed_tree_model.h"

#include "office/texts/dog_texts.h"
#include "platform/failure_guard.h"
#include "store/plemena.h"

#include <QColor>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QColor kInUseBackground(224, 255, 255);
const QColor kUnusedBackground(255, 255, 255);
const QColor kOwnText(0, 0, 255);
const QColor kBaseText(0, 0, 0);

void Number(std::vector<std::unique_ptr<BreedNode>>& siblings, std::size_t from = 0) {
    for (std::size_t row = from; row < siblings.size(); ++row)
        siblings[row]->row = static_cast<int>(row);
}

} // namespace

BreedTreeModel::BreedTreeModel(std::vector<Column> columns, QObject* parent)
    : QAbstractItemModel(parent), columns_(std::move(columns)) {}

void BreedTreeModel::SetNodes(std::vector<std::unique_ptr<BreedNode>> top) {
    beginResetModel();
    top_ = std::move(top);
    Number(top_);
    byID_.clear();
    for (const auto& breed : top_) {
        byID_.insert(breed->ID, breed.get());
        Number(breed->children);
        for (const auto& subgroup : breed->children)
            byID_.insert(subgroup->ID, subgroup.get());
    }
    endResetModel();
}

BreedNode* BreedTreeModel::AddChild(BreedNode& parent, std::unique_ptr<BreedNode> child) {
    const int row = static_cast<int>(parent.children.size());
    beginInsertRows(IndexOf(parent), row, row);
    BreedNode* added = child.get();
    added->parent = &parent;
    added->row = row;
    byID_.insert(added->ID, added);
    parent.children.push_back(std::move(child));
    endInsertRows();
    return added;
}

void BreedTreeModel::Remove(BreedNode& node) {
    BreedNode* parent = node.parent;
    const int row = node.row;
    beginRemoveRows(parent ? IndexOf(*parent) : QModelIndex(), row, row);
    byID_.remove(node.ID);
    for (const auto& child : node.children)
        byID_.remove(child->ID);
    auto& siblings = parent ? parent->children : top_;
    siblings.erase(siblings.begin() + row);
    Number(siblings, static_cast<std::size_t>(row));
    endRemoveRows();
}

BreedNode* BreedTreeModel::NodeAt(const QModelIndex& index) const {
    return static_cast<BreedNode*>(index.internalPointer());
}

QModelIndex BreedTreeModel::IndexOf(const BreedNode& node, int column) const {
    return createIndex(node.row, column, &node);
}

std::vector<BreedNode*> BreedTreeModel::InOrder() const {
    std::vector<BreedNode*> nodes;
    for (const auto& breed : top_) {
        nodes.push_back(breed.get());
        for (const auto& subgroup : breed->children)
            nodes.push_back(subgroup.get());
    }
    return nodes;
}

void BreedTreeModel::Changed(const BreedNode& node) {
    Q_EMIT dataChanged(IndexOf(node), IndexOf(node, columnCount() - 1));
}

void BreedTreeModel::SetCell(BreedNode& node, BreedCell cell, const QString& text) {
    node.cells[cell] = text;
    Changed(node);
}

void BreedTreeModel::SetChecked(BreedNode& node, bool checked) {
    node.checked = checked;
    Changed(node);
}

void BreedTreeModel::SetInUse(BreedNode& node, bool inUse) {
    node.inUse = inUse;
    Changed(node);
}

QModelIndex BreedTreeModel::index(int row, int column, const QModelIndex& parent) const {
    const auto& siblings = parent.isValid() ? NodeAt(parent)->children : top_;
    if (row < 0 || row >= static_cast<int>(siblings.size()) || column < 0 ||
        column >= columnCount())
        return {};
    return createIndex(row, column, siblings[static_cast<std::size_t>(row)].get());
}

QModelIndex BreedTreeModel::parent(const QModelIndex& index) const {
    const BreedNode* node = index.isValid() ? NodeAt(index) : nullptr;
    return node && node->parent ? IndexOf(*node->parent) : QModelIndex();
}

int BreedTreeModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid())
        return static_cast<int>(top_.size());
    return parent.column() == 0 ? static_cast<int>(NodeAt(parent)->children.size()) : 0;
}

int BreedTreeModel::columnCount(const QModelIndex&) const {
    return static_cast<int>(columns_.size());
}

QVariant BreedTreeModel::data(const QModelIndex& index, int role) const {
    const BreedNode& node = *NodeAt(index);
    const bool first = index.column() == 0;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return node.cells[columns_[static_cast<std::size_t>(index.column())].cell];
    case Qt::AccessibleTextRole: // the colours of the first column say what no other one may
        return data(index, Qt::DisplayRole).toString() +
               (first && node.blue ? u", vlastní"_s : QString());
    case Qt::CheckStateRole:
        return first ? QVariant(node.checked ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::ForegroundRole:
        // Both grounds are light in every palette, so the text must be dark.
        return node.blue ? kOwnText : kBaseText;
    case Qt::BackgroundRole:
        return node.inUse ? kInUseBackground : kUnusedBackground;
    case Qt::UserRole:
        return first ? QVariant(u"C"_s + QString::number(node.ID)) : QVariant();
    default:
        return {};
    }
}

QVariant BreedTreeModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= columnCount())
        return {};
    return columns_[static_cast<std::size_t>(section)].heading;
}

Qt::ItemFlags BreedTreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == 0)
        flags |= Qt::ItemIsUserCheckable;
    flags.setFlag(Qt::ItemIsEditable, editable_ && index.column() == 0);
    return flags;
}

bool BreedTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    return GuardedAnswer(false, [&]() -> bool {
        if (role != Qt::CheckStateRole || index.column() != 0)
            return false;
        BreedNode& node = *NodeAt(index);
        SetChecked(node, value.toInt() == Qt::Checked);
        Q_EMIT Ticked(node.ID);
        return true;
    });
}

QString BreedTitle(const QString& nazev, const QString& nazevOrig) {
    return nazev.trimmed() + u" ("_s + nazevOrig.trimmed() + u')';
}

QString FciText(int fci) {
    return fci == 0 ? UnassignedText() : QString::number(fci);
}

std::unique_ptr<BreedNode> MakeBreedNode(const Plemena& breed) {
    auto node = std::make_unique<BreedNode>();
    node->ID = breed.ID;
    node->cells[kBreedName] = BreedTitle(breed.Nazev, breed.NazevOrig);
    node->cells[kBreedFci] = FciText(breed.FCI);
    node->blue = breed.Vlastni;
    return node;
}

std::vector<std::unique_ptr<BreedNode>>
JoinSubgroups(std::vector<std::unique_ptr<BreedNode>> top,
              std::vector<std::pair<int, std::unique_ptr<BreedNode>>> subgroups) {
    QHash<int, BreedNode*> byID;
    for (const auto& breed : top)
        byID.insert(breed->ID, breed.get());
    for (auto& [parentID, subgroup] : subgroups) {
        if (BreedNode* parent = byID.value(parentID)) {
            subgroup->parent = parent;
            parent->children.push_back(std::move(subgroup));
        }
    }
    return top;
}

} // namespace lorvo
