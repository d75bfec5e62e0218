#include "office/tree/tree_model.h"

#include "office/texts/dog_texts.h"
#include "platform/failure_guard.h"

#include <QColor>
#include <QFont>
#include <QMimeData>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString kNodeFormat = u"application/x-lorvo-node"_s;

const QFont& BoldFont() {
    // Only the weight is set, so that family and size stay the view's.
    static const QFont font = [] {
        QFont bold;
        bold.setResolveMask(0);
        bold.setBold(true);
        return bold;
    }();
    return font;
}

/// What picture and colours say of a node, for those who can't see them.
QString SpokenOf(const TreeNode& node) {
    QString words;
    if (node.IsDog() && node.colour != kBlack)
        words += u", "_s + SexText(node.colour == kMaleText).toLower();
    if (node.background != kWhite)
        words += u", zvýrazněno"_s;
    return words;
}

} // namespace

TreeModel::TreeModel(TreeNodes& nodes, QObject* parent)
    : QAbstractItemModel(parent), nodes_(nodes) {
    nodes_.SetObserver(this);
}

TreeModel::~TreeModel() {
    nodes_.SetObserver(nullptr);
}

void TreeModel::SetIcons(const Icons& icons) {
    icons_ = icons;
    Recoloured();
}

QIcon TreeModel::IconOf(const TreeNode& node) const {
    switch (node.Kind()) {
    case NodeKind::Ring:
        return icons_[0];
    case NodeKind::Breed:
        return icons_[1];
    case NodeKind::Class:
        return icons_[2];
    case NodeKind::Dog:
        return icons_[3];
    case NodeKind::UnassignedRoot:
        return icons_[4];
    }
    Q_UNREACHABLE();
}

TreeNode* TreeModel::NodeAt(const QModelIndex& index) {
    return static_cast<TreeNode*>(index.internalPointer());
}

QModelIndex TreeModel::IndexOf(const TreeNode* node) const {
    return node ? createIndex(node->row, 0, node) : QModelIndex();
}

const TreeNode::Siblings& TreeModel::ChildrenOf(const QModelIndex& parent) const {
    return parent.isValid() ? NodeAt(parent)->children : nodes_.TopLevel();
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return {};
    return IndexOf(ChildrenOf(parent)[static_cast<std::size_t>(row)].get());
}

QModelIndex TreeModel::parent(const QModelIndex& child) const {
    return child.isValid() ? IndexOf(NodeAt(child)->parent) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
    return static_cast<int>(ChildrenOf(parent).size());
}

int TreeModel::columnCount(const QModelIndex&) const {
    return 1;
}

bool TreeModel::hasChildren(const QModelIndex& parent) const {
    return !ChildrenOf(parent).empty();
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const TreeNode& node = *NodeAt(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return node.text;
    case Qt::DecorationRole:
        return IconOf(node);
    case Qt::FontRole:
        return node.bold ? QVariant(BoldFont()) : QVariant();
    case Qt::ForegroundRole:
        return QColor(node.colour);
    case Qt::BackgroundRole:
        return QColor(node.background);
    case Qt::AccessibleTextRole:
        return node.text + SpokenOf(node);
    case kKeyRole:
        return node.Key();
    case kTagRole:
        return node.Tag();
    default:
        return {};
    }
}

bool TreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    return GuardedAnswer(false, [&]() -> bool {
        if (!index.isValid() || role != Qt::EditRole)
            return false;
        Q_EMIT LabelEdited(NodeAt(index), value.toString());
        return true;
    });
}

Qt::ItemFlags TreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return {};
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
    const NodeKind kind = NodeAt(index)->Kind();
    if (kind == NodeKind::Breed || kind == NodeKind::Dog)
        flags |= Qt::ItemIsDragEnabled;
    if (kind != NodeKind::Dog)
        flags |= Qt::ItemIsDropEnabled;
    return flags;
}

QStringList TreeModel::mimeTypes() const {
    return {kNodeFormat};
}

QMimeData* TreeModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.isEmpty())
        return nullptr;
    auto* data = new QMimeData;
    data->setText(NodeAt(indexes.front())->Key());
    data->setData(kNodeFormat, dragMark_);
    return data;
}

bool TreeModel::IsOwn(const QMimeData& data) const {
    return data.data(kNodeFormat) == dragMark_;
}

bool TreeModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                const QModelIndex& parent) const {
    return IsOwn(*data) && QAbstractItemModel::canDropMimeData(data, action, row, column, parent);
}

void TreeModel::AboutToReset() {
    beginResetModel();
}

void TreeModel::Reset() {
    endResetModel();
}

void TreeModel::AboutToAppend(TreeNode* parent) {
    const QModelIndex index = IndexOf(parent);
    const int row = rowCount(index);
    beginInsertRows(index, row, row);
}

void TreeModel::Appended() {
    endInsertRows();
}

void TreeModel::AboutToRemove(TreeNode* node) {
    beginRemoveRows(IndexOf(node->parent), node->row, node->row);
}

void TreeModel::Removed() {
    endRemoveRows();
}

void TreeModel::AboutToMove(TreeNode* node, TreeNode* newParent) {
    const QModelIndex target = IndexOf(newParent);
    beginMoveRows(IndexOf(node->parent), node->row, node->row, target, rowCount(target));
}

void TreeModel::Moved() {
    endMoveRows();
}

void TreeModel::Changed(TreeNode* node) {
    const QModelIndex index = IndexOf(node);
    Q_EMIT dataChanged(index, index);
}

void TreeModel::Recoloured() {
    // One signal for nodes of all levels; thousands of ranges would each be looked for by the view.
    Q_EMIT layoutAboutToBeChanged();
    Q_EMIT layoutChanged();
}

} // namespace lorvo
