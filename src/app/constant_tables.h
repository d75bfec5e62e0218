#pragma once
// Tables that never change.

#include <QString>
#include <array>
#include <cstdint>

namespace lorvo {

/// The breed with a class list of its own: the German shepherd.
inline constexpr int kSpecialBreedID = 949;

/// Slots of each table; the unused ones are empty.
inline constexpr int kTableSlots = 20;

using TextTable = std::array<QString, kTableSlots>;
using NumberTable = std::array<std::int16_t, kTableSlots>;

struct ConstantTables {
    // By class number minus 1; ages in whole months, 999 for no upper limit.
    TextTable ClassNames; ///< as delivered; the run's own names are a module value
    NumberTable ClassFrom{};
    NumberTable ClassTo{};
    TextTable SpecialClassNames; ///< of the breed kSpecialBreedID
    NumberTable SpecialClassFrom{};
    NumberTable SpecialClassTo{};

    TextTable DogSizes;
    TextTable CoatTypes;
    std::array<QString, 3> PaymentModes; ///< by `Uhrady.Uhrada`
};

const ConstantTables& Tables();

} // namespace lorvo
