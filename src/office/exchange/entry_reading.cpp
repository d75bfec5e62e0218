#include "office/exchange/entry_reading.h"

#include <QRegularExpression>

namespace lorvo {

using namespace Qt::StringLiterals;

QString EntryReading::Text(EntryField field) const {
    QString text = CellOf(row, columns, field);
    for (QChar& letter : text)
        if (letter.category() == QChar::Other_Control)
            letter = u' ';
    return text.simplified();
}

QString EntryReading::Text(EntryField field, int width) {
    QString text = Text(field);
    if (text.size() > width)
        Refuse(FieldHeading(field) + u": text je delší než "_s + QString::number(width) +
               u" znaků."_s);
    return text;
}

void EntryReading::Doubt(const QString& reason) {
    line.state = LineState::Doubtful;
    line.reasons << reason;
}

void EntryReading::Refuse(const QString& reason) {
    Doubt(reason);
    line.canBeTaken = false;
}

QString InQuotes(const QString& text) {
    return u'„' + text + u'“';
}

std::optional<DateValue> DayFromCell(const QString& text, DateValue today, YearWindow window) {
    // A spreadsheet counts days; behind the point stands the time of day.
    static const QRegularExpression count(u"^(\\d{5})(\\.\\d+)?$"_s);
    if (const auto match = count.match(text); match.hasMatch())
        return DateValue::FromDays(match.captured(1).toInt());
    return DateFromText(text.toStdString(), DateOrder::DayFirst, today, window);
}

} // namespace lorvo
