#pragma once
// The search in the main tree.

#include "forms/form.h"

class QLineEdit;
class QPushButton;

namespace lorvo {

class frmFind : public Form {
    Q_OBJECT
  public:
    explicit frmFind(QWidget* parent);

  protected:
    /// The search begins at the first node again.
    void Load() override;

  private:
    void Find();

    QLineEdit* txtFind;
    QPushButton* cdmOK;
    QPushButton* cmdCancel;
};

} // namespace lorvo
