#pragma once
// What the show's data, and the tree, panels and history of the main window, must be after each
// step of a walk: worked out from the steps alone, by the plainest means.

#include "walk/node_list.h"

#include <QString>
#include <QStringList>
#include <deque>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace lorvo::test {

struct DeskDog {
    QString name;
    int breed = 0;
    int owner = 0;
    bool male = false;
    int trida = 0;
    bool firstClosing = true;
    bool firstDog = false;
    std::optional<int> number;
};

struct DeskBreed {
    QString name;
    int ring = 0;
    int fci = 0;
    bool own = false;
};

struct DeskOwner {
    QString name;
    QString street;
};

struct DeskPayment {
    int dog = 0;
    int units = 0; ///< whole units of the main currency
    bool printed = false;
};

/// What a panel shows: each text by its caption or name. Empty for no panel.
using PanelTexts = std::map<QString, QString>;

/// The rows of tables without an ID, in row order: a dog, and what it is tied to.
using DeskLinks = std::vector<std::pair<int, int>>;

class DeskModel {
  public:
    /// The show that a walk begins with; the tree has a level of classes or none.
    explicit DeskModel(bool withClasses);

    // The data.
    std::map<int, QString> rings;
    std::map<int, DeskBreed> breeds;
    std::map<int, DeskOwner> owners;
    std::map<int, DeskDog> dogs;
    std::map<int, DeskPayment> payments;
    std::map<int, QString> shows;
    std::map<int, int> competitions; ///< and their prices
    std::map<int, QString> awards;
    DeskLinks entries;
    DeskLinks inCompetitions;
    DeskLinks won;
    int lastRing, lastDog, lastPayment; ///< no ID is ever given twice

    static int Fee(int show, bool firstClosing, int column, bool firstDog);
    std::vector<int> DogsOfOwner(int owner) const; ///< by name
    std::vector<int> DogsOfBreed(int breed) const; ///< as the tree has them
    /// The owner's dogs whose names stand next before and next behind a dog's; 0 for none.
    std::pair<int, int> Neighbours(int dog) const;
    bool AnyNumbered() const;
    /// Whether the panel's link to the editor offers the dog's class: it offers those of the breed
    /// that the tree opened the editor for last.
    bool OffersClassOf(int dog) const;
    /// Nothing but what a clearing without ticks leaves.
    void Clear();

    // The main window.
    const bool withClasses;
    NodeList nodes;
    QString selected; ///< key of the node that the tree has selected
    QString onShow;   ///< key of the node that the panel is about
    bool ownerOnShow = false;
    PanelTexts panel;
    std::pair<int, int> neighboursOnShow; ///< as the panel found them when it was filled
    int currentDog = 0;                   ///< what the commands that mean no node act on
    int editorBreed = 0;                  ///< which the tree opened the dog editor for last

    /// As the tree is rebuilt: nothing is selected, and a panel goes with its node.
    void LoadTree();
    void ShowNodeInfo(const QString& key);
    void ShowOwner();
    void RefillOwner();
    /// What follows when a window has closed.
    void Return(bool dirty = false);
    /// A node has gone from the tree, which then selected another (empty for none).
    void NodeGone(const QString& nowSelected);
    void NumberDogs();
    /// Ticks of the dog on show as one more click leaves them: keys of the ticked lines.
    QStringList TicksAfter(const QString& clicked) const;
    void WriteEntries(int dog, const QStringList& ticked);
    void WriteAwards(int dog, const QStringList& ticked);

    // The history. Each is the key to go to, empty when it can't be gone to.
    QString BackTarget() const;
    QString ForwardTarget() const;
    void GoBack();
    void GoForward();
    bool backEnabled = false;
    bool forwardEnabled = false;

  private:
    void AddBreedNodes(int breed, const QString& name);
    void Show(const QString& key);
    PanelTexts RingTexts(int ring) const;
    PanelTexts BreedTexts(int breed) const;
    PanelTexts ClassTexts(const QString& key) const;
    PanelTexts DogTexts(int dog) const;
    PanelTexts OwnerTexts(int owner) const;
    QString HistoryEntry(int position) const;
    void Refresh();

    std::deque<QString> history_;
    int historyPosition_ = 0;
    int ownerShown_ = 0;
    int panelDog_ = 0;
};

/// The dog's owed and paid amounts by the rule of a panel.
struct DeskAccount {
    int fee = 0;
    int competitions = 0;
    int paid = 0;
    bool inShow = false;
};
/// `specialColumns`: the special breed's classes pay from columns of their own.
DeskAccount AccountOf(const DeskModel& desk, int dog, bool specialColumns);

/// "1 234,00 Kč", with the blank kept below 1000.
QString PatternAmount(int units);
QString PlainPrice(int units);

} // namespace lorvo::test
