#pragma once
// The list that all windows share: report style with columns, keys and tags, optional check boxes,
// in-place editing of the first column, sorting by a clicked column.

#include <QAbstractItemModel>
#include <QColor>
#include <QIcon>
#include <QTreeView>
#include <optional>
#include <vector>

namespace lorvo {

/// A cell beside its text: only what differs from the list's look.
struct ReportCell {
    QString text;
    std::optional<QColor> colour;
    int icon = -1; ///< position in the list's icons, -1 for none
};

struct ReportRow {
    QString key;
    QString tag;
    std::vector<ReportCell> cells; ///< cell 0 is the row's text; missing ones are empty
    bool checked = false;
    bool bold = false;
};

class ReportListModel;

class ReportList : public QTreeView {
    Q_OBJECT
  public:
    ReportList(const char* name, const QStringList& headings, QWidget* parent);
    ~ReportList() override;

    // Content. Rows stand in the order of the list as it is sorted now; positions are from 0.
    void SetRows(std::vector<ReportRow> rows); ///< replaces all rows at once
    void AddRow(ReportRow row);
    void ClearRows();
    void RemoveRow(const QString& key);
    int RowCount() const;
    const ReportRow& Row(int position) const;
    /// Position of the row with that key, -1 when there is none.
    int FindRow(const QString& key) const;
    void SetKey(int position, const QString& key);
    void SetCell(int position, int column, const QString& text);
    void SetCellColour(int position, int column, std::optional<QColor> colour);
    void SetCellIcon(int position, int column, int icon);
    void SetBold(int position, bool bold);
    void SetChecked(int position, bool checked); ///< without ItemCheck

    // Columns.
    void SetHeading(int column, const QString& text);
    void InsertColumn(int column, const QString& heading);
    int ColumnCount() const;

    // Selection. -1 for none.
    int SelectedRow() const;
    std::vector<int> SelectedRows() const;
    void SelectRow(int position); ///< and makes it visible

    // Looks and ways.
    void SetCheckBoxes(bool on);
    void SetGridLines(bool on);
    void SetIcons(std::vector<QIcon> icons);
    void SetLabelEdit(bool allowed); ///< in-place editing by F2 or a click on the selected text
    void SetSorting(bool on);        ///< SortListColumn on a click on a heading
    void StartLabelEdit(int position);

  Q_SIGNALS:
    /// The clerk ticked or unticked a row; its state has already changed.
    void ItemCheck(int position);
    void ItemClick(int position);
    void DoubleClick(int position);
    void RightClick(int position);
    void DeletePressed();
    /// In-place editing begins; set *cancel to keep it from starting.
    void BeforeLabelEdit(int position, bool* cancel);
    /// In-place editing ended with Enter or loss of focus. Set *cancel to keep the old text.
    void AfterLabelEdit(int position, const QString& text, bool* cancel);

  private:
    ReportListModel* model_;
};

/// Sorts by the clicked column's texts and toggles the list's direction, with the three header
/// pictures (descending, ascending, neutral).
void SortListColumn(ReportList& list, int column);

} // namespace lorvo
