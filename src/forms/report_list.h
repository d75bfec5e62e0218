#pragma once
// The list that all windows share: report style with columns, keys and tags, optional check boxes,
// in-place editing of the first column, sorting by a clicked column.

#include "forms/label_edit_view.h"

#include <QColor>
#include <QIcon>
#include <QPersistentModelIndex>
#include <optional>
#include <vector>

namespace lorvo {

/// A cell beside its text: only what differs from the list's look.
struct ReportCell {
    QString text;
    std::optional<QColor> colour = {};
    int icon = -1;       ///< position in the list's icons, -1 for none
    QString spoken = {}; ///< what colour or icon say beside the text, for those who can't see them
};

struct ReportRow {
    QString key;
    QString tag;
    std::vector<ReportCell> cells; ///< cell 0 is the row's text; missing ones are empty
    bool checked = false;
    bool bold = false;
};

/// The picture in a column's heading: which way the list is sorted by it.
enum class HeaderPicture { None = 0, Descending = 1, Ascending = 2, Neutral = 3 };

class LabelEditDelegate;
class ReportListModel;

class ReportList : public LabelEditView {
    Q_OBJECT
  public:
    ReportList(const char* name, const QStringList& headings, QWidget* parent);
    ~ReportList() override;

    // Content. Rows stand in the order of the list as it is sorted now; positions are from 0.
    void SetRows(std::vector<ReportRow> rows); ///< replaces all rows at once
    int AddRow(ReportRow row);                 ///< returns where the row stands
    void ClearRows();
    void RemoveRow(const QString& key);
    void RemoveRowAt(int position);
    int RowCount() const;
    const ReportRow& Row(int position) const;
    /// The text of a cell, empty for one that the row lacks.
    QString CellText(int position, int column) const;
    /// Position of the row with that key, -1 when there is none.
    int FindRow(const QString& key) const;
    /// Position of the first row with that text in column 0, -1 when there is none.
    int FindText(const QString& text) const;
    void SetKey(int position, const QString& key);
    void SetCell(int position, int column, const QString& text);
    void SetCellColour(int position, int column, std::optional<QColor> colour);
    void SetCellIcon(int position, int column, int icon);
    void SetChecked(int position, bool checked); ///< without ItemCheck

    // Columns, from 0.
    void SetHeading(int column, const QString& text);
    void InsertColumn(int column, const QString& heading);
    void RemoveColumn(int column); ///< with its cells
    int ColumnCount() const;
    /// The widths by design, from column 0 on; headings and amounts that need more get more.
    void SetColumnWidths(std::initializer_list<int> widths);
    /// As wide as headings and cells need, within reason: for columns that nobody has designed.
    void FitToContents();
    /// The width that the clerk has drawn, now or before.
    void DrawColumn(int column, int width);
    /// As designed, fitted or drawn, less what it gives way by where a list on the screen is too
    /// narrow for all; the last one shows wider where the list has room left.
    int ColumnWidth(int column) const;
    /// Numbers and amounts stand at the right, heading and cells.
    void AlignRight(const std::vector<int>& columns);
    HeaderPicture PictureOf(int column) const;

    // Selection. -1 for none.
    int SelectedRow() const;
    std::vector<int> SelectedRows() const;
    void SelectRow(int position); ///< and makes it visible
    void SetMultiSelect(bool on); ///< several rows may be selected

    // Looks and ways.
    void SetCheckBoxes(bool on);
    void SetGridLines(bool on);
    void SetIcons(std::vector<QIcon> icons);
    void SetLabelEdit(bool allowed); ///< in-place editing by F2 or a click on the selected text
    void SetSorting(bool on);        ///< SortListColumn on a click on a heading
    /// Whether an edit in which nothing was typed counts as one, as it does unless told otherwise.
    void SetUntouchedEdits(bool count);
    void StartLabelEdit(int position);

    /// Puts the selected rows on the clipboard, cells parted by tabs and amounts as bare numbers;
    /// without a selection all rows below their headings.
    void CopyRows() const;

    /// Brings the row in sight, through scrolling areas that the list itself lies in too.
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

  Q_SIGNALS:
    /// The clerk ticked or unticked a row; its state has already changed.
    void ItemCheck(int position);
    void ItemClick(int position);
    /// By the mouse, or by Enter on the selected row.
    void DoubleClick(int position);
    /// The right button was released, over no row when -1. The row has been selected by the press.
    /// The key of the context menu gives the selected row, -1 when there is none.
    void RightClick(int position);
    void SelectionChanged();
    void DeletePressed();
    /// In-place editing begins; set *cancel to keep it from starting.
    void BeforeLabelEdit(int position, bool* cancel);
    /// In-place editing ended with Enter or loss of focus; the list still shows the old text. Set
    /// *cancel to keep it.
    void AfterLabelEdit(int position, const QString& text, bool* cancel);
    /// In-place editing ended with Esc, or without a change where that counts as none.
    void LabelEditGivenUp(int position);

  protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

  private:
    friend void SortListColumn(ReportList& list, int column);
    struct Column {
        int width = 0;
        bool drawn = false; ///< by the clerk, now or before
        int givenWay = 0;   ///< what it does without while the list is too narrow for all
    };

    void InstallEditing();
    void DeliverEditedText(const QPersistentModelIndex& row, const QString& text);
    bool TakeKey(QKeyEvent& key);
    void OpenSelected();
    void AskForMenu();
    void InstallColumns();
    void FitColumns();
    void KeepToldColours();
    int HeadingWidth(int column) const;
    int ContentWidth(int column) const;
    int SpareWidth(int column) const;
    void LetColumnsGiveWay();
    void ShowColumnWidths();
    QString CopiedCell(int position, int column) const;
    template<typename Cell> QString CopiedLine(Cell cell) const;

    ReportListModel* model_;
    std::vector<Column> columns_;
    bool showingWidths_ = false;
    bool light_ = false;
    bool sorts_ = false;
    QMetaObject::Connection sortClick_;
    bool gridLines_ = false;
    Qt::SortOrder order_ = Qt::AscendingOrder;
    LabelEditDelegate* delegate_ = nullptr;
};

/// Sorts by the clicked column's texts and toggles the list's direction, with the three header
/// pictures (descending, ascending, neutral). The first click on a list sorts it descending.
void SortListColumn(ReportList& list, int column);

} // namespace lorvo
