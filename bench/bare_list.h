#pragma once
// A plain window over plain rows of texts: what showing a long list takes at the least.

#include <QAbstractTableModel>
#include <QDialog>
#include <QTreeView>
#include <sqlite3.h>
#include <vector>

namespace lorvo::bench {

class BareListModel : public QAbstractTableModel {
  public:
    void SetRows(std::vector<std::vector<QString>> rows);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<std::vector<QString>> rows_;
};

class BareList : public QDialog {
  public:
    explicit BareList(QSize size);
    /// Reads the statements to their end. The first one's rows are the list's, and those of others
    /// that have as many columns.
    void Load(const std::vector<sqlite3_stmt*>& statements);
    QTreeView& List() { return list_; }

  private:
    BareListModel model_;
    QTreeView list_;
};

} // namespace lorvo::bench
