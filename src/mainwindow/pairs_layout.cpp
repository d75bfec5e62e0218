#include "mainwindow/pairs_layout.h"

#include <QWidgetItem>
#include <algorithm>
#include <numeric>

namespace lorvo {

namespace {
/// Between columns that stand side by side.
constexpr int kColumnGap = 36;
} // namespace

PairsLayout::PairsLayout(std::vector<int> leastCaptions, int leastValue)
    : leastCaptions_(std::move(leastCaptions)), leastValue_(leastValue),
      lines_(leastCaptions_.size(), 0) {
    setContentsMargins({});
}

PairsLayout::~PairsLayout() {
    for (const Cell& cell : std::exchange(cells_, {}))
        delete cell.item;
}

void PairsLayout::AddLine(int column, QWidget* caption, QWidget* value,
                          Qt::Alignment valueAlignment) {
    const int line = lines_[static_cast<std::size_t>(column)]++;
    addChildWidget(caption);
    addChildWidget(value);
    auto* left = new QWidgetItem(caption);
    auto* right = new QWidgetItem(value);
    left->setAlignment(Qt::AlignTop);
    right->setAlignment(valueAlignment);
    cells_.push_back({left, column, line, Part::Caption});
    cells_.push_back({right, column, line, Part::Value});
}

void PairsLayout::AddAcross(int column, QLayout* row) {
    addChildLayout(row);
    cells_.push_back({row, column, lines_[static_cast<std::size_t>(column)]++, Part::Across});
}

int PairsLayout::count() const {
    return static_cast<int>(cells_.size());
}

QLayoutItem* PairsLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? cells_[static_cast<std::size_t>(index)].item : nullptr;
}

QLayoutItem* PairsLayout::takeAt(int index) {
    QLayoutItem* item = itemAt(index);
    if (item)
        cells_.erase(cells_.begin() + index);
    return item;
}

void PairsLayout::invalidate() {
    widths_.reset();
    reckoned_ = QSize();
    QLayout::invalidate();
}

const PairsLayout::Widths& PairsLayout::Measured() const {
    if (!widths_)
        widths_ = Measure();
    return *widths_;
}

PairsLayout::Widths PairsLayout::Measure() const {
    Widths widths{leastCaptions_,
                  std::vector<int>(leastCaptions_.size(), leastValue_),
                  std::vector<int>(leastCaptions_.size(), 0),
                  {},
                  (Columns() - 1) * kColumnGap};
    const auto raise = [](int& width, int least) {
        width = std::max(width, least);
    };
    for (const Cell& cell : cells_) {
        const auto column = static_cast<std::size_t>(cell.column);
        if (cell.part == Part::Caption)
            raise(widths.captions[column], cell.item->sizeHint().width());
        else
            raise(cell.part == Part::Value ? widths.values[column] : widths.least[column],
                  cell.item->minimumSize().width());
    }
    for (std::size_t column = 0; column < leastCaptions_.size(); ++column) {
        const int caption = widths.captions[column] + spacing();
        raise(widths.least[column], caption + widths.values[column]);
        widths.beside.push_back(std::max(widths.least[column], caption + leastValue_ * 3 / 2));
        widths.wide += widths.beside[column];
    }
    return widths;
}

QSize PairsLayout::sizeHint() const {
    const int width = Measured().wide;
    return {width, heightForWidth(std::max(width_, width))};
}

QSize PairsLayout::minimumSize() const {
    return {*std::ranges::max_element(Measured().least),
            heightForWidth(width_ > 0 ? width_ : Measured().wide)};
}

int PairsLayout::heightForWidth(int width) const {
    if (reckoned_.width() != width)
        reckoned_ = {width, LayOut({}, width, false)};
    return reckoned_.height();
}

void PairsLayout::setGeometry(const QRect& place) {
    QLayout::setGeometry(place);
    LayOut(place.topLeft(), place.width(), true);
    // Whoever doesn't ask for the height that a width takes must hear of the change.
    const bool otherHeight = width_ != place.width() &&
                             heightForWidth(place.width()) != heightForWidth(std::max(1, width_));
    width_ = place.width();
    if (otherHeight)
        update();
}

std::vector<QRect> PairsLayout::ColumnsWithin(int width) const {
    const Widths& widths = Measured();
    std::vector<QRect> columns;
    if (width < widths.wide) {
        columns.assign(leastCaptions_.size(), QRect(0, 0, width, 0));
        return columns;
    }
    const int captions =
        std::accumulate(widths.captions.begin(), widths.captions.end(), 0) + Columns() * spacing();
    const int value = (width - captions - (Columns() - 1) * kColumnGap) / Columns();
    int left = 0;
    int spare = width - widths.wide;
    for (std::size_t column = 0; column < leastCaptions_.size(); ++column) {
        const int least = widths.beside[column];
        const int wish = widths.captions[column] + spacing() + value;
        const int extra = std::clamp(wish - least, 0, spare);
        columns.emplace_back(left, 0, least + extra, 0);
        spare -= extra;
        left += least + extra + kColumnGap;
    }
    return columns;
}

int PairsLayout::LayOut(QPoint corner, int width, bool reallyPlace) const {
    const std::vector<QRect> columns = ColumnsWithin(width);
    const int top = corner.y();
    const auto addLine = [&](int line, std::optional<int> onlyColumn) {
        const int height = LayOutLine(columns, corner, line, reallyPlace, onlyColumn);
        corner.ry() += height + spacing();
    };
    if (width >= Measured().wide) {
        for (int line = 0; line < *std::ranges::max_element(lines_); ++line)
            addLine(line, std::nullopt);
    } else {
        for (int column = 0; column < Columns(); ++column)
            for (int line = 0; line < lines_[static_cast<std::size_t>(column)]; ++line)
                addLine(line, column);
    }
    return std::max(0, corner.y() - top - spacing());
}

int PairsLayout::LayOutLine(const std::vector<QRect>& columns, QPoint corner, int line,
                            bool reallyPlace, std::optional<int> onlyColumn) const {
    const auto belongs = [&](const Cell& cell) {
        return cell.line == line && cell.column == onlyColumn.value_or(cell.column);
    };
    int height = 0;
    for (const Cell& cell : cells_)
        if (belongs(cell)) {
            const QRect column = columns[static_cast<std::size_t>(cell.column)];
            height = std::max(height, HeightIn(cell, PlaceOf(cell, column).width()));
        }
    for (const Cell& cell : cells_)
        if (reallyPlace && belongs(cell)) {
            QRect place = PlaceOf(cell, columns[static_cast<std::size_t>(cell.column)]);
            place.setHeight(height);
            cell.item->setGeometry(place.translated(corner));
        }
    return height;
}

int PairsLayout::HeightIn(const Cell& cell, int width) {
    return cell.item->hasHeightForWidth() ? cell.item->heightForWidth(width)
                                          : cell.item->sizeHint().height();
}

QRect PairsLayout::PlaceOf(const Cell& cell, const QRect& column) const {
    const int caption = Measured().captions[static_cast<std::size_t>(cell.column)];
    if (cell.part == Part::Caption)
        return {column.left(), 0, caption, 0};
    const int left = cell.part == Part::Value ? caption + spacing() : 0;
    return {column.left() + left, 0, column.width() - left, 0};
}

} // namespace lorvo
