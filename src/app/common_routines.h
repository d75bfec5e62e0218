#pragma once
// The few routines that several windows share. Plain functions without state.

#include "platform/values/money.h"

#include <QString>

namespace lorvo {

/// One text of the settings tree; `key` is a path below the program's key, such as "Sys".
QString ReadRegValue(const QString& key, const QString& name);
void WriteRegValue(const QString& key, const QString& name, const QString& text);

/// True when the text holds both signs and the first "@" stands before the last ".".
[[nodiscard]] bool IsEmailValid(const QString& text);
/// One item of the user's locale; empty for an item that doesn't exist.
QString GetLocaleText(int item);
/// One key of an ini file; empty when the file, section or key is missing.
QString ReadIniValue(const QString& section, const QString& key, const QString& path);

/// An amount in the main currency: the pattern "### ##0.00 " with `Module().MainCurrency` behind.
QString AmountText(Currency amount);
/// An amount as the stored number, with the system's decimal sign and no fixed decimals.
QString PlainAmount(Currency amount);
/// The amount of a text that is numeric (LocaleInfo::PlainNumber). Raises RangeError on any other
/// text and on an amount out of range.
Currency AmountFromText(const QString& text);
/// A share of a whole in the pattern "#0.00%"; 0 when the whole is 0.
QString PercentText(int part, int whole);
/// Post code in the pattern "000 00".
QString PostCodeText(int psc);

} // namespace lorvo
