#pragma once
// Names one of the user's own breeds.

#include "forms/form.h"

#include <optional>

class QLineEdit;

namespace lorvo {

class frmNovePlemeno : public Form {
    Q_OBJECT
  public:
    frmNovePlemeno(int plemenoID, QWidget* parent);

    /// The breed's new title when it has been stored.
    const std::optional<QString>& Result() const { return title_; }

  protected:
    void Load() override;

  private:
    void Store();

    int plemenoID_;
    std::optional<QString> title_;
    QLineEdit* txtPlemenoName;
    QLineEdit* txtPlemenoNameOrig;
};

} // namespace lorvo
