#pragma once
// What the links, pictures and check lists of the dog panel and the owner panel do.

#include "office/cards/card_line.h"

#include <QObject>

namespace lorvo {

class DogPanel;
class MainTree;
class NodePanels;
class OwnerNavigation;
class OwnerPanel;
struct TreeNode;

class CardActions : public QObject {
    Q_OBJECT
  public:
    CardActions(MainTree& tree, NodePanels& panels, DogPanel& dogPanel, OwnerPanel& ownerPanel,
                OwnerNavigation& navigation);

  private:
    void ConnectDogPanel(DogPanel& panel);
    void ConnectOwnerPanel(OwnerPanel& panel);

    /// Makes the dog on the panel the one worked on; null when the tree has it no longer.
    const TreeNode* TakeDogOnShow();
    void EditDog();
    void EditOwner();
    void ShowOwnersDogs();
    void ClickOwnerName(Qt::MouseButton button);
    void WriteEmail(const QString& address);
    void TakePayment();
    void ShowPaymentsOfDog();
    void ShowPaymentsOfOwner();
    void WriteTickedEntries(const CheckLines& lines);
    void WriteTickedAwards(const CheckLines& awards);
    void BackToDog();

    MainTree& tree_;
    NodePanels& panels_;
    OwnerNavigation& navigation_;
};

} // namespace lorvo
