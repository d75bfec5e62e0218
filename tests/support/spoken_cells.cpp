#include "support/spoken_cells.h"

#include "forms/report_list.h"

#include <QColor>
#include <QIcon>
#include <QSet>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

QList<QModelIndex> CellsOf(const QTreeView& view, int column) {
    QList<QModelIndex> cells;
    for (QModelIndex row = view.model()->index(0, 0); row.isValid(); row = view.indexBelow(row))
        cells << row.siblingAtColumn(column);
    return cells;
}

QRgb ColourOf(const QModelIndex& cell) {
    const QVariant colour = cell.data(Qt::ForegroundRole);
    return colour.isValid() ? colour.value<QColor>().rgb() : qRgb(0, 0, 0);
}

qint64 PictureOf(const QModelIndex& cell) {
    return cell.data(Qt::DecorationRole).value<QIcon>().cacheKey();
}

template<class Value>
bool Differ(const QList<QModelIndex>& cells, Value (*valueOf)(const QModelIndex&)) {
    QSet<Value> values;
    for (const QModelIndex& cell : cells)
        values.insert(valueOf(cell));
    return values.size() > 1;
}

bool IsAmount(const QString& text) {
    return !text.isEmpty() && (text.front().isDigit() || text.startsWith(u'-')) &&
           text.back() != u'.';
}

bool SpeaksForItself(const QModelIndex& cell) {
    const QString text = cell.data().toString();
    return cell.data(Qt::AccessibleTextRole).toString().size() > text.size() || text == u"Ano" ||
           text == u"Ne";
}

void CheckColumn(const QTreeView& view, int column) {
    const QList<QModelIndex> cells = CellsOf(view, column);
    // In a tree the depth says what its pictures do.
    const bool byPicture = qobject_cast<const ReportList*>(&view) && Differ(cells, PictureOf);
    const bool byColour = Differ(cells, ColourOf);
    for (const QModelIndex& cell : cells) {
        const bool coloured = byColour && ColourOf(cell) != qRgb(0, 0, 0) &&
                              !IsAmount(cell.data().toString().trimmed());
        const bool pictured = byPicture && !cell.data(Qt::DecorationRole).value<QIcon>().isNull();
        EXPECT_TRUE((!coloured && !pictured) || SpeaksForItself(cell))
            << view.objectName().toStdString() << ": \"" << cell.data().toString().toStdString()
            << "\" in column " << column << " speaks by its look alone";
    }
}

} // namespace

void CheckSpokenCells(const QWidget& window) {
    for (const QTreeView* view : window.findChildren<QTreeView*>())
        if (view->isVisible() && view->window() == &window && view->model())
            for (int column = 0; column < view->model()->columnCount(); ++column)
                CheckColumn(*view, column);
}

} // namespace lorvo::test
