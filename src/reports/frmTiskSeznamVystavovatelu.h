#pragma once
// The window that puts the exhibitor list out.

#include "reports/export_window.h"

namespace lorvo {

class frmTiskSeznamVystavovatelu : public ExportWindow {
    Q_OBJECT
  public:
    explicit frmTiskSeznamVystavovatelu(QWidget* parent);

  protected:
    void TypeDocument(WordProcessor& word) override;
    void AppendRows(QByteArray& output, const ReportTemplate& pattern) override;
};

} // namespace lorvo
