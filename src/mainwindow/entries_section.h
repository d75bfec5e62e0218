#pragma once
// The section of the dog panel with shows, competitions and money.

#include "mainwindow/collapsible_frame.h"
#include "office/cards/dog_card.h"

class QLabel;

namespace lorvo {

class LinkLabel;
class ReportList;

class EntriesSection : public CollapsibleFrame {
    Q_OBJECT
  public:
    explicit EntriesSection(QWidget* parent);

    void ShowCard(const DogCard& card);

  Q_SIGNALS:
    /// The clerk ticked or unticked a show or competition; `lines` are as they came out by the
    /// rules, and the list shows them so.
    void EntriesTicked(const lorvo::CheckLines& lines);
    void NewPaymentClicked();
    void PaymentsClicked();

  private:
    QLayout* Values();
    QLayout* Links();
    void Tick(int position);

    CheckLines lines_;
    QLabel* closing_;
    QLabel* firstDog_;
    QLabel* price_;
    QLabel* paid_;
    QLabel* balance_;
    QLabel* balanceWord_;
    ReportList* lvwSouteze;
    LinkLabel* lblNovaPlatba;
    LinkLabel* lblSeznamPlateb;
};

} // namespace lorvo
