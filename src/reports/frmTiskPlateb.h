#pragma once
// The window that puts the payment report out.

#include "reports/export_window.h"

namespace lorvo {

class frmTiskPlateb : public ExportWindow {
    Q_OBJECT
  public:
    explicit frmTiskPlateb(QWidget* parent);

  protected:
    void TypeDocument(WordProcessor& word) override;
    void AppendRows(QByteArray& output, const ReportTemplate& pattern) override;
    void Finished() override;
    bool QueryUnload() override;

  private:
    bool Exported = false; ///< a run has come to its end
};

} // namespace lorvo
