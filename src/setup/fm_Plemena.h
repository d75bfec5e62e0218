#pragma once
// The breed register: which breeds the show uses, the user's own subgroups, rings and FCI groups.

#include "forms/form.h"

class QLabel;

namespace lorvo {

class BreedTree;
class CommandCollection;
struct BreedNode;

/// What the clerk did to the register.
struct RegisterResult {
    bool changed = false; ///< the main tree has to be built anew
    int jumpTo = 0;       ///< breed that the clerk wants to see in it, 0 for none
};

class fm_Plemena : public Form {
    Q_OBJECT
  public:
    explicit fm_Plemena(QWidget* parent);

    const RegisterResult& Result() const { return result_; }

  protected:
    void Load() override;

  private:
    void BuildControls();
    void LoadTree();
    void ShowStatus();
    void CarryOut(const QString& command);

    // Ticks.
    void Tick(int ID);
    /// Why the node can't be ticked or unticked as it now stands; empty when it can.
    [[nodiscard]] QString TickRefusal(const BreedNode& node, bool* tickAfterRefusal) const;

    // Commands.
    void AddSubgroup();
    void RenameSelected();
    void DeleteSelected();
    void ShowHelp();
    void OpenNaming(int ID);

    // Editing in place.
    void RefuseBaseBreed(const BreedNode& node, bool* cancel);
    void StoreTitle(BreedNode& node, const QString& text, bool* cancel);

    // The menu on a node; the number chosen carries its argument.
    void ShowMenu();
    void CarryOutMenu(BreedNode& node, int number);
    void AssignFci(BreedNode& node, int fci);
    void AssignRing(BreedNode& node, int kruhID);

    bool HideUnused = false;
    RegisterResult result_;
    CommandCollection* commands_;
    BreedTree* tvwPlemena;
    QLabel* status_;
};

} // namespace lorvo
