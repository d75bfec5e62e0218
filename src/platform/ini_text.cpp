#include "platform/ini_text.h"

#include "platform/values/cp1250.h"

#include <QStringConverter>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

bool Same(QStringView left, QStringView right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// Name of the section that the line opens; nullopt for any other line.
std::optional<QString> SectionName(const QString& line) {
    const QString trimmed = line.trimmed();
    const qsizetype close = trimmed.indexOf(u']');
    if (!trimmed.startsWith(u'[') || close < 0)
        return std::nullopt;
    return trimmed.mid(1, close - 1).trimmed();
}

bool HoldsKey(const QString& line, const QString& key) {
    const qsizetype equals = line.indexOf(u'=');
    return equals >= 0 && Same(line.left(equals).trimmed(), key.trimmed());
}

QString Unquoted(const QString& text) {
    const bool quoted = text.size() >= 2 && (text.front() == u'"' || text.front() == u'\'') &&
                        text.front() == text.back();
    return quoted ? text.mid(1, text.size() - 2) : text;
}

} // namespace

std::optional<IniText> IniText::FromBytes(const QByteArray& bytes) {
    IniText ini;
    if (bytes.startsWith("\xFF\xFE")) {
        ini.encoding_ = Encoding::Utf16LittleEndian;
        ini.mark_ = bytes.left(2);
    } else if (bytes.startsWith("\xFE\xFF")) {
        ini.encoding_ = Encoding::Utf16BigEndian;
        ini.mark_ = bytes.left(2);
    } else if (bytes.startsWith("\xEF\xBB\xBF")) {
        ini.mark_ = bytes.left(3);
    }
    const QByteArray content = bytes.mid(ini.mark_.size());
    if (ini.encoding_ == Encoding::Cp1250) {
        ini.SplitLines(FromCp1250(content));
        return ini;
    }
    const auto from = ini.encoding_ == Encoding::Utf16LittleEndian ? QStringConverter::Utf16LE
                                                                   : QStringConverter::Utf16BE;
    ini.SplitLines(QStringDecoder(from).decode(content));
    if (ini.ToBytes() != bytes)
        return std::nullopt;
    return ini;
}

QByteArray IniText::Encoded(const QString& text) const {
    if (encoding_ == Encoding::Cp1250)
        return ToCp1250(text);
    const auto to = encoding_ == Encoding::Utf16LittleEndian ? QStringConverter::Utf16LE
                                                             : QStringConverter::Utf16BE;
    return QStringEncoder(to).encode(text);
}

QByteArray IniText::ToBytes() const {
    QString text;
    for (const Line& line : lines_)
        text += line.text + line.end;
    return mark_ + Encoded(text);
}

void IniText::SplitLines(const QString& text) {
    qsizetype start = 0;
    while (start < text.size()) {
        qsizetype end = start;
        while (end < text.size() && text.at(end) != u'\n' && text.at(end) != u'\r')
            ++end;
        qsizetype next = std::min(end + 1, text.size());
        if (text.mid(end, 2) == u"\r\n"_s)
            next = end + 2;
        lines_.push_back({text.mid(start, end - start), text.mid(end, next - end)});
        start = next;
    }
}

QString IniText::LineEnd() const {
    const bool known = !lines_.empty() && !lines_.front().end.isEmpty();
    return known ? lines_.front().end : u"\r\n"_s;
}

std::size_t IniText::SectionStart(const QString& section) const {
    std::size_t i = 0;
    for (; i < lines_.size(); ++i) {
        const auto name = SectionName(lines_[i].text);
        if (name && Same(*name, section.trimmed()))
            break;
    }
    return i;
}

std::size_t IniText::SectionEnd(std::size_t start) const {
    std::size_t i = start + 1;
    while (i < lines_.size() && !SectionName(lines_[i].text))
        ++i;
    return i;
}

std::optional<std::size_t> IniText::KeyLine(const QString& section, const QString& key) const {
    const std::size_t start = SectionStart(section);
    const std::size_t end = SectionEnd(start);
    for (std::size_t i = start + 1; i < end; ++i) {
        if (HoldsKey(lines_[i].text, key))
            return i;
    }
    return std::nullopt;
}

QString IniText::Value(const QString& section, const QString& key) const {
    const auto line = KeyLine(section, key);
    if (!line)
        return {};
    const QString& text = lines_[*line].text;
    return Unquoted(text.mid(text.indexOf(u'=') + 1).trimmed());
}

void IniText::SetValue(const QString& section, const QString& key, const QString& text) {
    if (const auto line = KeyLine(section, key)) {
        QString& whole = lines_[*line].text;
        whole = whole.left(whole.indexOf(u'=') + 1) + text;
        return;
    }
    std::size_t at = SectionStart(section);
    if (at == lines_.size()) {
        InsertLine(at, u'[' + section + u']');
        InsertLine(at + 1, key + u'=' + text);
        return;
    }
    for (at = SectionEnd(at); lines_[at - 1].text.trimmed().isEmpty();)
        --at;
    InsertLine(at, key + u'=' + text);
}

void IniText::InsertLine(std::size_t at, const QString& text) {
    const QString end = LineEnd();
    if (at > 0 && lines_[at - 1].end.isEmpty())
        lines_[at - 1].end = end;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(at), Line{text, end});
}

} // namespace lorvo
