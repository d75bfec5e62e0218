#pragma once
// Between the program's dates and Qt's.

#include "platform/values/date_value.h"

#include <QDateTime>

namespace lorvo {

/// The calendar day alone.
QDate ToQDate(DateValue value);

/// Midnight of the day. An invalid date gives the date value 0.
DateValue FromQDate(QDate date);
/// Whole seconds; an invalid one gives the date value 0.
DateValue FromQDateTime(const QDateTime& moment);

} // namespace lorvo
