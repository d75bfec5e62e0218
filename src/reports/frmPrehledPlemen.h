#pragma once
// The window that puts the breed overview out.

#include "forms/form.h"
#include "platform/word_processor.h"

class QLineEdit;
class QPushButton;

namespace lorvo {

class frmPrehledPlemen : public Form {
    Q_OBJECT
  public:
    explicit frmPrehledPlemen(QWidget* parent);

  private:
    /// Puts the overview out and closes; a message where that fails.
    void Print();
    ShownDocument PutOut() const;

    QLineEdit* txtTitle;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};

} // namespace lorvo
