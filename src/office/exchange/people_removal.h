#pragma once
// After the show: people's data goes, accounts and counts stay.

#include <QString>
#include <QStringList>

namespace lorvo {

/// What a removal would empty.
struct PeopleCounts {
    int owners = 0;   ///< names, addresses, telephones and e-mail addresses
    int breeders = 0; ///< dogs with a breeder
    int notes = 0;    ///< dogs with a note
    int accounts = 0; ///< payments with an account number
};

/// Raises StoreError when the store refuses.
PeopleCounts CountPeople();
/// What goes and what stays, in sentences for the clerk.
QStringList RemovalSentences(const PeopleCounts& counts);

/// Replaces each owner's name by "Vystavovatel" and his number and empties the rest of what tells
/// who he is; empties breeders, notes and account numbers. Dogs, fees, payments and their sums
/// stay. All or nothing; nothing of what was emptied stays in the file. Raises StoreError when the
/// store refuses.
void RemovePeople();

} // namespace lorvo
