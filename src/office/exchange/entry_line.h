#pragma once
// An entry that came as a row of a table, and what the office thinks of it.

#include "platform/values/money.h"
#include "store/majitele.h"
#include "store/psi.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace lorvo {

/// What a row of a table becomes when it is taken in.
struct NewEntry {
    Psi dog;        ///< MajitelID: the owner in the database; 0 for one who comes with the entries
    Majitele owner; ///< who comes with the entries; rows with an equal one share him
    std::vector<int> shows; ///< that the dog enters
    std::vector<int> competitions;
    std::optional<bool> firstDog; ///< nullopt: found out as the dog editor does
    Currency paid;                ///< beforehand, in the main currency
};

enum class LineState {
    New,      ///< to be taken
    Known,    ///< the dog is there already
    Doubtful, ///< the clerk has to look
};

struct EntryLine {
    int number = 0;    ///< in the table, from 1, the headings not counted
    QStringList cells; ///< as they came
    LineState state = LineState::New;
    QStringList reasons;    ///< sentences, why it isn't simply new
    bool canBeTaken = true; ///< a doubtful line may be taken when nothing is missing
    NewEntry entry;         ///< whole only where canBeTaken
};

} // namespace lorvo
