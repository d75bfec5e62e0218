#pragma once
// The search in the main tree.

#include "forms/form.h"

class QLineEdit;
class QPushButton;

namespace lorvo {

struct TreeSearch;

class frmFind : public Form {
    Q_OBJECT
  public:
    /// Takes up the search, which outlives the window and can be gone on with after it.
    frmFind(TreeSearch& search, QWidget* parent);

  protected:
    /// The search begins at the first node again.
    void Load() override;

  private:
    void Find();

    TreeSearch& search_;
    QLineEdit* txtFind;
    QPushButton* cdmOK;
    QPushButton* cmdCancel;
};

} // namespace lorvo
