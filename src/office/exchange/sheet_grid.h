#pragma once
// The cells of a sheet while it is read, by rows and columns.

#include <QString>
#include <QStringList>
#include <map>
#include <vector>

namespace lorvo {

/// What a sheet of any office program may be as large as.
inline constexpr int kMostSheetRows = 1048576;
inline constexpr int kMostSheetColumns = 16384;

/// "B7" for column 1 and row 6: both are counted from 0.
QString CellName(int row, int column);

/// Raises PlatformError with the cell's name and what is wrong with it, in Czech.
[[noreturn]] void RefuseCell(int row, int column, const QString& fault);

/// Rows of texts; cells that nobody put are empty. PlatformError where a text stands beyond the
/// largest sheet, or where there are more than 20 million cells.
class SheetGrid {
  public:
    /// Puts a text into a cell; an empty text costs nothing.
    void Put(int row, int column, const QString& text);
    /// Puts the same row `count` times from `row` on, as far as the largest sheet goes.
    void PutRow(int row, int count, const QStringList& cells);

    /// The rows from the top, blank ones left out. The first is as wide as the widest, the others
    /// end with their last text. The grid is empty afterwards.
    [[nodiscard]] std::vector<QStringList> TakeRows();

  private:
    void Count(qsizetype cells);

    std::map<int, QStringList> rows_;
    qsizetype cells_ = 0;
};

} // namespace lorvo
