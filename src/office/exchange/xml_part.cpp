#include "office/exchange/xml_part.h"

#include "platform/values/errors.h"

namespace lorvo {

using namespace Qt::StringLiterals;

XmlPart::XmlPart(const QByteArray& bytes, const QString& name)
    : QXmlStreamReader(bytes), name_(name) {}

bool XmlPart::EnterChild(QStringView child) {
    while (NextChild()) {
        if (name() == child)
            return true;
        Skip();
    }
    return false;
}

bool XmlPart::NextChild() {
    const bool found = readNextStartElement();
    RequireWhole();
    return found;
}

QXmlStreamReader::TokenType XmlPart::Next() {
    const TokenType token = readNext();
    RequireWhole();
    return token;
}

void XmlPart::Skip() {
    skipCurrentElement();
    RequireWhole();
}

QString XmlPart::Text() {
    QString text = readElementText(SkipChildElements);
    RequireWhole();
    return text;
}

QString XmlPart::Attribute(QStringView attribute) const {
    for (const QXmlStreamAttribute& one : attributes())
        if (one.name() == attribute)
            return one.value().toString();
    return {};
}

void XmlPart::RequireWhole() const {
    if (hasError())
        throw PlatformError(
            u"část %1 má chybu na řádku %2"_s.arg(name_).arg(lineNumber()).toStdString());
}

} // namespace lorvo
