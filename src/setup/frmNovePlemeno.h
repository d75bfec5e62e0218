#pragma once
// Names one of the user's own breeds.

#include "forms/form.h"

#include <functional>

class QLineEdit;

namespace lorvo {

/// Edits the breed `Module().EditedBreedID`.
class frmNovePlemeno : public Form {
    Q_OBJECT
  public:
    /// `onStored` is told the breed's new title.
    frmNovePlemeno(std::function<void(const QString&)> onStored, QWidget* parent);

  protected:
    void Load() override;

  private:
    void Store();

    std::function<void(const QString&)> onStored_;
    QLineEdit* txtPlemenoName;
    QLineEdit* txtPlemenoNameOrig;
};

} // namespace lorvo
