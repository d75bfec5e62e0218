#pragma once
// The overview of all payments of the show.

#include "forms/form.h"

namespace lorvo {

class ReportList;

/// Lists the payments whose dog and owner exist and lets the clerk mark them as printed or not.
class frmPrehledPlateb : public Form {
    Q_OBJECT
  public:
    explicit frmPrehledPlateb(QWidget* parent);

  protected:
    /// StoreError when a payment's currency is gone.
    void Load() override;

  private:
    void ShowMenu();
    void MarkSelected(bool printed);

    ReportList* lvwUhrady;
};

} // namespace lorvo
