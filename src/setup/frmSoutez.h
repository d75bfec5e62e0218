#pragma once
// The editor of one competition.

#include "forms/form.h"

#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lorvo {

struct Souteze;

/// Edits one competition, or adds a new one.
class frmSoutez : public Form {
    Q_OBJECT
  public:
    /// `soutezID` 0 adds.
    frmSoutez(int soutezID, QWidget* parent);

  protected:
    void Load() override;

  private:
    void BuildControls();
    void LoadCompetition();
    void EnableOK();
    void Store();
    /// What the boxes say. RangeError when the price is no amount.
    Souteze Competition() const;

    int soutezID_;
    std::array<QLineEdit*, 4> txtNazev{};
    QCheckBox* chkPairs = nullptr;
    QLabel* lblErr = nullptr;
    QPushButton* cmdOK = nullptr;
};

} // namespace lorvo
