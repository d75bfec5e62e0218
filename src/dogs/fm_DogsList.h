#pragma once
// The dog list: every dog with its show, fees, competitions, awards and balance.

#include "forms/form.h"

namespace lorvo {

class CommandCollection;
class ReportList;
class TotalsBar;

/// A dog whose breed or owner is missing is counted below the list and not shown in it.
class fm_DogsList : public Form {
    Q_OBJECT
  public:
    explicit fm_DogsList(QWidget* parent);

    /// Whether the clerk has jumped to a dog, which is selected in the tree then.
    bool JumpedToDog() const { return jumpedToDog_; }

  protected:
    /// StoreError when what a dog owes can't be read.
    void Load() override;

  private:
    void LayOut();
    void FillList();
    void JumpToDog(int position);
    void ShowAwardsMenu(int position);
    void ToggleAward(int position, int oceneniID);

    CommandCollection* commands_;
    ReportList* lvwList;
    TotalsBar* sbDogs;
    bool jumpedToDog_ = false;
};

} // namespace lorvo
