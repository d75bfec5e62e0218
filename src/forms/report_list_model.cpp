#include "forms/report_list_model.h"

#include "forms/controls.h"
#include "platform/failure_guard.h"

#include <QFont>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

ReportListModel::ReportListModel(const QStringList& headings, QObject* parent)
    : QAbstractTableModel(parent), headings_(headings),
      rightAligned_(static_cast<size_t>(headings.size())) {}

int ReportListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ReportListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

const ReportCell& ReportListModel::Cell(int position, int column) const {
    static const ReportCell empty;
    const ReportRow& row = Row(position);
    const auto place = static_cast<size_t>(column);
    return place < row.cells.size() ? row.cells[place] : empty;
}

QVariant ReportListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const ReportRow& row = Row(index.row());
    const ReportCell& cell = Cell(index.row(), index.column());
    const bool first = index.column() == 0;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return cell.text;
    case Qt::ForegroundRole:
        return cell.colour ? QVariant(*cell.colour) : QVariant();
    case Qt::FontRole: {
        if (!row.bold)
            return {};
        QFont font;
        font.setBold(true);
        return font;
    }
    case Qt::DecorationRole: {
        const auto icon = static_cast<size_t>(cell.icon);
        return cell.icon >= 0 && icon < icons.size() ? QVariant(icons[icon]) : QVariant();
    }
    case Qt::TextAlignmentRole:
        return AlignmentOf(index.column());
    case Qt::AccessibleTextRole:
        return cell.text.isEmpty() || cell.spoken.isEmpty() ? cell.text + cell.spoken
                                                            : cell.text + u", "_s + cell.spoken;
    case Qt::CheckStateRole:
        return first && checkBoxes ? QVariant(row.checked ? Qt::Checked : Qt::Unchecked)
                                   : QVariant();
    case kKeyRole:
        return first ? QVariant(row.key) : QVariant();
    case kTagRole:
        return first ? QVariant(row.tag) : QVariant();
    default:
        return {};
    }
}

bool ReportListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    return GuardedAnswer(false, [&]() -> bool {
        if (!index.isValid() || role != Qt::CheckStateRole || !checkBoxes)
            return false;
        EditRow(index.row(), [&](ReportRow& row) { row.checked = value.toInt() == Qt::Checked; });
        Q_EMIT Ticked(index.row());
        return true;
    });
}

QVariant ReportListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= headings_.size())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return headings_[section];
    case Qt::TextAlignmentRole:
        return AlignmentOf(section);
    case Qt::DecorationRole:
        switch (PictureOf(section)) {
        case HeaderPicture::Descending:
            return ProgramIcon(u"sort-down"_s);
        case HeaderPicture::Ascending:
            return ProgramIcon(u"sort-up"_s);
        case HeaderPicture::Neutral:
            return ProgramIcon(u"sort-neutral"_s);
        case HeaderPicture::None:
            break;
        }
        return {};
    default:
        return {};
    }
}

Qt::ItemFlags ReportListModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags result = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (index.column() == 0 && checkBoxes)
        result |= Qt::ItemIsUserCheckable;
    if (index.column() == 0 && editable)
        result |= Qt::ItemIsEditable;
    return result;
}

int ReportListModel::FindRow(const QString& key) const {
    if (positions_.isEmpty())
        for (int position = rowCount() - 1; position >= 0; --position)
            positions_[Row(position).key] = position;
    return positions_.value(key, -1);
}

void ReportListModel::SetRows(std::vector<ReportRow> rows) {
    beginResetModel();
    rows_ = std::move(rows);
    positions_.clear();
    if (IsSorted()) {
        std::vector<ReportRow> sorted;
        sorted.reserve(rows_.size());
        for (const size_t from : SortedOrder())
            sorted.push_back(std::move(rows_[from]));
        rows_ = std::move(sorted);
    }
    endResetModel();
}

int ReportListModel::AddRow(ReportRow row) {
    const int place = IsSorted() ? PlaceFor(row) : rowCount();
    beginInsertRows({}, place, place);
    rows_.insert(rows_.begin() + place, std::move(row));
    positions_.clear();
    endInsertRows();
    return place;
}

void ReportListModel::RemoveRow(int position) {
    beginRemoveRows({}, position, position);
    rows_.erase(rows_.begin() + position);
    positions_.clear();
    endRemoveRows();
}

void ReportListModel::RowChanged(int position) {
    positions_.clear();
    Q_EMIT dataChanged(index(position, 0), index(position, columnCount() - 1));
}

void ReportListModel::SetHeading(int column, const QString& text) {
    headings_[column] = text;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void ReportListModel::InsertHeading(int column, const QString& text) {
    beginInsertColumns({}, column, column);
    headings_.insert(column, text);
    rightAligned_.insert(rightAligned_.begin() + column, false);
    const auto place = static_cast<size_t>(column);
    for (ReportRow& row : rows_)
        if (row.cells.size() > place)
            row.cells.insert(row.cells.begin() + column, ReportCell());
    if (sortColumn_ >= column)
        ++sortColumn_;
    endInsertColumns();
}

void ReportListModel::RemoveHeading(int column) {
    beginRemoveColumns({}, column, column);
    headings_.removeAt(column);
    rightAligned_.erase(rightAligned_.begin() + column);
    const auto place = static_cast<size_t>(column);
    for (ReportRow& row : rows_)
        if (row.cells.size() > place)
            row.cells.erase(row.cells.begin() + column);
    if (sortColumn_ == column)
        sortColumn_ = -1;
    else if (sortColumn_ > column)
        --sortColumn_;
    endRemoveColumns();
}

void ReportListModel::AlignRight(int column) {
    rightAligned_.at(static_cast<size_t>(column)) = true;
}

bool ReportListModel::HasColours() const {
    const auto isColoured = [](const ReportCell& cell) {
        return cell.colour.has_value();
    };
    return std::any_of(rows_.begin(), rows_.end(), [&](const ReportRow& row) {
        return std::any_of(row.cells.begin(), row.cells.end(), isColoured);
    });
}

QStringList ReportListModel::LongestTexts(int column, int count) const {
    QStringList texts;
    for (int position = 0; position < rowCount(); ++position) {
        const QString& text = Cell(position, column).text;
        if (texts.size() == count && text.size() <= texts.back().size())
            continue;
        const auto place = std::find_if(texts.begin(), texts.end(), [&](const QString& other) {
            return other.size() < text.size();
        });
        texts.insert(place, text);
        if (texts.size() > count)
            texts.removeLast();
    }
    return texts;
}

QVariant ReportListModel::AlignmentOf(int column) const {
    const bool right = IsRightAligned(column);
    return QVariant((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

HeaderPicture ReportListModel::PictureOf(int column) const {
    if (!IsSorted())
        return HeaderPicture::None;
    if (column != sortColumn_)
        return HeaderPicture::Neutral;
    return sortOrder_ == Qt::AscendingOrder ? HeaderPicture::Ascending : HeaderPicture::Descending;
}

} // namespace lorvo
