// The rows of a report list as text that a spreadsheet takes.
#include "forms/report_list.h"
#include "forms/report_list_model.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QRegularExpression>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// An amount without grouping and currency, which a sheet reckons with; any other text as it is.
QString SheetNumber(const QString& shown) {
    static const QRegularExpression amount(
        u"^\\s*([-+]?\\d[\\d\\s]*(?:[.,]\\d+)?)(?:\\s+[^\\d\\s]+)?\\s*$"_s);
    const QRegularExpressionMatch match = amount.match(shown);
    static const QRegularExpression blanks(u"\\s"_s);
    return match.hasMatch() ? match.captured(1).remove(blanks) : shown;
}

/// A sign that parts cells and rows in a sheet must not stand within one.
QString OneCell(QString text) {
    static const QRegularExpression parting(u"[\\t\\r\\n]+"_s);
    return text.replace(parting, u" "_s);
}

} // namespace

QString ReportList::CopiedCell(int position, int column) const {
    const QString text = CellText(position, column);
    return OneCell(model_->IsRightAligned(column) ? SheetNumber(text) : text);
}

/// One line of cells in the order in which the columns stand.
template<typename Cell> QString ReportList::CopiedLine(Cell cell) const {
    QStringList cells;
    for (int place = 0; place < ColumnCount(); ++place)
        cells << cell(header()->logicalIndex(place));
    return cells.join(u'\t') + u'\n';
}

void ReportList::CopyRows() const {
    QString text;
    const auto add = [&](int position) {
        text += CopiedLine([&](int column) { return CopiedCell(position, column); });
    };
    const std::vector<int> selected = SelectedRows();
    for (const int position : selected)
        add(position);
    if (selected.empty()) {
        text = CopiedLine([&](int column) {
            return OneCell(model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        });
        for (int position = 0; position < RowCount(); ++position)
            add(position);
    }
    QGuiApplication::clipboard()->setText(text);
}

} // namespace lorvo
