#include "bare_list.h"

#include "bare_rows.h"

#include <QVBoxLayout>

namespace lorvo::bench {

namespace {

QString Text(sqlite3_stmt* statement, int column) {
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
                             sqlite3_column_bytes(statement, column));
}

void AddRows(std::vector<std::vector<QString>>& rows, sqlite3_stmt* statement) {
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        std::vector<QString>& row = rows.emplace_back();
        row.reserve(static_cast<std::size_t>(columns));
        for (int column = 0; column < columns; ++column)
            row.push_back(Text(statement, column));
    }
    sqlite3_reset(statement);
}

} // namespace

void BareListModel::SetRows(std::vector<std::vector<QString>> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int BareListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int BareListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() || rows_.empty() ? 0 : static_cast<int>(rows_.front().size());
}

QVariant BareListModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole)
        return {};
    return rows_[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
}

BareList::BareList(QSize size) {
    resize(size);
    auto* column = new QVBoxLayout(this);
    column->addWidget(&list_);
    list_.setUniformRowHeights(true);
    list_.setRootIsDecorated(false);
    list_.setModel(&model_);
}

void BareList::Load(const std::vector<sqlite3_stmt*>& statements) {
    std::vector<std::vector<QString>> rows;
    const int columns = sqlite3_column_count(statements.front());
    for (sqlite3_stmt* statement : statements) {
        if (sqlite3_column_count(statement) == columns)
            AddRows(rows, statement);
        else
            ReadToEnd(statement);
    }
    model_.SetRows(std::move(rows));
}

} // namespace lorvo::bench
