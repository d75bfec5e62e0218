#pragma once
// A lean XML writer: elements are opened and closed in pairs, text and attributes are escaped, and
// what is done leaves through a small buffer. A catalogue has a million elements, for which a
// general stream writer takes several times as long as packing the result.

#include <QIODevice>
#include <QStringView>
#include <string>
#include <string_view>
#include <vector>

namespace lorvo::docx {

class XmlWriter {
  public:
    /// Writes the XML declaration. The device is open for writing and outlives the writer.
    explicit XmlWriter(QIODevice& device);

    /// Opens an element. The name is kept as a view until the element ends: pass literals.
    XmlWriter& Start(std::string_view name);
    /// An attribute of the element just opened.
    XmlWriter& Attribute(std::string_view name, std::string_view value);
    XmlWriter& Attribute(std::string_view name, QStringView value);
    XmlWriter& Attribute(std::string_view name, int value);
    /// Text inside the open element. Characters that XML forbids are left out.
    XmlWriter& Text(QStringView text);
    XmlWriter& End();

    /// An element without content, with at most one attribute.
    void Empty(std::string_view name) { Start(name).End(); }
    template<typename T>
    void Empty(std::string_view name, std::string_view attribute, const T& value) {
        Start(name).Attribute(attribute, value).End();
    }

    /// Hands the rest to the device. All elements have ended. Raises PlatformError when the device
    /// doesn't take it, as Start, Text and End do whenever the buffer is full.
    void Finish();

  private:
    void CloseTag();
    void FlushWhenFull();
    void Flush();
    void AppendEscaped(QStringView text);
    void AppendCodePoint(char32_t codePoint);

    QIODevice& device_;
    std::string buffer_;
    std::vector<std::string_view> open_;
    bool tagIsOpen_ = false;
};

/// Whether XML 1.0 allows the character in a document.
bool IsXmlCharacter(char32_t codePoint);

} // namespace lorvo::docx
