#pragma once
// All payments for the accounts.

#include <QByteArray>

namespace lorvo {

class RunProgress;
class WordProcessor;

/// Appends a filled copy of the pattern for every payment, by owner, until the clerk stops. Raises
/// StoreError, and RangeError for a payment whose way is none of the table's.
void AppendPayments(QByteArray& output, const QByteArray& pattern, RunProgress& progress);
/// Types a line to every payment, by owner, until the clerk stops. Raises as AppendPayments does.
void TypePayments(WordProcessor& word, RunProgress& progress);

} // namespace lorvo
