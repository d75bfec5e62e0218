#pragma once
// The rows of a report list on a plain vector.

#include "forms/report_list.h"

#include <QAbstractTableModel>
#include <QHash>

namespace lorvo {

inline constexpr int kKeyRole = Qt::UserRole;
inline constexpr int kTagRole = Qt::UserRole + 1;

class ReportListModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    ReportListModel(const QStringList& headings, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// The check state alone: texts are edited through the list.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    const ReportRow& Row(int position) const { return rows_.at(static_cast<size_t>(position)); }
    const ReportCell& Cell(int position, int column) const;
    int FindRow(const QString& key) const;

    void SetRows(std::vector<ReportRow> rows);
    int AddRow(ReportRow row);
    void RemoveRow(int position);
    /// Changes one row by `edit` and lets the views know.
    template<typename Edit> void EditRow(int position, Edit edit) {
        edit(rows_.at(static_cast<size_t>(position)));
        RowChanged(position);
    }
    template<typename Edit> void EditCell(int position, int column, Edit edit) {
        EditRow(position, [&](ReportRow& row) {
            const auto place = static_cast<size_t>(column);
            if (row.cells.size() <= place)
                row.cells.resize(place + 1);
            edit(row.cells[place]);
        });
    }

    void SetHeading(int column, const QString& text);
    void InsertHeading(int column, const QString& text);
    void RemoveHeading(int column);
    void AlignRight(int column);
    bool IsRightAligned(int column) const {
        return rightAligned_.at(static_cast<std::size_t>(column));
    }
    bool HasColours() const;
    /// The longest texts of a column in letters, at most so many.
    QStringList LongestTexts(int column, int count) const;
    HeaderPicture PictureOf(int column) const;

    /// Sorts by a column's texts in Czech order without regard to letter case, rows of equal text
    /// as they stood; rows added later find their place. The selection stays with its rows.
    void SortBy(int column, Qt::SortOrder order);

    bool checkBoxes = false;
    bool editable = false;
    std::vector<QIcon> icons;

  Q_SIGNALS:
    void Ticked(int position);

  private:
    void RowChanged(int position);
    bool IsSorted() const { return sortColumn_ >= 0; }
    std::vector<size_t> SortedOrder() const;
    int PlaceFor(const ReportRow& row) const;
    QVariant AlignmentOf(int column) const;

    std::vector<ReportRow> rows_;
    QStringList headings_;
    std::vector<bool> rightAligned_; ///< by column
    int sortColumn_ = -1;            ///< -1 as long as the list isn't sorted
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    mutable QHash<QString, int> positions_; ///< by key, filled when one is looked for
};

} // namespace lorvo
