#include "office/exchange/list_table.h"

namespace lorvo {

namespace {

QString DayText(DateValue day) {
    return QString::number(day.Day()) + u'.' + QString::number(day.Month()) + u'.' +
           QString::number(day.Year());
}

struct ToText {
    QString operator()(std::monostate) const { return {}; }
    QString operator()(const QString& text) const { return text; }
    QString operator()(int count) const { return QString::number(count); }
    QString operator()(Currency amount) const {
        return QString::fromStdString(amount.ToPlainText(','));
    }
    QString operator()(DateValue day) const { return DayText(day); }
};

QStringList Texts(const TableRow& row) {
    QStringList texts;
    for (const TableCell& cell : row)
        texts << CellText(cell);
    return texts;
}

} // namespace

TableCell DayCell(const std::optional<DateValue>& day) {
    return day ? TableCell(*day) : TableCell();
}

QString CellText(const TableCell& cell) {
    return std::visit(ToText(), cell);
}

std::vector<QStringList> TextRows(const ListTable& table) {
    std::vector<QStringList> rows = {table.headings};
    for (const TableRow& row : table.rows)
        rows.push_back(Texts(row));
    if (!table.totals.empty())
        rows.push_back(Texts(table.totals));
    return rows;
}

} // namespace lorvo
