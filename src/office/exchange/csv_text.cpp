#include "office/exchange/csv_text.h"

#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kQuote = u'"';

/// Walks over the text once; `fields` and `rows` grow as separators and line ends come.
class RowReader {
  public:
    RowReader(const QString& text, QChar separator) : text_(text), separator_(separator) {}

    std::vector<QStringList> Read() {
        for (place_ = 0; place_ < text_.size(); ++place_)
            Take(text_[place_]);
        EndRow();
        return std::move(rows_);
    }

  private:
    void Take(QChar letter) {
        if (quoted_)
            TakeQuoted(letter);
        else if (letter == kQuote && field_.trimmed().isEmpty())
            BeginQuotes();
        else if (letter == separator_)
            EndField();
        else if (letter == u'\n')
            EndRow();
        else
            field_ += letter;
    }

    void BeginQuotes() {
        quoted_ = true;
        field_.clear();
    }

    void TakeQuoted(QChar letter) {
        const bool doubled =
            letter == kQuote && place_ + 1 < text_.size() && text_[place_ + 1] == kQuote;
        if (doubled)
            ++place_;
        if (letter == kQuote && !doubled)
            quoted_ = false;
        else
            field_ += letter;
    }

    void EndField() {
        fields_ << field_;
        field_.clear();
    }

    void EndRow() {
        EndField();
        quoted_ = false;
        const bool blank = std::ranges::all_of(
            fields_, [](const QString& field) { return field.trimmed().isEmpty(); });
        if (!blank)
            rows_.push_back(fields_);
        fields_.clear();
    }

    const QString& text_;
    const QChar separator_;
    qsizetype place_ = 0;
    bool quoted_ = false;
    QString field_;
    QStringList fields_;
    std::vector<QStringList> rows_;
};

/// How often each separator stands outside quotes in the first line that holds anything.
std::array<int, kCsvSeparators.size()> SeparatorsOfFirstLine(const QString& text) {
    std::array<int, kCsvSeparators.size()> counts{};
    bool quoted = false;
    bool begun = false;
    for (const QChar letter : text) {
        if (letter == u'\n' && begun && !quoted)
            break;
        begun = begun || !letter.isSpace();
        if (letter == kQuote)
            quoted = !quoted;
        const auto* const found = std::ranges::find(kCsvSeparators, letter.unicode());
        if (!quoted && found != kCsvSeparators.end())
            ++counts[static_cast<std::size_t>(found - kCsvSeparators.begin())];
    }
    return counts;
}

QString CsvField(const QString& field) {
    const bool bare = std::ranges::none_of(field, [](QChar letter) {
        return letter == u';' || letter == kQuote || letter == u'\n' || letter == u'\r';
    });
    if (bare && field.trimmed() == field)
        return field;
    return kQuote + QString(field).replace(kQuote, u"\"\""_s) + kQuote;
}

} // namespace

QString SeparatorName(QChar separator) {
    switch (separator.unicode()) {
    case u';':
        return u"středník"_s;
    case u',':
        return u"čárka"_s;
    case u'\t':
        return u"tabulátor"_s;
    default:
        return u"svislá čára"_s;
    }
}

QChar GuessSeparator(const QString& text) {
    const auto counts = SeparatorsOfFirstLine(text);
    const auto* const most = std::ranges::max_element(counts);
    return kCsvSeparators[static_cast<std::size_t>(most - counts.begin())];
}

std::vector<QStringList> CsvRows(const QString& text, QChar separator) {
    return RowReader(text, separator).Read();
}

QByteArray CsvBytes(const std::vector<QStringList>& rows) {
    QString text(QChar::ByteOrderMark);
    for (const QStringList& row : rows) {
        QStringList fields;
        for (const QString& field : row)
            fields << CsvField(field);
        text += fields.join(u';') + u"\r\n"_s;
    }
    return text.toUtf8();
}

} // namespace lorvo
