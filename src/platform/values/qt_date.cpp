#include "platform/values/qt_date.h"

namespace lorvo {

namespace {

// Julian day of 1899-12-30, where the program's dates begin.
constexpr qint64 kJulianDayOfZero = 2415019;

} // namespace

QDate ToQDate(DateValue value) {
    return QDate::fromJulianDay(value.Days() + kJulianDayOfZero);
}

DateValue FromQDate(QDate date) {
    if (!date.isValid())
        return {};
    return DateValue::FromDays(static_cast<std::int32_t>(date.toJulianDay() - kJulianDayOfZero));
}

DateValue FromQDateTime(const QDateTime& moment) {
    if (!moment.isValid())
        return {};
    return FromQDate(moment.date()).WithSecondOfDay(moment.time().msecsSinceStartOfDay() / 1000);
}

} // namespace lorvo
