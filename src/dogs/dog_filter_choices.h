#pragma once
// The rows that the dog list's filter offers in its lists.

#include "forms/report_list.h"

namespace lorvo {

/// Tag of a breed that is the user's own.
inline const QString kOwnBreedTag = QStringLiteral("Vlastni");

/// The German shepherd's classes, key "CNO" and the position, then the ordinary ones, key "C" and
/// the position.
std::vector<ReportRow> ClassChoices();
/// The rings by name, key "K" and ID.
std::vector<ReportRow> RingChoices();
/// The breeds in use by name, key "R" and ID, in two columns.
std::vector<ReportRow> BreedChoices();
/// The shows, key "V" and ID, then the competitions, key "S" and ID.
std::vector<ReportRow> ShowChoices();
/// The awards, key "C" and ID.
std::vector<ReportRow> AwardChoices();

} // namespace lorvo
