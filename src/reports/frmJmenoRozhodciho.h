#pragma once
// The window that names the judge of a ring.

#include "forms/form.h"

class QLineEdit;
class QPushButton;

namespace lorvo {

/// Works on the ring selected in the main tree; without a selected node it changes nothing.
class frmJmenoRozhodciho : public Form {
    Q_OBJECT
  public:
    explicit frmJmenoRozhodciho(QWidget* parent);

  protected:
    void Load() override;

  private:
    void Store();

    QLineEdit* txtRozhodci;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};

} // namespace lorvo
