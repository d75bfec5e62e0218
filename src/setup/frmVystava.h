#pragma once
// The editor of one show: its name and its entry fees.

#include "forms/form.h"
#include "store/vystavy.h"

#include <array>
#include <functional>

class QCheckBox;
class QLineEdit;

namespace lorvo {

class FeeGrid;

class frmVystava : public Form {
    Q_OBJECT
  public:
    /// `onStored` is told the show's name when it has been stored.
    frmVystava(int vystavaID, std::function<void(const QString&)> onStored, QWidget* parent);

  protected:
    void Load() override;

  private:
    void BuildControls();
    void ChooseGrid(bool byClass);
    void Store();
    /// The fees typed, an emptied box as 0. RangeError names the box whose text is no amount.
    std::array<Currency, kFeeColumns> Fees() const;
    void Refuse(const QString& text) const;

    int vystavaID_;
    std::function<void(const QString&)> onStored_;
    bool Loading = false;

    QLineEdit* txtName;
    FeeGrid* fees_;
    QCheckBox* chkRozliseni;
};

} // namespace lorvo
