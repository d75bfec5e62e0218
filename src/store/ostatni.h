#pragma once
// Ostatni: one row of values of the whole show. Every routine raises StoreError when the store
// refuses.

#include "platform/values/date_value.h"

#include <optional>

namespace lorvo {

struct Ostatni {
    std::optional<DateValue> DatumVystavy; ///< nullopt when Null; the date value 0 means cleared
};

/// The first row; nullopt when the table is empty.
[[nodiscard]] std::optional<Ostatni> ShowWideValues();
/// Adds a row without a date.
void InsertEmptyShowWideValues();
/// Sets the date in the first row, which is added when the table is empty.
void SetShowDate(DateValue datumVystavy);
/// Sets the date in the first row to the date value 0. StoreError when the table is empty.
void ClearShowDate();

} // namespace lorvo
