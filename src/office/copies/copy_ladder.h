#pragma once
// Which copies of the database stay as they grow old. Pure rules.

#include "platform/values/date_value.h"

#include <QString>
#include <optional>
#include <vector>

namespace lorvo {

/// "data 2027-05-14 08.31.05.mdb"
QString CopyName(DateValue moment);
/// The moment of a copy's name; nullopt for any other name.
[[nodiscard]] std::optional<DateValue> MomentOfCopy(const QString& name);

struct AgedCopy {
    DateValue moment;
    int rows = 0; ///< what the copy holds
};

/// Positions of the copies that may go, of copies from the newest to the oldest. The last ten stay,
/// one of each day for two weeks, one of each month for a year; of a day or month the fullest, of
/// equal ones the newest. A copy that is fuller than all newer ones stays whatever its age: it is
/// what a clerk will look for when data has been lost. So does one ahead of `now`, without a place
/// among the ten: the clock was wrong when it was made, or is now.
std::vector<std::size_t> CopiesToDrop(const std::vector<AgedCopy>& copies, DateValue now);

} // namespace lorvo
