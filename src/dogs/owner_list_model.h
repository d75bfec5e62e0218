#pragma once
// The owners to choose from, on a plain vector: thousands of them open at once.

#include "store/majitele.h"

#include <QAbstractListModel>

namespace lorvo {

/// Each line is the owner's name, two blanks and the town; the owner's ID is its user data.
class OwnerListModel : public QAbstractListModel {
    Q_OBJECT
  public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    void SetOwners(std::vector<OwnerName> owners);
    /// An empty line at the end, for an owner who is being typed.
    void AddEmpty();
    void RemoveLast();
    /// Position of the owner; -1 when there is none.
    int FindOwner(int majitelID) const;

  private:
    std::vector<OwnerName> owners_;
};

} // namespace lorvo
