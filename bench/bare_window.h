#pragma once
// A plain window over a plain vector of rows: what showing the tree takes at the least.

#include "bare_rows.h"

#include <QAbstractItemModel>
#include <QMainWindow>
#include <QTreeView>

namespace lorvo::bench {

/// Breeds with their dogs, two levels on plain vectors.
class BareModel : public QAbstractItemModel {
  public:
    void SetDogs(std::vector<BareDog> dogs);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<BareDog> dogs_;
    std::vector<int> firstDog_; ///< of each breed, and behind the last
};

class BareWindow : public QMainWindow {
  public:
    BareWindow();
    void Load(BareDatabase& database);
    QTreeView& Tree() { return tree_; }

  private:
    BareModel model_;
    QTreeView tree_;
};

/// Lets events run until the widget has been painted once more.
void WaitForPaint(QWidget& painted);

/// Paints at once what has been marked as changed, as the window system would soon ask for.
void PaintChanges(QWidget& window);

} // namespace lorvo::bench
