#pragma once
// The panel of a dog: everything known about it in sections that can be collapsed.

#include "office/cards/dog_card.h"

#include <QWidget>

class QScrollArea;

namespace lorvo {

class AwardsSection;
class EntriesSection;
class LinkLabel;
class OriginSection;
class OwnerSection;

class DogPanel : public QWidget {
    Q_OBJECT
  public:
    explicit DogPanel(QWidget* parent);

    void ShowCard(const DogCard& card);

    OwnerSection& Owner() const { return *fraMajitel; }
    EntriesSection& Entries() const { return *fraVystavy; }
    AwardsSection& AwardsList() const { return *fraOceneni; }

  Q_SIGNALS:
    void EditClicked();

  private:
    QScrollArea* Sections();

    LinkLabel* lblEdit;
    OriginSection* fraPuvod;
    OwnerSection* fraMajitel;
    EntriesSection* fraVystavy;
    AwardsSection* fraOceneni;
};

} // namespace lorvo
