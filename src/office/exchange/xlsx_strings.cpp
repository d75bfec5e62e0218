// The texts of a workbook.

#include "office/exchange/xlsx_workbook.h"

#include <QRegularExpression>

namespace lorvo {

using namespace Qt::StringLiterals;

QString WithoutEscapes(const QString& text) {
    if (!text.contains(u"_x"))
        return text;
    static const QRegularExpression escape(u"_x([0-9A-Fa-f]{4})_"_s);
    QString plain;
    qsizetype end = 0;
    for (auto matches = escape.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        plain += QStringView(text).mid(end, match.capturedStart() - end);
        plain += QChar(match.capturedView(1).toUShort(nullptr, 16));
        end = match.capturedEnd();
    }
    return plain + text.mid(end);
}

QString RunsOfText(XmlPart& xml) {
    QString text;
    while (xml.NextChild() || xml.name() == u"r") {
        if (xml.isEndElement())
            continue;
        if (xml.name() == u"t")
            text += WithoutEscapes(xml.Text());
        else if (xml.name() != u"r")
            xml.Skip();
    }
    return text;
}

QStringList ReadSharedStrings(const ZipParts& parts, const QString& name) {
    QStringList texts;
    if (name.isEmpty())
        return texts;
    XmlPart xml(parts.Part(name), name);
    xml.NextChild();
    while (xml.EnterChild(u"si"))
        texts << RunsOfText(xml);
    return texts;
}

} // namespace lorvo
