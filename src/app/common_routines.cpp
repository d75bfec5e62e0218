#include "app/common_routines.h"

#include "app/module_values.h"
#include "platform/platform.h"
#include "platform/values/errors.h"
#include "platform/values/format_number.h"

namespace lorvo {

namespace {

template<typename Number> QString Formatted(const std::string& pattern, Number value) {
    return QString::fromStdString(
        FormatNumber(pattern, value, ThePlatform().locale->DecimalSign()));
}

} // namespace

bool IsEmailValid(const QString& text) {
    const qsizetype at = text.indexOf(u'@');
    return at >= 0 && at < text.lastIndexOf(u'.');
}

QString GetLocaleText(int item) {
    return ThePlatform().locale->Item(item);
}

QString ReadIniValue(const QString& section, const QString& key, const QString& path) {
    return ThePlatform().iniFiles->Read(section, key, path);
}

QString AmountText(Currency amount) {
    return Formatted("### ##0.00 " + Module().MainCurrency.toStdString(), amount);
}

QString PlainAmount(Currency amount) {
    return QString::fromStdString(amount.ToPlainText(ThePlatform().locale->DecimalSign()));
}

Currency AmountFromText(const QString& text) {
    const auto plain = ThePlatform().locale->PlainNumber(text);
    if (!plain)
        throw RangeError("Text „" + text.toStdString() +
                         "“ není částka, zapište ji například jako 1234,50.");
    return Currency::FromText(plain->toStdString());
}

QString PercentText(int part, int whole) {
    return Formatted("#0.00%", whole == 0 ? 0.0 : static_cast<double>(part) / whole);
}

QString PostCodeText(int psc) {
    return Formatted("000 00", Currency::FromUnits(psc));
}

} // namespace lorvo
