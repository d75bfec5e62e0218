#pragma once
// The words that stand in an entry's cells for what the database keeps as marks and numbers.

#include "office/dogs/class_eligibility.h"

#include <QString>
#include <optional>

namespace lorvo {

/// "pes" and "fena" in the spellings of web forms; true for a male, nullopt for anything else.
[[nodiscard]] std::optional<bool> SexFromText(const QString& text);
/// "ano" and "ne" likewise.
[[nodiscard]] std::optional<bool> YesFromText(const QString& text);
/// "I", "1", "první" (also with "uzávěrka") are the first closing; nullopt for anything else.
[[nodiscard]] std::optional<bool> FirstClosingFromText(const QString& text);
/// The class code (from 1) by its number, its name or the beginning of its name that only one class
/// has.
[[nodiscard]] std::optional<int> ClassFromText(const QString& text, ClassList list);

} // namespace lorvo
