#pragma once
// The window that puts the entry confirmations out.

#include "reports/export_window.h"

#include <QStringList>

namespace lorvo {

class TextLineBoxes;

class frmTiskPozvanek : public ExportWindow {
    Q_OBJECT
  public:
    explicit frmTiskPozvanek(QWidget* parent);

  protected:
    void TypeDocument(WordProcessor& word) override;
    void AppendRows(QByteArray& output, const ReportTemplate& pattern) override;

  private:
    TextLineBoxes* boxes_;
    QStringList TextLines;
};

} // namespace lorvo
