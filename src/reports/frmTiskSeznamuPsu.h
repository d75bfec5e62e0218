#pragma once
// The window that puts the dog lists out.

#include "office/papers/dog_lists.h"
#include "reports/export_window.h"

#include <QGroupBox>
#include <QRadioButton>
#include <array>

namespace lorvo {

class frmTiskSeznamuPsu : public ExportWindow {
    Q_OBJECT
  public:
    explicit frmTiskSeznamuPsu(QWidget* parent);

  protected:
    void TypeDocument(WordProcessor& word) override;
    /// Writes no bottom, and nothing at all after a stop; a broken template gives an empty page.
    void RunTemplate() override;

  private:
    QGroupBox* MakeOptions();
    QByteArray MakeOutput(const ReportTemplate& pattern);

    std::array<QRadioButton*, 4> optSortKey;
    DogGrouping SortKey = DogGrouping::ByBreed;
};

} // namespace lorvo
