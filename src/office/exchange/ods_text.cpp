#include "office/exchange/ods_text.h"

#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kDrawings = u"urn:oasis:names:tc:opendocument:xmlns:drawing:1.0";
/// More blanks in a row than any cell holds.
constexpr int kMostBlanks = 32767;

bool IsBeside(const XmlPart& xml) {
    return xml.name() == u"annotation" || xml.name() == u"note" || xml.name() == u"ruby-text" ||
           xml.namespaceUri() == kDrawings;
}

/// The sign that an empty element stands for; empty for elements that only hold text.
QString SignOf(const XmlPart& xml) {
    if (xml.name() == u"tab")
        return u"\t"_s;
    if (xml.name() == u"line-break")
        return u"\n"_s;
    if (xml.name() != u"s")
        return {};
    const QString count = xml.Attribute(u"c");
    return QString(count.isEmpty() ? 1 : std::clamp(count.toInt(), 0, kMostBlanks), u' ');
}

} // namespace

QString ParagraphText(XmlPart& xml) {
    QString text;
    for (int depth = 1; depth > 0;) {
        const auto token = xml.Next();
        if (token == QXmlStreamReader::Characters)
            text += xml.text();
        else if (token == QXmlStreamReader::EndElement)
            --depth;
        else if (token == QXmlStreamReader::StartElement && IsBeside(xml))
            xml.Skip();
        else if (token == QXmlStreamReader::StartElement) {
            ++depth;
            text += SignOf(xml);
        }
    }
    return text;
}

} // namespace lorvo
