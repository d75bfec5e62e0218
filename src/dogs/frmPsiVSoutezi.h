#pragma once
// The dogs entered in one competition. Entries are made on the dog panel: nothing fills the lists
// of this window, so that its OK empties the competition.

#include "forms/form.h"

#include <QHash>

class QStandardItem;
class QStandardItemModel;
class QTreeView;
class QWidget;

namespace lorvo {

class ReportList;

class frmPsiVSoutezi : public Form {
    Q_OBJECT
  public:
    frmPsiVSoutezi(int soutezID, QWidget* parent);

  protected:
    /// StoreError when the competition is gone.
    void Load() override;

  private:
    void BuildControls();
    QWidget* MakeSecondDogPanel();
    /// Bitches of the breeder of the dog clicked: those that can make a pair with it.
    void ListPartners(int position);
    /// One partner alone; it is noted for the dog selected.
    void ChoosePartner(int position);
    void PassCheck(QStandardItem& changed);
    void Store();

    int soutezID_;
    QTreeView* tvwDogs;
    QStandardItemModel* dogs_;
    ReportList* lvwDogs1;
    QWidget* picSecondDog;
    ReportList* lvwDogs2;
    QHash<QString, int> partners_; ///< ID of the second dog by the first one's tag
};

} // namespace lorvo
