// Reading the first sheet of an OpenDocument spreadsheet.

#include "office/exchange/cell_texts.h"
#include "office/exchange/ods_text.h"
#include "office/exchange/sheet_formats.h"
#include "platform/values/errors.h"

#include <QRegularExpression>
#include <algorithm>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

const QString kOffice = u"urn:oasis:names:tc:opendocument:xmlns:office:1.0"_s;
const QString kExtension =
    u"urn:org:documentfoundation:names:experimental:calc:xmlns:calcext:1.0"_s;

/// A cell as the sheet has it. Texts that its type has no attribute for are empty.
struct RawCell {
    QString type;
    QString finerType; ///< tells errors from texts
    QString value;
    bool isFormula = false;
    QString text; ///< as it is shown
};

QString OfficeValue(const XmlPart& xml, const QString& type) {
    const QString attribute =
        type == u"date" || type == u"time" || type == u"boolean" || type == u"string"
            ? type + u"-value"_s
            : u"value"_s;
    return xml.attributes().value(kOffice, attribute).toString();
}

/// The paragraphs of the cell that was entered last, each on its line.
QString ShownText(XmlPart& xml) {
    QStringList paragraphs;
    while (xml.NextChild()) {
        if (xml.name() == u"p")
            paragraphs << ParagraphText(xml);
        else
            xml.Skip();
    }
    return paragraphs.join(u'\n');
}

RawCell ReadCell(XmlPart& xml) {
    RawCell cell;
    cell.type = xml.attributes().value(kOffice, u"value-type"_s).toString();
    cell.finerType = xml.attributes().value(kExtension, u"value-type"_s).toString();
    cell.value = OfficeValue(xml, cell.type);
    cell.isFormula = !xml.Attribute(u"formula").isEmpty();
    cell.text = ShownText(xml);
    return cell;
}

bool IsError(const RawCell& cell) {
    static const QRegularExpression shown(u"^(#[\\p{Lu}\\d_/]+[!?]?|(Err|Chyba):\\d+)$"_s);
    if (!cell.finerType.isEmpty())
        return cell.finerType == u"error";
    return cell.isFormula && shown.match(cell.text).hasMatch();
}

/// The count of days or the number that a cell holds; nullopt where it holds none.
std::optional<double> NumberIn(const RawCell& cell) {
    if (cell.type == u"date")
        return DaysOfMoment(cell.value);
    if (cell.type == u"time")
        return DaysOfDuration(cell.value);
    bool isNumber = false;
    const double value = cell.value.toDouble(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

/// Why the cell can't be read; empty where it can.
QString FaultOf(const RawCell& cell) {
    if (IsError(cell))
        return u"obsahuje chybu "_s + cell.text;
    if (cell.isFormula && cell.type.isEmpty() && cell.text.isEmpty())
        return u"obsahuje vzorec bez výsledku"_s;
    return {};
}

QString TextOf(const RawCell& cell) {
    if (cell.type == u"boolean")
        return TruthText(cell.value == u"true");
    if (cell.type.isEmpty() || cell.type == u"string")
        return cell.text.isEmpty() ? cell.value : cell.text;
    const auto number = NumberIn(cell);
    return number ? NumberText(*number) : cell.text;
}

/// How often a row or a cell stands, at most `most` times.
int Repeats(const XmlPart& xml, QStringView attribute, int most) {
    const QString count = xml.Attribute(attribute);
    return count.isEmpty() ? 1 : static_cast<int>(std::clamp<qint64>(count.toLongLong(), 1, most));
}

class OdsSheet {
  public:
    explicit OdsSheet(SheetGrid& grid) : grid_(grid) {}

    /// Reads the table that was entered last; rows may stand in groups of any depth.
    void Read(XmlPart& xml) {
        for (int depth = 1; depth > 0;) {
            if (!xml.NextChild()) {
                --depth;
            } else if (xml.name() == u"table-row") {
                ReadRow(xml);
            } else if (xml.name() == u"table-row-group" || xml.name() == u"table-rows" ||
                       xml.name() == u"table-header-rows") {
                ++depth;
            } else {
                xml.Skip();
            }
        }
    }

  private:
    void ReadRow(XmlPart& xml) {
        const int count = Repeats(xml, u"number-rows-repeated", kMostSheetRows);
        cells_.clear();
        column_ = 0;
        while (xml.NextChild()) {
            if (xml.name() == u"table-cell" || xml.name() == u"covered-table-cell")
                TakeCell(xml);
            else
                xml.Skip();
        }
        grid_.PutRow(row_, count, cells_);
        row_ = std::min(row_ + count, kMostSheetRows);
    }

    void TakeCell(XmlPart& xml) {
        const int count = Repeats(xml, u"number-columns-repeated", kMostSheetColumns);
        const bool isCovered = xml.name() == u"covered-table-cell";
        const RawCell cell = ReadCell(xml);
        if (!isCovered)
            Put(cell, count);
        column_ = std::min(column_ + count, kMostSheetColumns);
    }

    void Put(const RawCell& cell, int count) {
        if (const QString fault = FaultOf(cell); !fault.isEmpty())
            RefuseCell(row_, column_, fault);
        const QString text = TextOf(cell);
        if (text.isEmpty())
            return;
        if (column_ >= kMostSheetColumns)
            RefuseCell(row_, column_, u"leží za koncem největšího listu"_s);
        cells_.resize(column_);
        for (int i = 0; i < count && column_ + i < kMostSheetColumns; ++i)
            cells_ << text;
    }

    SheetGrid& grid_;
    QStringList cells_;
    int row_ = 0;
    int column_ = 0;
};

} // namespace

void ReadOds(const ZipParts& parts, SheetGrid& grid) {
    const QString name = u"content.xml"_s;
    XmlPart xml(parts.Part(name), name);
    if (!xml.NextChild() || !xml.EnterChild(u"body") || !xml.EnterChild(u"spreadsheet"))
        throw PlatformError("není to tabulka");
    if (xml.EnterChild(u"table"))
        OdsSheet(grid).Read(xml);
}

} // namespace lorvo
