#pragma once
// The few values that several windows must see. They live for the whole run; each names its
// writers, and whatever one window alone needs is handed to its constructor instead.

#include "app/constant_tables.h"
#include "platform/values/date_value.h"

#include <QString>

namespace lorvo {

/// The breed with a class list of its own: the German shepherd.
inline constexpr int kSpecialBreedID = 949;

struct ModuleValues {
    // Flags back to the main window, which reads and clears them when it comes to the front again.
    bool BreedsDirty = false;     ///< fm_Plemena, fm_classes: the tree's breeds have changed
    bool TreeDirty = false;       ///< fm_Settings, frmCisteniDB: the tree has changed its shape
    bool ListJumpedToDog = false; ///< fm_DogsList: a dog of the list was jumped to

    int PaymentsOwner = 0; ///< links and lists of owners: owner of a statement, 0 for one dog's

    // What is being worked on: the panels of the main window, and whoever opens a window about
    // another dog or owner.
    int CurrentDogID = 0;
    int CurrentOwner = 0;
    int SavedOwnerID = 0;      ///< saving of a dog: the owner that it was stored with
    bool IsAddingDog = false;  ///< tree commands: fm_Dog adds a dog instead of editing one
    int CurrentBreedID = 0;    ///< tree commands: the breed of the dog in fm_Dog
    bool SpecialBreed = false; ///< panels, loader, fm_Dog: the breed at hand is kSpecialBreedID

    // Options: start-up and fm_Settings; the tree's menu for the detail.
    bool ShowClassesOn = false;
    bool RememberTreeOn = false;
    bool DogDetailInTree = false;
    bool LabelEditAllowed = false; ///< tree commands: the next edit in place may begin

    QString MainCurrency;      ///< start-up, currencies: abbreviation behind every amount
    DateValue LastPaymentDate; ///< frmPlatba: what the next payment offers

    QString FindText;  ///< frmFind
    int FindStart = 1; ///< search, Home: position in the tree, from 1, where the next search begins

    TextTable ClassNames = Tables().ClassNames; ///< fm_classes renames them for the run
};

/// The module values of the running program or test.
ModuleValues& Module();

} // namespace lorvo
