#include "platform/docx/xml_writer.h"

#include "platform/file_failure.h"

#include <QFileDevice>
#include <charconv>

namespace lorvo::docx {

namespace {

constexpr std::size_t kBufferSize = 1 << 16;

std::string_view EntityOf(char32_t character) {
    switch (character) {
    case U'&':
        return "&amp;";
    case U'<':
        return "&lt;";
    case U'>':
        return "&gt;";
    case U'"':
        return "&quot;";
    default:
        return {};
    }
}

/// Most of any text: ASCII that stands for itself.
bool IsOrdinary(QChar unit) {
    return unit >= u' ' && unit < QChar(0x7F) && unit != u'&' && unit != u'<' && unit != u'>' &&
           unit != u'"';
}

/// The code point at `position`, which moves behind it. A lone surrogate is returned as it is.
char32_t NextCodePoint(QStringView text, qsizetype& position) {
    const QChar unit = text[position++];
    if (unit.isHighSurrogate() && position < text.size() && text[position].isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text[position++]);
    return unit.unicode();
}

} // namespace

bool IsXmlCharacter(char32_t codePoint) {
    if (codePoint < 0x20)
        return codePoint == '\t' || codePoint == '\n' || codePoint == '\r';
    return !(codePoint >= 0xD800 && codePoint <= 0xDFFF) && codePoint != 0xFFFE &&
           codePoint != 0xFFFF;
}

XmlWriter::XmlWriter(QIODevice& device) : device_(device) {
    buffer_.reserve(kBufferSize + (kBufferSize >> 2));
    buffer_ = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
}

XmlWriter& XmlWriter::Start(std::string_view name) {
    CloseTag();
    FlushWhenFull();
    buffer_ += '<';
    buffer_ += name;
    open_.push_back(name);
    tagIsOpen_ = true;
    return *this;
}

XmlWriter& XmlWriter::Attribute(std::string_view name, std::string_view value) {
    Q_ASSERT(tagIsOpen_);
    buffer_ += ' ';
    buffer_ += name;
    buffer_ += "=\"";
    buffer_ += value;
    buffer_ += '"';
    return *this;
}

XmlWriter& XmlWriter::Attribute(std::string_view name, QStringView value) {
    Attribute(name, std::string_view());
    buffer_.pop_back();
    AppendEscaped(value);
    buffer_ += '"';
    return *this;
}

XmlWriter& XmlWriter::Attribute(std::string_view name, int value) {
    char digits[16];
    const auto result = std::to_chars(std::begin(digits), std::end(digits), value);
    return Attribute(
        name, std::string_view(digits, static_cast<std::size_t>(result.ptr - std::begin(digits))));
}

XmlWriter& XmlWriter::Text(QStringView text) {
    CloseTag();
    FlushWhenFull();
    AppendEscaped(text);
    return *this;
}

XmlWriter& XmlWriter::End() {
    const std::string_view name = open_.back();
    open_.pop_back();
    if (tagIsOpen_) {
        buffer_ += "/>";
        tagIsOpen_ = false;
        return *this;
    }
    buffer_ += "</";
    buffer_ += name;
    buffer_ += '>';
    return *this;
}

void XmlWriter::Finish() {
    Q_ASSERT(open_.empty());
    Flush();
}

void XmlWriter::CloseTag() {
    if (tagIsOpen_)
        buffer_ += '>';
    tagIsOpen_ = false;
}

void XmlWriter::FlushWhenFull() {
    if (buffer_.size() >= kBufferSize)
        Flush();
}

void XmlWriter::Flush() {
    const auto size = static_cast<qint64>(buffer_.size());
    if (device_.write(buffer_.data(), size) != size) {
        const auto* file = qobject_cast<QFileDevice*>(&device_);
        FailToWriteFile(file ? file->fileName() : QString(),
                        file ? CauseOfFailure(*file) : CauseOfLastFailure());
    }
    buffer_.clear();
}

void XmlWriter::AppendEscaped(QStringView text) {
    for (qsizetype position = 0; position < text.size();) {
        if (IsOrdinary(text[position])) {
            buffer_ += static_cast<char>(text[position++].unicode());
            continue;
        }
        const char32_t codePoint = NextCodePoint(text, position);
        if (const std::string_view entity = EntityOf(codePoint); !entity.empty())
            buffer_ += entity;
        else if (IsXmlCharacter(codePoint))
            AppendCodePoint(codePoint);
    }
}

void XmlWriter::AppendCodePoint(char32_t codePoint) {
    const auto append = [this](char32_t byte) {
        buffer_ += static_cast<char>(byte);
    };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0 | codePoint >> 6);
        append(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        append(0xE0 | codePoint >> 12);
        append(0x80 | (codePoint >> 6 & 0x3F));
        append(0x80 | (codePoint & 0x3F));
    } else {
        append(0xF0 | codePoint >> 18);
        append(0x80 | (codePoint >> 12 & 0x3F));
        append(0x80 | (codePoint >> 6 & 0x3F));
        append(0x80 | (codePoint & 0x3F));
    }
}

} // namespace lorvo::docx
