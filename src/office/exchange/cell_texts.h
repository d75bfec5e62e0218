#pragma once
// What a spreadsheet's cell holds, as the text that the readers of entries know.

#include <QString>
#include <optional>

namespace lorvo {

/// A number with a decimal point, as short as is exact to 15 digits; whole ones without a point.
QString NumberText(double value);

/// A moment ("2020-02-03", "2020-02-03T12:00:00") as days since 30.12.1899, the time of day as a
/// fraction. nullopt for any other text.
std::optional<double> DaysOfMoment(const QString& text);

/// A time ("PT12H30M00S") as a fraction of the day. nullopt for any other text.
std::optional<double> DaysOfDuration(const QString& text);

/// "true" or "false".
QString TruthText(bool truth);

} // namespace lorvo
