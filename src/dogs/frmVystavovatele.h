#pragma once
// The list of exhibitors: all owners with what they owe and have paid.

#include "forms/form.h"

class QLabel;
class QProgressBar;

namespace lorvo {

class ReportList;
class TotalsBar;

class frmVystavovatele : public Form {
    Q_OBJECT
  public:
    explicit frmVystavovatele(QWidget* parent);

  protected:
    /// StoreError when a dog's fee can't be read.
    void Load() override;

  private:
    void LayOut();
    void ConnectList();
    void FillList();
    void EditOwner(int position);
    void DeleteSelected();
    void ShowMenu(int position);
    void ShowPayments(int position);

    ReportList* lvwList;
    TotalsBar* sb;
    QLabel* Label1;
    QProgressBar* pbMain;
};

} // namespace lorvo
