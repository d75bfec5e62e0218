#pragma once
// The few values that several windows must see. They live for the whole run; each names its
// writers, and whatever one window alone needs is handed to its constructor instead.

#include "app/constant_tables.h"
#include "platform/values/date_value.h"

#include <QString>

namespace lorvo {

struct ModuleValues {
    // Flags back to the main window, which reads and clears them when it comes to the front again.
    bool BreedsDirty = false; ///< fm_Plemena, fm_classes: the tree's breeds have changed
    bool TreeDirty = false;   ///< fm_Settings, frmCisteniDB: the tree has changed its shape

    int PaymentsOwner = 0; ///< links and lists of owners: owner of a statement, 0 for one dog's

    // What is being worked on: the panels of the main window, and whoever opens a window about
    // another dog or owner.
    int CurrentDogID = 0;
    int CurrentOwner = 0;
    /// Tree commands: the breed of the node that opened the dog editor last.
    int CurrentBreedID = 0;

    QString MainCurrency;      ///< start-up, currencies: abbreviation behind every amount
    DateValue LastPaymentDate; ///< frmPlatba: what the next payment offers

    TextTable ClassNames = Tables().ClassNames; ///< fm_classes renames them for the run
};

/// The module values of the running program or test.
ModuleValues& Module();

} // namespace lorvo
