#pragma once
// The rule of post codes: five digits, with blanks or without, or none.

#include <QString>
#include <optional>

namespace lorvo {

/// A post code as it was typed, without its blanks; "0" when nothing is left.
QString CleanedPostCode(QString text);
/// The number that a typed post code means, 0 for none; nullopt when it is no post code.
[[nodiscard]] std::optional<int> PostCodeFromText(const QString& text);

} // namespace lorvo
