#pragma once
// The window that puts the judging sheets out.

#include "reports/export_window.h"

namespace lorvo {

class TextLineBoxes;

class frmTiskPosudku : public ExportWindow {
    Q_OBJECT
  public:
    explicit frmTiskPosudku(QWidget* parent);

  protected:
    void TypeDocument(WordProcessor& word) override;
    void AppendRows(QByteArray& output, const ReportTemplate& pattern) override;

  private:
    QString Title() const;

    TextLineBoxes* boxes_;
};

} // namespace lorvo
