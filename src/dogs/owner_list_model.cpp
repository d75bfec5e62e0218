#include "dogs/owner_list_model.h"

#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

int OwnerListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(owners_.size());
}

QVariant OwnerListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const OwnerName& owner = owners_.at(static_cast<size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return owner.ID == 0 ? QString() : owner.Jmeno + u"  "_s + owner.Mesto;
    case Qt::UserRole:
        return owner.ID;
    default:
        return {};
    }
}

void OwnerListModel::SetOwners(std::vector<OwnerName> owners) {
    beginResetModel();
    owners_ = std::move(owners);
    endResetModel();
}

void OwnerListModel::AddEmpty() {
    beginInsertRows({}, rowCount(), rowCount());
    owners_.emplace_back();
    endInsertRows();
}

void OwnerListModel::RemoveLast() {
    beginRemoveRows({}, rowCount() - 1, rowCount() - 1);
    owners_.pop_back();
    endRemoveRows();
}

int OwnerListModel::FindOwner(int majitelID) const {
    const auto found = std::find_if(owners_.begin(), owners_.end(),
                                    [&](const OwnerName& owner) { return owner.ID == majitelID; });
    return found == owners_.end() ? -1 : static_cast<int>(found - owners_.begin());
}

} // namespace lorvo
