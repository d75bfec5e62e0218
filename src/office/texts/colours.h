#pragma once
// The colours that carry a meaning, by what they mean.

#include "platform/values/money.h"

#include <QColor>
#include <optional>

namespace lorvo {

inline constexpr QColor kMaleColour(0, 0, 255);
inline constexpr QColor kFemaleColour(255, 0, 0);
inline constexpr QColor kNoteColour(255, 0, 0);
/// A price that counts nowhere: of a show or competition that the dog isn't entered in.
inline constexpr QColor kIdlePriceColour(190, 190, 190);

inline constexpr QColor kArrearsColour(255, 0, 0);
/// An overpayment is green, in each place a green of its own.
inline constexpr QColor kOverpaidOnDogCard(0, 192, 0);
inline constexpr QColor kOverpaidOnOwnerCard(0, 255, 0);
inline constexpr QColor kOverpaidInExhibitors(0, 180, 0);
inline constexpr QColor kOverpaidInDogList(0, 160, 0);

/// The sex of a dog as the colour of its name.
inline QColor SexColour(bool male) {
    return male ? kMaleColour : kFemaleColour;
}

/// A balance: red below 0, `overpaid` above, the window's own colour at 0.
inline std::optional<QColor> BalanceColour(Currency balance, QColor overpaid) {
    if (balance.IsZero())
        return std::nullopt;
    return balance.IsNegative() ? kArrearsColour : overpaid;
}

} // namespace lorvo
