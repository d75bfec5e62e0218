#include "manager/entry_line_rows.h"

#include <QColor>
#include <QStringList>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor kDoubtColour(176, 0, 0);
constexpr QColor kKnownColour(90, 90, 90);

QString StateText(const EntryLine& line) {
    switch (line.state) {
    case LineState::New:
        return u"nová"_s;
    case LineState::Known:
        return u"už je"_s;
    case LineState::Doubtful:
        return line.canBeTaken ? u"ke kontrole"_s : u"nelze převzít"_s;
    }
    return {};
}

std::optional<QColor> StateColour(const EntryLine& line) {
    if (line.state == LineState::New)
        return std::nullopt;
    return line.state == LineState::Known ? kKnownColour : kDoubtColour;
}

} // namespace

ReportRow RowOf(const EntryLine& line, const ColumnChoice& columns) {
    ReportRow row;
    row.key = u'C' + QString::number(line.number);
    row.checked = line.state == LineState::New;
    const std::optional<QColor> colour = StateColour(line);
    row.cells = {{QString::number(line.number)},
                 {StateText(line), colour},
                 {CellOf(line.cells, columns, EntryField::DogName)},
                 {CellOf(line.cells, columns, EntryField::Breed)},
                 {CellOf(line.cells, columns, EntryField::OwnerName)},
                 {line.reasons.join(u' '), colour}};
    return row;
}

EntryCounts CountEntries(const std::vector<EntryLine>& lines,
                         const std::function<bool(const EntryLine&)>& isTicked) {
    EntryCounts counts;
    for (const EntryLine& line : lines) {
        ++counts.all;
        counts.fresh += line.state == LineState::New ? 1 : 0;
        counts.known += line.state == LineState::Known ? 1 : 0;
        counts.ticked += isTicked(line) ? 1 : 0;
    }
    return counts;
}

QString CountsText(const EntryCounts& counts) {
    const auto part = [](const QString& word, int count) {
        return word + u' ' + QString::number(count);
    };
    return QStringList{part(u"Řádků:"_s, counts.all), part(u"nových:"_s, counts.fresh),
                       part(u"už přihlášených:"_s, counts.known),
                       part(u"ke kontrole:"_s, counts.all - counts.fresh - counts.known),
                       part(u"k převzetí zaškrtnuto:"_s, counts.ticked)}
        .join(u", "_s);
}

} // namespace lorvo
