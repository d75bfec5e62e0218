#pragma once
// The editor of one competition.

#include "forms/form.h"

#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lorvo {

/// Edits the competition `Module().CurrentCompetitionID`; 0 adds a new one.
class frmSoutez : public Form {
    Q_OBJECT
  public:
    explicit frmSoutez(QWidget* parent);

  protected:
    void Load() override;

  private:
    void BuildControls();
    void LoadCompetition();
    void EnableOK();
    void Store();

    std::array<QLineEdit*, 4> txtNazev{};
    QCheckBox* chkPairs = nullptr;
    QLabel* lblErr = nullptr;
    QPushButton* cmdOK = nullptr;
};

} // namespace lorvo
