#pragma once
// What the links, pictures and check lists of the dog panel and the owner panel do.

#include "office/cards/card_line.h"
#include "platform/message_boxes.h"

#include <QObject>

namespace lorvo {

class DogPanel;
class MainTree;
class NodePanels;
class OwnerNavigation;
class OwnerPanel;

class CardActions : public QObject {
    Q_OBJECT
  public:
    CardActions(MainTree& tree, NodePanels& panels, DogPanel& dogPanel, OwnerPanel& ownerPanel,
                OwnerNavigation& navigation);

  private:
    void ConnectDogPanel(DogPanel& panel);
    void ConnectOwnerPanel(OwnerPanel& panel);

    void EditDog();
    void ClickOwnerName(Qt::MouseButton button);
    void WriteEmail(const QString& address);
    void TakePayment();
    void ShowPaymentsOfDog();
    void WriteTickedEntries(const CheckLines& lines);
    void BackToDog();
    void ShowMessage(const QString& text, MessageIcon icon);

    MainTree& tree_;
    NodePanels& panels_;
    OwnerNavigation& navigation_;
};

} // namespace lorvo
