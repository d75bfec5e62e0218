#pragma once
// The right side of the main window: title and picture of the node on show, the history buttons,
// and one panel in front of the others.

#include "mainwindow/owner_navigation.h"
#include "office/cards/dog_card.h"
#include "office/cards/owner_card.h"

#include <QWidget>
#include <memory>

class QStackedWidget;

namespace lorvo {

class BreedPanel;
class CardActions;
class ClassPanel;
class DogPanel;
class FciPanel;
class MainTree;
class NodeHistory;
class NodeTitle;
class OwnerPanel;
class RingPanel;
class StatusPanels;
class TreeNodes;
struct TreeNode;
struct ViewPreferences;

class NodePanels : public QWidget {
    Q_OBJECT
  public:
    /// `status` takes the path to the node on show. All but the parent outlive the panels.
    NodePanels(MainTree& tree, StatusPanels& status, NodeHistory& history,
               const ViewPreferences& look, QWidget* parent);
    ~NodePanels() override;

    /// Records the node in the history, marks the path to it in the tree and in the status bar, and
    /// shows its panel, with all figures read afresh. Raises what the store raises; what was filled
    /// before stays on show.
    void ShowNodeInfo(const TreeNode& node);
    /// The same by key; raises Error when there is no such node.
    void ShowNodeInfo(const QString& key);
    /// The node selected in the tree; nothing when none is.
    void ShowSelectedNode();
    /// Reads the panel in front afresh, without a trace in the history. Raises as ShowNodeInfo.
    void Refresh();
    /// The node whose panel was shown last, as long as that panel or the one of the dog's owner
    /// stands in front; null when none does.
    const TreeNode* NodeOnShow() const;
    /// The panel of an FCI group.
    void ShowFciGroup(int group);

    /// Brings the panel of the owner of the dog on show to the front and sets `CurrentOwner`.
    void ShowOwner();
    bool IsOwnerOnShow() const;
    /// Refills the dogs of the owner on the owner panel and sets `CurrentOwner`.
    void RefillOwnerDogs();

    /// The dog and the owner whose panels were filled last: what their links and lists act on.
    const DogCard& Dog() const { return dogCard_; }
    const OwnerCard& Owner() const { return ownerCard_; }
    /// Gives `CurrentDogID` and `CurrentOwner` back the values that the panels left there, whatever
    /// other windows have worked on meanwhile.
    void RestoreCurrent() const;

    void SetTitle(const QString& title);
    /// A null icon clears the picture.
    void SetPicture(const QIcon& icon);
    /// Takes in a panel of the main window's own, not in front.
    /// A panel scrolls where its place is too low for it.
    void AddPanel(QWidget* panel);
    void BringToFront(QWidget* panel);
    void HidePanels();

  private:
    /// What `CurrentDogID` and `CurrentOwner` are to hold.
    struct Current {
        int dog = 0;
        int owner = 0;
    };

    void ShowNode(const TreeNode& node);
    void ShowPanelOf(const TreeNode& node);
    void ShowRing(const TreeNode& ring);
    void ShowBreed(const TreeNode& breed);
    void ShowClass(const TreeNode& node);
    void ShowDog(int psiID);
    void MarkPath(const TreeNode& node);
    QWidget* InFront() const;
    void NoteCurrent();
    void Empty();
    void EmptyWithoutNode();
    void EditRing();

    MainTree& tree_;
    TreeNodes& nodes_;
    StatusPanels& status_;
    NodeHistory& history_;
    const ViewPreferences& look_;

    NodeTitle* title_;
    QStackedWidget* stack_;
    QWidget* nothing_; ///< in front when all panels are hidden
    RingPanel* picKruhInfo;
    BreedPanel* picPlemenoInfo;
    ClassPanel* picTridaInfo;
    FciPanel* picFCIInfo;
    DogPanel* picPesInfo;
    OwnerPanel* picMajitelInfo;

    DogCard dogCard_;
    OwnerCard ownerCard_;
    QString onShow_; ///< key of the node shown last, empty for none
    Current current_;
    std::unique_ptr<OwnerNavigation> navigation_;
    std::unique_ptr<CardActions> actions_;
};

} // namespace lorvo
