#pragma once
// Captions and values in columns, as many side by side as there is room for.

#include <QLayout>
#include <QSize>
#include <optional>
#include <vector>

namespace lorvo {

/// Columns of lines of caption and value. They stand side by side, line beside line and the values
/// equally wide; where the place is too narrow for that, one below the other.
class PairsLayout : public QLayout {
    Q_OBJECT
  public:
    /// A caption takes at least as much as its column's in `leastCaptions`, a value `leastValue`,
    /// or half as much again where columns stand side by side.
    PairsLayout(std::vector<int> leastCaptions, int leastValue);
    ~PairsLayout() override;

    /// The next line of a column.
    void AddLine(int column, QWidget* caption, QWidget* value, Qt::Alignment valueAlignment);
    /// The next line of a column, across caption and value.
    void AddAcross(int column, QLayout* row);

    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    void invalidate() override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    void setGeometry(const QRect& place) override;

  protected:
    /// Lines come by the routines above alone.
    void addItem(QLayoutItem*) override {}

  private:
    enum class Part { Caption, Value, Across };
    struct Cell {
        QLayoutItem* item;
        int column;
        int line;
        Part part;
    };

    int Columns() const { return static_cast<int>(leastCaptions_.size()); }
    /// What the cells ask for, in the widths of columns; measured once until one asks for other.
    struct Widths {
        std::vector<int> captions;
        std::vector<int> values; ///< the least
        std::vector<int> least;  ///< of whole columns
        std::vector<int> beside; ///< of columns that have another beside them
        int wide = 0;            ///< of all columns side by side
    };
    const Widths& Measured() const;
    Widths Measure() const;
    /// Where each column begins and ends, in a place of that width.
    std::vector<QRect> ColumnsWithin(int width) const;
    /// Lays the cells out from that corner, or only reckons; returns the height.
    int LayOut(QPoint corner, int width, bool reallyPlace) const;
    int LayOutLine(const std::vector<QRect>& columns, QPoint corner, int line, bool reallyPlace,
                   std::optional<int> onlyColumn) const;
    static int HeightIn(const Cell& cell, int width);
    QRect PlaceOf(const Cell& cell, const QRect& column) const;

    std::vector<int> leastCaptions_;
    int leastValue_;
    std::vector<Cell> cells_;
    std::vector<int> lines_; ///< of each column
    int width_ = 0;          ///< of the last place
    mutable std::optional<Widths> widths_;
    mutable QSize reckoned_; ///< the last width asked for and its height
};

} // namespace lorvo
