#pragma once
// The boxes of a show's fees: a row per class and dog position, a column per closing, or in their
// place the simple grid for prices that don't depend on the class.

#include "store/vystavy.h"

#include <QStackedWidget>
#include <array>

class QGridLayout;
class QLineEdit;

namespace lorvo {

class FeeGrid : public QStackedWidget {
    Q_OBJECT
  public:
    explicit FeeGrid(QWidget* parent);

    /// Fills the class rows; Null and what is no number show as 0.
    void SetFees(const FeeRow& fees);
    /// Texts of the class rows, blanks around cut, in the order of FeeColumns.
    std::array<QString, kFeeColumns> Texts() const;
    /// What a clerk calls the box that a fee column comes from.
    QString BoxCaption(int feeColumn) const;

    /// Shows the simple grid or the class rows; copies nothing.
    void ShowSimple(bool simple);
    void CopyFirstClassToSimple();
    /// Writes the four simple prices over all class rows.
    void SpreadSimple();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* MakeClassRows();
    QWidget* MakeSimpleRows();
    void AddRow(QGridLayout& grid, int slot, const QString& caption);
    QLineEdit* MakeBox(const char* array, int slot);

    // One box per slot and closing: 0 to 17 the class rows, 18 and 19 the simple grid.
    static constexpr int kSlots = 20;
    std::array<QLineEdit*, kSlots> txtPrice1{};
    std::array<QLineEdit*, kSlots> txtPrice2{};
    QWidget* Picture1;
};

} // namespace lorvo
