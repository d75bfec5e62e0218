#pragma once
// What was taken, as the clerk reads and keeps it.

#include "office/exchange/entry_taking.h"

namespace lorvo {

/// Several lines: the file, counts, the sum of fees and of payments.
QString TakingReportText(const TakingReport& report, const QString& path);

/// Why the rest isn't saved where the entries stand: those not taken yet would be gone.
QString RestOverItsSource();

/// Whether two judgements of the same rows came out the same.
bool AreJudgedAlike(const std::vector<EntryLine>& some, const std::vector<EntryLine>& others);

} // namespace lorvo
