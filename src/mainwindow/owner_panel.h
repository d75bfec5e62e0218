#pragma once
// The panel of an owner: address, the list of his dogs with fees and payments, the totals.

#include "office/cards/owner_card.h"

#include <QWidget>

class QLabel;

namespace lorvo {

class LinkLabel;
class ReportList;

class OwnerPanel : public QWidget {
    Q_OBJECT
  public:
    explicit OwnerPanel(QWidget* parent);

    void ShowCard(const OwnerCard& card);

  Q_SIGNALS:
    void EmailClicked(const QString& address);
    void PaymentsClicked();
    void BackClicked();
    /// A line of the list was clicked once; `key` is the dog's node.
    void DogClicked(const QString& key);
    void DogDoubleClicked();

  private:
    QLayout* Lines();
    QLayout* Totals();
    void ShowDogs(const std::vector<OwnerDogLine>& dogs);

    QLabel* name_;
    QLabel* street_;
    QLabel* postCode_;
    QLabel* town_;
    QLabel* phone_;
    LinkLabel* email_;
    ReportList* lvwDogs;
    QLabel* Label19; ///< number of dogs
    QLabel* price_;
    QLabel* paid_;
    QLabel* balance_;
    LinkLabel* lblSeznamPlateb1;
    LinkLabel* Label21; ///< back to the dog
};

} // namespace lorvo
