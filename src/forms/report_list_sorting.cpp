// How a report list is sorted: by its cells' texts, as a Czech reader looks names up.
#include "forms/report_list_model.h"

#include <QCollator>
#include <algorithm>
#include <numeric>

namespace lorvo {

namespace {

const QCollator& CzechOrder() {
    static const QCollator collator = [] {
        QCollator czech(QLocale(QLocale::Czech, QLocale::CzechRepublic));
        czech.setCaseSensitivity(Qt::CaseInsensitive);
        return czech;
    }();
    return collator;
}

} // namespace

std::vector<size_t> ReportListModel::SortedOrder() const {
    std::vector<QCollatorSortKey> keys;
    keys.reserve(rows_.size());
    for (int position = 0; position < rowCount(); ++position)
        keys.push_back(CzechOrder().sortKey(Cell(position, sortColumn_).text));
    std::vector<size_t> order(rows_.size());
    std::iota(order.begin(), order.end(), size_t{0});
    const bool ascending = sortOrder_ == Qt::AscendingOrder;
    std::stable_sort(order.begin(), order.end(), [&](size_t left, size_t right) {
        return ascending ? keys[left] < keys[right] : keys[right] < keys[left];
    });
    return order;
}

int ReportListModel::PlaceFor(const ReportRow& row) const {
    const auto column = static_cast<size_t>(sortColumn_);
    const auto textOf = [column](const ReportRow& any) {
        return column < any.cells.size() ? any.cells[column].text : QString();
    };
    const bool ascending = sortOrder_ == Qt::AscendingOrder;
    const auto place =
        std::upper_bound(rows_.begin(), rows_.end(), row, [&](const auto& left, const auto& right) {
            const int order = CzechOrder().compare(textOf(left), textOf(right));
            return ascending ? order < 0 : order > 0;
        });
    return static_cast<int>(place - rows_.begin());
}

void ReportListModel::SortBy(int column, Qt::SortOrder order) {
    sortColumn_ = column;
    sortOrder_ = order;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<size_t> from = SortedOrder();
    std::vector<int> placeOf(from.size());
    std::vector<ReportRow> sorted;
    sorted.reserve(from.size());
    for (size_t place = 0; place < from.size(); ++place) {
        placeOf[from[place]] = static_cast<int>(place);
        sorted.push_back(std::move(rows_[from[place]]));
    }
    rows_ = std::move(sorted);
    positions_.clear();
    for (const QModelIndex& old : persistentIndexList())
        changePersistentIndex(old, index(placeOf[static_cast<size_t>(old.row())], old.column()));
    Q_EMIT layoutChanged({}, VerticalSortHint);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void SortListColumn(ReportList& list, int column) {
    list.order_ = list.order_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    list.model_->SortBy(column, list.order_);
}

} // namespace lorvo
