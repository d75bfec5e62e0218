// Which formats of a workbook's cells show days.

#include "office/exchange/xlsx_workbook.h"

#include <QRegularExpression>
#include <map>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// The formats that every office program knows by number alone.
bool IsDayNumber(int format) {
    return (format >= 14 && format <= 17) || format == 22 || (format >= 27 && format <= 31) ||
           format == 36 || (format >= 50 && format <= 54) || format == 57 || format == 58;
}

/// Whether a pattern such as "d.m.yyyy" shows a day, months or years; "m" beside hours or seconds
/// are minutes.
bool IsDayPattern(QString pattern) {
    static const QRegularExpression literal(u"\"[^\"]*\"|\\[[^\\]]*\\]|\\\\.|_.|\\*."_s);
    static const QRegularExpression clock(u"[hs]"_s, QRegularExpression::CaseInsensitiveOption);
    pattern.remove(literal);
    const auto has = [&](QChar letter) {
        return pattern.contains(letter, Qt::CaseInsensitive);
    };
    return has(u'd') || has(u'y') || (has(u'm') && !pattern.contains(clock));
}

using Patterns = std::map<int, QString>;

void ReadPatterns(XmlPart& xml, Patterns& patterns) {
    while (xml.EnterChild(u"numFmt")) {
        patterns[xml.Attribute(u"numFmtId").toInt()] = xml.Attribute(u"formatCode");
        xml.Skip();
    }
}

void ReadFormats(XmlPart& xml, const Patterns& patterns, std::vector<bool>& formats) {
    while (xml.EnterChild(u"xf")) {
        const int number = xml.Attribute(u"numFmtId").toInt();
        const auto found = patterns.find(number);
        formats.push_back(found == patterns.end() ? IsDayNumber(number)
                                                  : IsDayPattern(found->second));
        xml.Skip();
    }
}

} // namespace

std::vector<bool> ReadDayFormats(const ZipParts& parts, const QString& name) {
    std::vector<bool> formats;
    if (name.isEmpty())
        return formats;
    XmlPart xml(parts.Part(name), name);
    xml.NextChild();
    Patterns patterns;
    while (xml.NextChild()) {
        if (xml.name() == u"numFmts")
            ReadPatterns(xml, patterns);
        else if (xml.name() == u"cellXfs")
            ReadFormats(xml, patterns, formats);
        else
            xml.Skip();
    }
    return formats;
}

} // namespace lorvo
