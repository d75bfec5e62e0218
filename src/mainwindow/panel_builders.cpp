#include "mainwindow/panel_builders.h"

#include "forms/controls.h"
#include "forms/elided_label.h"
#include "forms/report_list.h"
#include "forms/wrapped_label.h"
#include "mainwindow/elided_link.h"
#include "mainwindow/line_label.h"
#include "mainwindow/pairs_layout.h"

#include <QApplication>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

/// What a column of values keeps however narrow the panel: room for a date.
int LeastValueWidth() {
    return QFontMetrics(Bold(QApplication::font())).horizontalAdvance(u"30.12.2000"_s);
}

/// What the picture of a line says.
QString IconWord(LineIcon icon) {
    switch (icon) {
    case LineIcon::Show:
        return u"výstava"_s;
    case LineIcon::Competition:
        return u"soutěž"_s;
    default:
        return {};
    }
}

ReportRow RowOf(const CheckLine& line) {
    ReportRow row;
    row.key = line.key;
    row.tag = line.tag;
    row.checked = line.checked;
    row.cells.push_back(
        {line.text, std::nullopt, static_cast<int>(line.icon) - 1, IconWord(line.icon)});
    for (const InkedText& text : line.subItems)
        row.cells.push_back({text.text, text.colour, -1, text.spoken});
    return row;
}

bool HasRowsOf(const ReportList& list, const CheckLines& lines) {
    if (list.RowCount() != std::ssize(lines))
        return false;
    int position = 0;
    return std::ranges::all_of(
        lines, [&](const CheckLine& line) { return list.Row(position++).key == line.key; });
}

/// Changes what differs, so that what the clerk has selected and scrolled to stays.
void UpdateRow(ReportList& list, int position, const ReportRow& wanted) {
    for (std::size_t i = 0; i < wanted.cells.size(); ++i) {
        const int column = static_cast<int>(i);
        const ReportCell shown = list.Row(position).cells[i];
        if (shown.text != wanted.cells[i].text)
            list.SetCell(position, column, wanted.cells[i].text);
        if (shown.colour != wanted.cells[i].colour)
            list.SetCellColour(position, column, wanted.cells[i].colour);
    }
    if (list.Row(position).checked != wanted.checked)
        list.SetChecked(position, wanted.checked);
}

} // namespace

QLabel* PanelHeading(const QString& text, QWidget* panel) {
    auto* heading = new ElidedLabel(panel);
    heading->setText(text);
    heading->setFont(Bold(heading->font()));
    panel->setAccessibleName(text);
    return heading;
}

QStringList SectionCaptions() {
    return {u"Datum narození:"_s, u"Chovatelská stanice:"_s};
}

void TakeGivenWidth(QLabel& label) {
    QSizePolicy policy = label.sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    label.setSizePolicy(policy);
}

ValueGrid::ValueGrid(int pairs, const QStringList& widestCaptions) {
    std::vector<int> captions;
    for (int pair = 0; pair < pairs; ++pair)
        captions.push_back(QLabel(widestCaptions.value(pair)).sizeHint().width());
    pairs_ = new PairsLayout(std::move(captions), LeastValueWidth());
}

QLayout* ValueGrid::Layout() const {
    return pairs_;
}

void ValueGrid::Add(int pair, const QString& caption, QWidget* value) {
    pairs_->AddLine(pair, new QLabel(caption), value, Qt::AlignTop);
}

ElidedLink* ValueGrid::AddLink(int pair, const QString& caption) {
    auto* link = new ElidedLink(nullptr);
    link->setAccessibleName(caption);
    link->setFont(Bold(link->font()));
    TakeGivenWidth(*link);
    pairs_->AddLine(pair, new QLabel(caption), link, Qt::AlignTop | Qt::AlignLeft);
    return link;
}

void ValueGrid::AddRow(int pair, QLayout* row) {
    pairs_->AddAcross(pair, row);
}

QLabel* ValueGrid::AddText(int pair, const QString& caption, const QString& name) {
    QLabel* value = Named(new WrappedLabel(nullptr), name);
    value->setAccessibleName(caption);
    value->setFont(Bold(value->font()));
    TakeGivenWidth(*value);
    Add(pair, caption, value);
    return value;
}

QLabel* ValueGrid::AddAmount(int pair, const QString& caption) {
    auto* value = new LineLabel(caption);
    value->setFont(Bold(value->font()));
    value->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    Add(pair, caption, value);
    return value;
}

void ShowText(QLabel& label, const InkedText& text) {
    label.setText(text.text);
    QPalette palette;
    if (text.colour)
        palette.setColor(label.foregroundRole(), *text.colour);
    label.setPalette(palette);
}

void ShowLines(ReportList& list, const CheckLines& lines) {
    if (HasRowsOf(list, lines)) {
        for (std::size_t i = 0; i < lines.size(); ++i)
            UpdateRow(list, static_cast<int>(i), RowOf(lines[i]));
        return;
    }
    std::vector<ReportRow> rows;
    rows.reserve(lines.size());
    for (const CheckLine& line : lines)
        rows.push_back(RowOf(line));
    list.SetRows(std::move(rows));
}

} // namespace lorvo
