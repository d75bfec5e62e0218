#pragma once
// The editor of one currency.

#include "forms/form.h"

#include <array>
#include <functional>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace lorvo {

/// "Kurs (x Kč/ 1 jednotka)" with the main currency in it.
QString CurrencyRateCaption();

/// Edits one currency, or adds a new one.
class frmEditCurrency : public Form {
    Q_OBJECT
  public:
    /// `menaID` 0 adds. `onStored` is told, before other currencies lose their main mark, whether
    /// this one is marked.
    frmEditCurrency(int menaID, std::function<void(bool main)> onStored, QWidget* parent);

  protected:
    void Load() override;

  private:
    void BuildControls();
    void LoadCurrency();
    void PrepareNewCurrency();
    void FollowMainMark(bool main);
    void EnableOK();
    void Store();

    int menaID_;
    std::function<void(bool)> onStored_;
    std::array<QLineEdit*, 3> txtEditCurr{};
    QCheckBox* chkMainCurr = nullptr;
    QPushButton* cmdOK = nullptr;
};

} // namespace lorvo
