#pragma once
// The window that puts the catalogue out.

#include "reports/export_window.h"

namespace lorvo {

class frmTiskKatalog : public ExportWindow {
    Q_OBJECT
  public:
    explicit frmTiskKatalog(QWidget* parent);

  protected:
    void TypeDocument(WordProcessor& word) override;

  private:
    QCheckBox* chkEX; ///< the catalogue after the show, with the dogs' awards
};

} // namespace lorvo
