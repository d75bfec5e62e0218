#include "forms/report_list.h"

#include "forms/light_palette.h"
#include "forms/report_list_model.h"
#include "platform/failure_guard.h"

#include <QHeaderView>
#include <algorithm>

namespace lorvo {

ReportList::ReportList(const char* name, const QStringList& headings, QWidget* parent)
    : LabelEditView(parent), model_(new ReportListModel(headings, this)) {
    setObjectName(QString::fromLatin1(name));
    setModel(model_);
    InstallEditing();
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    InstallColumns();
    Connect(model_, &ReportListModel::Ticked, this, &ReportList::ItemCheck);
    Connect(this, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT ItemClick(index.row()); });
    Connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT DoubleClick(index.row()); });
}

ReportList::~ReportList() = default;

void ReportList::SetRows(std::vector<ReportRow> rows) {
    model_->SetRows(std::move(rows));
    if (model_->HasColours())
        KeepToldColours();
    FitColumns();
}

/// A list with colours that mean something is light from then on.
void ReportList::KeepToldColours() {
    if (light_)
        return;
    light_ = true;
    KeepLight(*this);
}

int ReportList::AddRow(ReportRow row) {
    return model_->AddRow(std::move(row));
}

void ReportList::ClearRows() {
    model_->SetRows({});
}

void ReportList::RemoveRow(const QString& key) {
    if (const int position = FindRow(key); position >= 0)
        RemoveRowAt(position);
}

void ReportList::RemoveRowAt(int position) {
    // The toolkit would choose the next row, which a second Delete then meant.
    if (selectionModel()->isRowSelected(position) || currentIndex().row() == position)
        selectionModel()->clear();
    model_->RemoveRow(position);
}

int ReportList::RowCount() const {
    return model_->rowCount();
}

const ReportRow& ReportList::Row(int position) const {
    return model_->Row(position);
}

QString ReportList::CellText(int position, int column) const {
    return model_->Cell(position, column).text;
}

int ReportList::FindRow(const QString& key) const {
    return model_->FindRow(key);
}

int ReportList::FindText(const QString& text) const {
    for (int position = 0; position < RowCount(); ++position)
        if (CellText(position, 0) == text)
            return position;
    return -1;
}

void ReportList::SetKey(int position, const QString& key) {
    model_->EditRow(position, [&](ReportRow& row) { row.key = key; });
}

void ReportList::SetCell(int position, int column, const QString& text) {
    model_->EditCell(position, column, [&](ReportCell& cell) { cell.text = text; });
}

void ReportList::SetCellColour(int position, int column, std::optional<QColor> colour) {
    model_->EditCell(position, column, [&](ReportCell& cell) { cell.colour = colour; });
    if (colour)
        KeepToldColours();
}

void ReportList::SetCellIcon(int position, int column, int icon) {
    model_->EditCell(position, column, [&](ReportCell& cell) { cell.icon = icon; });
}

void ReportList::SetChecked(int position, bool checked) {
    model_->EditRow(position, [&](ReportRow& row) { row.checked = checked; });
}

void ReportList::SetHeading(int column, const QString& text) {
    model_->SetHeading(column, text);
}

int ReportList::ColumnCount() const {
    return model_->columnCount();
}

void ReportList::AlignRight(const std::vector<int>& columns) {
    for (const int column : columns)
        model_->AlignRight(column);
    FitColumns();
}

HeaderPicture ReportList::PictureOf(int column) const {
    return model_->PictureOf(column);
}

int ReportList::SelectedRow() const {
    const QModelIndex current = currentIndex();
    if (current.isValid() && selectionModel()->isRowSelected(current.row()))
        return current.row();
    const std::vector<int> rows = SelectedRows();
    return rows.empty() ? -1 : rows.front();
}

std::vector<int> ReportList::SelectedRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ReportList::SelectRow(int position) {
    const QModelIndex index = model_->index(position, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                 QItemSelectionModel::Rows);
    scrollTo(index);
}

void ReportList::SetMultiSelect(bool on) {
    setSelectionMode(on ? ExtendedSelection : SingleSelection);
}

void ReportList::SetCheckBoxes(bool on) {
    model_->checkBoxes = on;
    viewport()->update();
}

void ReportList::SetGridLines(bool on) {
    gridLines_ = on;
    viewport()->update();
}

void ReportList::SetIcons(std::vector<QIcon> icons) {
    model_->icons = std::move(icons);
    viewport()->update();
}

void ReportList::SetSorting(bool on) {
    sorts_ = on;
    disconnect(sortClick_);
    if (on)
        sortClick_ = Connect(header(), &QHeaderView::sectionClicked, this,
                             [this](int column) { SortListColumn(*this, column); });
    FitColumns();
}

} // namespace lorvo
