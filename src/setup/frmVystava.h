#pragma once
// The editor of one show: its name and its entry fees.

#include "forms/form.h"
#include "store/vystavy.h"

#include <array>
#include <optional>

class QCheckBox;
class QLineEdit;

namespace lorvo {

class FeeGrid;

class frmVystava : public Form {
    Q_OBJECT
  public:
    frmVystava(int vystavaID, QWidget* parent);

    /// The show's name when the show has been stored.
    const std::optional<QString>& Result() const { return stored_; }

  protected:
    void Load() override;

  private:
    void BuildControls();
    void ChooseGrid(bool byClass);
    void Store();
    void TellChoiceNotStored() const;
    /// The fees typed, an emptied box as 0. RangeError names the box whose text is no amount.
    std::array<Currency, kFeeColumns> Fees() const;

    int vystavaID_;
    std::optional<QString> stored_;
    bool Loading = false;

    QLineEdit* txtName;
    FeeGrid* fees_;
    QCheckBox* chkRozliseni;
};

} // namespace lorvo
