#include "office/exchange/sheet_grid.h"

#include "platform/values/errors.h"

#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostCells = 20'000'000;

void RequireInSheet(int row, int column) {
    if (row < 0 || row >= kMostSheetRows || column < 0 || column >= kMostSheetColumns)
        RefuseCell(row, column, u"leží za koncem největšího listu"_s);
}

bool IsBlank(const QStringList& row) {
    return std::ranges::all_of(row, [](const QString& text) { return text.trimmed().isEmpty(); });
}

} // namespace

QString CellName(int row, int column) {
    QString letters;
    for (int rest = column + 1; rest > 0; rest = (rest - 1) / 26)
        letters.prepend(QChar(u'A' + (rest - 1) % 26));
    return letters + QString::number(row + 1);
}

void RefuseCell(int row, int column, const QString& fault) {
    throw PlatformError(u"buňka %1 %2"_s.arg(CellName(row, column), fault).toStdString());
}

void SheetGrid::Put(int row, int column, const QString& text) {
    if (text.isEmpty())
        return;
    RequireInSheet(row, column);
    QStringList& cells = rows_[row];
    if (column >= cells.size()) {
        Count(column + 1 - cells.size());
        cells.resize(column + 1);
    }
    cells[column] = text;
}

void SheetGrid::PutRow(int row, int count, const QStringList& cells) {
    if (IsBlank(cells))
        return;
    RequireInSheet(row, 0);
    for (int i = row; i < kMostSheetRows && i - row < count; ++i) {
        Count(cells.size());
        rows_[i] = cells;
    }
}

std::vector<QStringList> SheetGrid::TakeRows() {
    std::vector<QStringList> rows;
    rows.reserve(rows_.size());
    qsizetype widest = 0;
    for (auto& [number, cells] : rows_) {
        widest = std::max(widest, cells.size());
        if (!IsBlank(cells))
            rows.push_back(std::move(cells));
    }
    if (!rows.empty())
        rows.front().resize(widest);
    rows_.clear();
    return rows;
}

void SheetGrid::Count(qsizetype cells) {
    cells_ += cells;
    if (cells_ > kMostCells)
        throw PlatformError("list má příliš mnoho buněk");
}

} // namespace lorvo
