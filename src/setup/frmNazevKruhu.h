#pragma once
// The window that renames a ring.

#include "forms/form.h"

class QLineEdit;
class QPushButton;

namespace lorvo {

/// Works on the node selected in the main tree: OK writes the name to the node and the ring.
class frmNazevKruhu : public Form {
    Q_OBJECT
  public:
    explicit frmNazevKruhu(QWidget* parent);

  protected:
    void Load() override;

  private:
    void Store();

    QLineEdit* txtName;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};

} // namespace lorvo
