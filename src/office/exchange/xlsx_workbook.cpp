// Which part of a workbook is which.

#include "office/exchange/xlsx_workbook.h"
#include "platform/values/errors.h"

#include <QDir>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

struct Relation {
    QString id;
    QString type; ///< the end of its address: "worksheet"
    QString part;
};

/// A part's name without the stroke in front, as archives hold it.
QString PartName(const QString& folder, const QString& target) {
    return QDir::cleanPath(target.startsWith(u'/') ? target : u'/' + folder + target).mid(1);
}

/// Where a part's relations lead; the archive's own for an empty name.
std::vector<Relation> RelationsOf(const ZipParts& parts, const QString& part) {
    const QString folder = part.left(part.lastIndexOf(u'/') + 1);
    const QString name = folder + u"_rels/"_s + part.mid(folder.size()) + u".rels"_s;
    std::vector<Relation> relations;
    if (!parts.Has(name))
        return relations;
    XmlPart xml(parts.Part(name), name);
    xml.NextChild();
    while (xml.EnterChild(u"Relationship")) {
        relations.push_back({xml.Attribute(u"Id"), xml.Attribute(u"Type").section(u'/', -1),
                             PartName(folder, xml.Attribute(u"Target"))});
        xml.Skip();
    }
    return relations;
}

/// The part of that type; else the usual one, where it is there; else empty.
QString PartOf(const ZipParts& parts, const std::vector<Relation>& relations, QStringView type,
               const QString& usual) {
    const auto found = std::ranges::find(relations, type, &Relation::type);
    if (found != relations.end())
        return found->part;
    return parts.Has(usual) ? usual : QString();
}

/// The part of the sheet that bears the relation's name; empty where it is a chart.
QString SheetPart(const std::vector<Relation>& relations, const QString& id) {
    const auto found = std::ranges::find(relations, id, &Relation::id);
    if (found == relations.end())
        throw PlatformError("list chybí");
    return found->type == u"worksheet" ? found->part : QString();
}

QString FirstSheet(XmlPart& xml, const std::vector<Relation>& relations) {
    QString sheet;
    while (xml.EnterChild(u"sheet")) {
        if (sheet.isEmpty())
            sheet = SheetPart(relations, xml.Attribute(u"id"));
        xml.Skip();
    }
    return sheet;
}

bool IsYes(const QString& value) {
    return value == u"1" || value == u"true";
}

} // namespace

XlsxWorkbook ReadWorkbook(const ZipParts& parts) {
    const QString name =
        PartOf(parts, RelationsOf(parts, {}), u"officeDocument", u"xl/workbook.xml"_s);
    const auto relations = RelationsOf(parts, name);
    XlsxWorkbook book;
    book.sharedStrings = PartOf(parts, relations, u"sharedStrings", u"xl/sharedStrings.xml"_s);
    book.styles = PartOf(parts, relations, u"styles", u"xl/styles.xml"_s);
    XmlPart xml(parts.Part(name), name);
    if (!xml.EnterChild(u"workbook"))
        throw PlatformError("není to sešit");
    while (xml.NextChild()) {
        if (xml.name() == u"workbookPr")
            book.from1904 = IsYes(xml.Attribute(u"date1904"));
        if (xml.name() == u"sheets")
            book.sheet = FirstSheet(xml, relations);
        else
            xml.Skip();
    }
    return book;
}

} // namespace lorvo
