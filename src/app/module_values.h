#pragma once
// The values that live for the whole run and that any window reads or writes: flags back to the
// main window, what is being worked on, options, and the tables of constants.

#include "platform/values/date_value.h"

#include <QString>
#include <array>
#include <cstdint>

namespace lorvo {

/// The breed with a class list of its own: the German shepherd.
inline constexpr int kSpecialBreedID = 949;

/// Slots of each table of constants; the unused ones are empty.
inline constexpr int kTableSlots = 20;

using TextTable = std::array<QString, kTableSlots>;
using NumberTable = std::array<std::int16_t, kTableSlots>;

struct ModuleValues {
    // Flags back to the main window, read and cleared by its Activate or its return paths.
    bool BreedsDirty = false;
    bool TreeDirty = false;
    bool ListJumpedToDog = false;

    int PaymentsOwner = 0; ///< owner of a statement, 0 for the statement of one dog

    // What is being worked on.
    int CurrentDogID = 0;
    int CurrentOwner = 0;
    int SavedOwnerID = 0;
    bool IsAddingDog = false;
    int CurrentBreedID = 0;
    bool SpecialBreed = false; ///< the breed under work is kSpecialBreedID

    // Options.
    bool ShowClassesOn = false;
    bool RememberTreeOn = false;
    bool DogDetailInTree = false;
    bool LabelEditAllowed = false;

    QString MainCurrency; ///< abbreviation behind every amount
    DateValue LastPaymentDate;

    QString FindText;
    int FindStart = 1; ///< position in the tree, from 1, at which the next search begins

    // Tables of constants, filled at start-up.
    TextTable ClassNames;
    NumberTable ClassFrom{};
    NumberTable ClassTo{};
    TextTable SpecialClassNames;
    NumberTable SpecialClassFrom{};
    NumberTable SpecialClassTo{};
    TextTable DogSizes;
    TextTable CoatTypes;
    std::array<QString, 3> PaymentModes;
};

/// The module values of the running program or test.
ModuleValues& Module();

/// Fills the class tables, `DogSizes` and `CoatTypes`.
void FillConstantTables(ModuleValues& values);
/// Fills `PaymentModes`.
void FillPaymentModes(ModuleValues& values);

} // namespace lorvo
