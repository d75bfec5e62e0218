#pragma once
// The section of the dog panel with the dog's owner, and the way to the owner's other dogs.

#include "mainwindow/collapsible_frame.h"
#include "office/cards/dog_card.h"

class QLabel;
class QToolButton;

namespace lorvo {

class ElidedLink;
class LinkLabel;

class OwnerSection : public CollapsibleFrame {
    Q_OBJECT
  public:
    explicit OwnerSection(QWidget* parent);

    void ShowCard(const DogCard& card);

  Q_SIGNALS:
    void OwnerClicked(Qt::MouseButton button);
    void EmailClicked(const QString& address);
    /// The neighbour's node is to be shown.
    void NeighbourClicked(const QString& key);
    void DogListClicked();
    void EditOwnerClicked();

  private:
    QLayout* Lines();
    QLayout* Pictures();
    void ShowOwnerName(const QString& name);

    ElidedLink* name_;
    QLabel* street_;
    QLabel* postCode_;
    QLabel* town_;
    QLabel* country_;
    QLabel* phone_;
    LinkLabel* email_;
    QToolButton* picPrev;
    QToolButton* picNext;
    QToolButton* picList;
    QToolButton* picEditMajitele;
    QString previousKey_;
    QString nextKey_;
};

} // namespace lorvo
