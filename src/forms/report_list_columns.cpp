// How wide the columns of a report list are: as their windows design them, wider where headings and
// amounts need it, as the clerk has drawn them. The last one fills what is left; where the list is
// too narrow for all, texts give way before a column leaves the screen.
#include "forms/report_list.h"
#include "forms/report_list_model.h"
#include "platform/failure_guard.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QStyle>
#include <algorithm>

namespace lorvo {

namespace {

/// Cells whose texts are measured: the longest in letters are the widest, or nearly.
constexpr int kMeasuredTexts = 8;
/// No content makes a column wider by itself, in average letters.
constexpr int kWidestContent = 40;

} // namespace

void ReportList::InstallColumns() {
    QHeaderView& columns = *header();
    columns.setSectionsMovable(true);
    columns.setFirstSectionMovable(true);
    columns.setStretchLastSection(false);
    columns.setSectionsClickable(true);
    columns_.assign(static_cast<std::size_t>(columns.count()), {columns.defaultSectionSize()});
    Connect(&columns, &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (!showingWidths_ && column < ColumnCount())
            DrawColumn(column, width);
    });
    Connect(&columns, &QHeaderView::sectionMoved, this, &ReportList::ShowColumnWidths);
}

void ReportList::DrawColumn(int column, int width) {
    columns_.at(static_cast<std::size_t>(column)) = {width, true};
    ShowColumnWidths();
}

void ReportList::SetColumnWidths(std::initializer_list<int> widths) {
    auto column = columns_.begin();
    for (const int width : widths)
        *column++ = {width};
    FitColumns();
}

int ReportList::ColumnWidth(int column) const {
    const Column& known = columns_.at(static_cast<std::size_t>(column));
    return known.width - known.givenWay;
}

/// Widens the columns that nobody has drawn to what their headings, and numbers below them, need.
void ReportList::FitColumns() {
    for (int column = 0; column < ColumnCount(); ++column) {
        Column& fitted = columns_.at(static_cast<std::size_t>(column));
        if (fitted.drawn)
            continue;
        fitted.width = std::max(fitted.width, HeadingWidth(column));
        if (model_->IsRightAligned(column))
            fitted.width = std::max(fitted.width, ContentWidth(column));
    }
    ShowColumnWidths();
}

void ReportList::FitToContents() {
    for (int column = 0; column < ColumnCount(); ++column)
        columns_.at(static_cast<std::size_t>(column)) = {
            std::max(HeadingWidth(column), ContentWidth(column))};
    ShowColumnWidths();
}

int ReportList::HeadingWidth(int column) const {
    int width = header()->sectionSizeHint(column);
    if (sorts_ && PictureOf(column) == HeaderPicture::None)
        width += style()->pixelMetric(QStyle::PM_SmallIconSize) +
                 style()->pixelMetric(QStyle::PM_HeaderMargin);
    return width;
}

int ReportList::ContentWidth(int column) const {
    int width = 0;
    for (const QString& text : model_->LongestTexts(column, kMeasuredTexts))
        width = std::max(width, fontMetrics().horizontalAdvance(text));
    const int air = 4 * style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + iconSize().width() / 2;
    return std::min(width + air, kWidestContent * fontMetrics().averageCharWidth());
}

/// What a column can do without: nothing that the clerk has drawn, no numbers, no heading.
int ReportList::SpareWidth(int column) const {
    const Column& asked = columns_.at(static_cast<std::size_t>(column));
    if (asked.drawn || model_->IsRightAligned(column))
        return 0;
    return std::max(0, asked.width - std::max(HeadingWidth(column), asked.width * 3 / 5));
}

/// Takes what the list lacks from the columns, of each in proportion to what it can do without. A
/// list that has to scroll nevertheless keeps its widths.
void ReportList::LetColumnsGiveWay() {
    std::vector<int> spare;
    int all = 0;
    int room = 0;
    for (int column = 0; column < ColumnCount(); ++column) {
        spare.push_back(SpareWidth(column));
        all += columns_.at(static_cast<std::size_t>(column)).width;
        room += spare.back();
    }
    const int lacking = all - viewport()->width();
    const bool helps = lacking > 0 && lacking <= room;
    auto asked = spare.cbegin();
    for (Column& column : columns_)
        column.givenWay = helps ? (lacking * *asked++ + room - 1) / room : 0;
}

/// Gives the columns their widths, the last one what is left if that is more.
void ReportList::ShowColumnWidths() {
    const QScopedValueRollback showing(showingWidths_, true);
    if (isVisible()) // before, the list's own width is not known
        LetColumnsGiveWay();
    QHeaderView& columns = *header();
    int left = viewport()->width();
    for (int place = 0; place < columns.count(); ++place) {
        const int column = columns.logicalIndex(place);
        int width = ColumnWidth(column);
        if (place == columns.count() - 1)
            width = std::max(width, left);
        columns.resizeSection(column, width);
        left -= width;
    }
}

void ReportList::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    ShowColumnWidths();
}

void ReportList::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    Guarded([this] { ShowColumnWidths(); });
}

void ReportList::InsertColumn(int column, const QString& heading) {
    columns_.insert(columns_.begin() + column, Column{header()->defaultSectionSize()});
    const QScopedValueRollback showing(showingWidths_, true);
    model_->InsertHeading(column, heading);
    FitColumns();
}

void ReportList::RemoveColumn(int column) {
    const QScopedValueRollback showing(showingWidths_, true);
    model_->RemoveHeading(column);
    columns_.erase(columns_.begin() + column);
    ShowColumnWidths();
}

} // namespace lorvo
