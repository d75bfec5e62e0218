#pragma once
// The section of the dog panel with the awards.

#include "mainwindow/collapsible_frame.h"
#include "office/cards/dog_card.h"

namespace lorvo {

class ReportList;

class AwardsSection : public CollapsibleFrame {
    Q_OBJECT
  public:
    explicit AwardsSection(QWidget* parent);

    void ShowCard(const DogCard& card);

  Q_SIGNALS:
    /// The clerk ticked or unticked an award; `awards` are as they stand now.
    void AwardsTicked(const lorvo::CheckLines& awards);

  private:
    void Tick(int position);

    CheckLines awards_;
    ReportList* lvwOceneni;
};

} // namespace lorvo
