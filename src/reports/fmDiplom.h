#pragma once
// The window that puts the diplomas out.

#include "reports/export_window.h"

namespace lorvo {

class fmDiplom : public ExportWindow {
    Q_OBJECT
  public:
    explicit fmDiplom(QWidget* parent);

  protected:
    void TypeDocument(WordProcessor& word) override;
    void AppendRows(QByteArray& output, const ReportTemplate& pattern) override;
};

} // namespace lorvo
