#pragma once
// The section of the dog panel that tells what the dog is and where it comes from.

#include "mainwindow/collapsible_frame.h"
#include "office/cards/dog_card.h"

class QLabel;

namespace lorvo {

class OriginSection : public CollapsibleFrame {
    Q_OBJECT
  public:
    explicit OriginSection(QWidget* parent);

    void ShowCard(const DogCard& card);

  private:
    void ShowNote(const QString& note);

    QLabel* breed_;
    QLabel* sex_;
    QLabel* birthDate_;
    QLabel* class_;
    QLabel* note_;
    QLabel* kennel_;
    QLabel* studBook_;
    QLabel* father_;
    QLabel* mother_;
    QLabel* breeder_;
};

} // namespace lorvo
