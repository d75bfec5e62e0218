#pragma once
// Takes judged entries into the show: all of them or, when anything fails, none.

#include "office/exchange/entry_line.h"
#include "platform/values/date_value.h"

#include <functional>
#include <vector>

namespace lorvo {

struct TakingReport {
    int dogs = 0;
    int newOwners = 0;
    int entries = 0; ///< in shows and competitions
    int payments = 0;
    Currency fees; ///< what the dogs taken owe, as the lists reckon it
    Currency paid;
};

/// Writes the lines that `IsTaken` picks in one go, by the rules of the dog editor: an owner's only
/// dog is his first one. Lines without canBeTaken are never taken. `today` is the date of payments.
/// Raises StoreError when the store refuses; the database is then as it was, as it is after a kill.
TakingReport TakeEntries(const std::vector<EntryLine>& lines,
                         const std::function<bool(const EntryLine&)>& IsTaken, DateValue today);

/// Headings and lines that were not taken, each with the reason behind its cells.
std::vector<QStringList> RestOfTable(const QStringList& headings,
                                     const std::vector<EntryLine>& lines,
                                     const std::function<bool(const EntryLine&)>& IsTaken);

} // namespace lorvo
