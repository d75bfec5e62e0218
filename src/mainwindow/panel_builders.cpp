#include "mainwindow/panel_builders.h"

#include "forms/controls.h"
#include "forms/elided_label.h"
#include "forms/report_list.h"
#include "forms/wrapped_label.h"
#include "mainwindow/elided_link.h"

#include <QApplication>
#include <algorithm>
#include <memory>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Blank columns between the pairs of a grid.
constexpr int kPairGap = 24;
/// Columns of a pair: caption, value, gap.
constexpr int kColumns = 3;

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

QLabel* ValueGrid::Caption(const QString& text) const {
    auto* caption = new QLabel(text);
    caption->setWordWrap(captionsWrap_ && text.contains(u' '));
    return caption;
}

ValueGrid::ValueGrid(int pairs, const QStringList& widestCaptions)
    : grid_(new QGridLayout), nextRow_(static_cast<std::size_t>(pairs), 0),
      captionsWrap_(!widestCaptions.isEmpty()) {
    for (int pair = 0; pair < pairs; ++pair) {
        const std::unique_ptr<QLabel> widest(Caption(widestCaptions.value(pair)));
        grid_->setColumnMinimumWidth(pair * kColumns, widest->minimumSizeHint().width());
        grid_->addItem(new QSpacerItem(widest->sizeHint().width(), 0, QSizePolicy::Preferred), 0,
                       pair * kColumns);
        grid_->setColumnMinimumWidth(pair * kColumns + 1, LeastValueWidth());
        grid_->setColumnStretch(pair * kColumns + 1, 1);
        if (pair + 1 < pairs)
            grid_->setColumnMinimumWidth(pair * kColumns + 2, kPairGap);
    }
}

void ValueGrid::Place(int pair, const QString& caption, QWidget* value, Qt::Alignment alignment) {
    const int row = nextRow_[static_cast<std::size_t>(pair)]++;
    grid_->addWidget(Caption(caption), row, pair * kColumns, Qt::AlignTop);
    grid_->addWidget(value, row, pair * kColumns + 1, alignment);
}

void ValueGrid::Add(int pair, const QString& caption, QWidget* value) {
    Place(pair, caption, value, Qt::AlignTop);
}

LinkLabel* ValueGrid::AddLink(int pair, const QString& caption) {
    auto* link = new ElidedLink(nullptr);
    link->setAccessibleName(caption);
    link->setFont(Bold(link->font()));
    TakeGivenWidth(*link);
    Place(pair, caption, link, Qt::AlignTop | Qt::AlignLeft);
    return link;
}

void ValueGrid::AddRow(int pair, QLayout* row) {
    const int position = nextRow_[static_cast<std::size_t>(pair)]++;
    grid_->addLayout(row, position, pair * kColumns, 1, 2);
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
    QLabel* value = ValueLabel(caption, nullptr);
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
