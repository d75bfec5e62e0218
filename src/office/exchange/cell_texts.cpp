#include "office/exchange/cell_texts.h"

#include <QDateTime>
#include <QRegularExpression>
#include <cmath>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr double kHoursOfDay = 24;
constexpr double kMinutesOfDay = 24 * 60;
constexpr double kSecondsOfDay = 24 * 60 * 60;
constexpr double kMillisecondsOfDay = kSecondsOfDay * 1000;
/// Whole numbers up to here are written out.
constexpr double kLongestWhole = 1e18;

} // namespace

QString NumberText(double value) {
    if (value == std::trunc(value) && std::abs(value) < kLongestWhole)
        return QString::number(static_cast<qint64>(value));
    return QString::number(value, 'g', 15);
}

std::optional<double> DaysOfMoment(const QString& text) {
    const QDate epoch(1899, 12, 30);
    const QDate day = QDate::fromString(text.left(10), Qt::ISODate);
    if (!day.isValid())
        return std::nullopt;
    const auto days = static_cast<double>(epoch.daysTo(day));
    if (text.size() == 10)
        return days;
    QString clock = text.mid(11);
    const QTime time = QTime::fromString(clock.remove(u'Z'), Qt::ISODateWithMs);
    if (text[10] != u'T' || !time.isValid())
        return std::nullopt;
    return days + time.msecsSinceStartOfDay() / kMillisecondsOfDay;
}

std::optional<double> DaysOfDuration(const QString& text) {
    static const QRegularExpression shape(
        u"^(-)?P(?:(\\d+)D)?(?:T(?:(\\d+)H)?(?:(\\d+)M)?(?:(\\d+(?:[.,]\\d+)?)S)?)?$"_s);
    const QRegularExpressionMatch match = shape.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const double days = match.captured(2).toDouble() + match.captured(3).toDouble() / kHoursOfDay +
                        match.captured(4).toDouble() / kMinutesOfDay +
                        match.captured(5).replace(u',', u'.').toDouble() / kSecondsOfDay;
    return match.captured(1).isEmpty() ? days : -days;
}

QString TruthText(bool truth) {
    return truth ? u"true"_s : u"false"_s;
}

} // namespace lorvo
