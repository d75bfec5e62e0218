#include "platform/real_services.h"
#include "platform/values/number_text.h"
#include "platform/values/qt_date.h"

#include <algorithm>
#include <array>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

bool IsCzech(const QLocale& locale) {
    return locale.language() == QLocale::Czech;
}

/// Four digits of the year whatever the locale's short form has: a dog may be born in any century.
QString DatePatternOf(const QLocale& locale) {
    if (IsCzech(locale))
        return u"d.M.yyyy"_s;
    QString pattern = locale.dateFormat(QLocale::ShortFormat);
    if (!pattern.contains(u"yyyy"_s))
        pattern.replace(u"yy"_s, u"yyyy"_s);
    return pattern;
}

// Long lists hold a date in every row, and the toolkit's own patterns take their time.

/// Texts of numbers and signs one behind the other, without a format to be read: lists ask for
/// tens of thousands of dates.
class DigitWriter {
  public:
    /// With zeros in front up to so many digits.
    DigitWriter& Number(int value, int digits = 1) {
        std::array<char, 12> reversed;
        int count = 0;
        for (; value > 0 || count < digits; value /= 10)
            reversed[static_cast<std::size_t>(count++)] = static_cast<char>('0' + value % 10);
        while (count > 0)
            Sign(reversed[static_cast<std::size_t>(--count)]);
        return *this;
    }
    DigitWriter& Sign(char sign) {
        text_[length_++] = sign;
        return *this;
    }
    QString Text() const {
        return QString::fromLatin1(text_.data(), static_cast<qsizetype>(length_));
    }

  private:
    std::array<char, 40> text_;
    std::size_t length_ = 0;
};

QString CzechDate(DateValue value) {
    return DigitWriter()
        .Number(value.Day())
        .Sign('.')
        .Number(value.Month())
        .Sign('.')
        .Number(value.Year(), 4)
        .Text();
}

QString TimeText(DateValue value) {
    return DigitWriter()
        .Number(value.Hour())
        .Sign(':')
        .Number(value.Minute(), 2)
        .Sign(':')
        .Number(value.Second(), 2)
        .Text();
}

/// The locale's grouping sign, where it is one of those that people type; 0 for a blank, which
/// groups everywhere.
char GroupOf(const QLocale& locale) {
    const QString group = locale.groupSeparator();
    return group == u","_s || group == u"."_s ? group.at(0).toLatin1() : '\0';
}

class QtLocaleInfo final : public LocaleInfo {
  public:
    explicit QtLocaleInfo(const QLocale& locale)
        : locale_(locale), datePattern_(DatePatternOf(locale)) {}

    QString Item(int item) const override {
        return item == kLocaleCurrencySymbol ? locale_.currencySymbol() : QString();
    }
    char DecimalSign() const override { return locale_.decimalPoint() == u","_s ? ',' : '.'; }
    QString DateText(DateValue value) const override {
        if (value.SecondOfDay() == 0)
            return ShortDate(value);
        return ShortDate(value) + u' ' + TimeText(value);
    }
    QString ShortDate(DateValue value) const override {
        return IsCzech(locale_) ? CzechDate(value) : locale_.toString(ToQDate(value), datePattern_);
    }
    QString ShortDatePattern() const override { return datePattern_; }
    std::optional<QString> PlainNumber(const QString& text) const override {
        // All kinds of blanks count as the keyboard's.
        QString plain = text;
        std::replace_if(
            plain.begin(), plain.end(), [](QChar c) { return c.isSpace(); }, u' ');
        const auto number = NumberFromText(plain.toStdString(), GroupOf(locale_));
        return number ? std::optional(QString::fromStdString(*number)) : std::nullopt;
    }

  private:
    QLocale locale_;
    QString datePattern_;
};

} // namespace

std::unique_ptr<LocaleInfo> MakeLocaleInfo() {
    const QLocale system = QLocale::system();
    const bool chosen = system.language() != QLocale::C;
    return MakeLocaleInfo(chosen ? system : QLocale(QLocale::Czech, QLocale::CzechRepublic));
}

std::unique_ptr<LocaleInfo> MakeLocaleInfo(const QLocale& locale) {
    return std::make_unique<QtLocaleInfo>(locale);
}

} // namespace lorvo
