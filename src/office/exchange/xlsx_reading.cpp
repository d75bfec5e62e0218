// Reading the first sheet of an Office Open XML workbook.

#include "office/exchange/cell_texts.h"
#include "office/exchange/sheet_formats.h"
#include "office/exchange/xlsx_workbook.h"

#include <cmath>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// Days between the two starts that workbooks count from.
constexpr double kDaysUntil1904 = 1462;

/// A cell as the sheet's part has it.
struct RawCell {
    QString type;
    int format = 0;
    bool isFormula = false;
    QString value;
};

/// The column of a reference, counted from 0: 1 for "B7". -1 where it names none.
int ColumnOf(const QString& reference) {
    int column = 0;
    for (const QChar letter : reference) {
        if (letter < u'A' || letter > u'Z' || column > kMostSheetColumns)
            break;
        column = column * 26 + (letter.unicode() - u'A' + 1);
    }
    return column - 1;
}

RawCell ReadCell(XmlPart& xml) {
    RawCell cell{xml.Attribute(u"t"), xml.Attribute(u"s").toInt(), false, {}};
    while (xml.NextChild()) {
        if (xml.name() == u"v") {
            cell.value = xml.Text();
        } else if (xml.name() == u"is") {
            cell.value = RunsOfText(xml);
        } else {
            cell.isFormula = cell.isFormula || xml.name() == u"f";
            xml.Skip();
        }
    }
    return cell;
}

class XlsxSheet {
  public:
    XlsxSheet(const ZipParts& parts, const XlsxWorkbook& book, SheetGrid& grid)
        : strings_(ReadSharedStrings(parts, book.sharedStrings)), grid_(grid) {
        if (book.from1904)
            daysFrom1904_ = ReadDayFormats(parts, book.styles);
    }

    void Read(XmlPart& xml) {
        xml.NextChild();
        while (xml.EnterChild(u"sheetData"))
            while (xml.EnterChild(u"row"))
                ReadRow(xml);
    }

  private:
    void ReadRow(XmlPart& xml) {
        const QString number = xml.Attribute(u"r");
        row_ = number.isEmpty() ? row_ + 1 : number.toInt() - 1;
        column_ = -1;
        while (xml.EnterChild(u"c")) {
            const int column = ColumnOf(xml.Attribute(u"r"));
            column_ = column < 0 ? column_ + 1 : column;
            grid_.Put(row_, column_, TextOf(ReadCell(xml)));
        }
    }

    QString TextOf(const RawCell& cell) const {
        if (cell.type == u"e")
            RefuseCell(row_, column_, u"obsahuje chybu "_s + cell.value);
        if (cell.isFormula && cell.value.isEmpty() && cell.type != u"str")
            RefuseCell(row_, column_, u"obsahuje vzorec bez výsledku"_s);
        if (cell.type == u"s")
            return SharedText(cell.value);
        if (cell.type == u"inlineStr")
            return cell.value;
        if (cell.type == u"str")
            return WithoutEscapes(cell.value);
        return cell.value.isEmpty() ? QString() : ValueText(cell);
    }

    QString SharedText(const QString& number) const {
        bool isNumber = false;
        const int index = number.toInt(&isNumber);
        if (!isNumber || index < 0 || index >= strings_.size())
            RefuseCell(row_, column_, u"odkazuje na text, který chybí"_s);
        return strings_[index];
    }

    QString ValueText(const RawCell& cell) const {
        if (cell.type == u"b")
            return TruthText(cell.value == u"1" || cell.value == u"true");
        if (cell.type == u"d") {
            const auto days = DaysOfMoment(cell.value);
            return days ? NumberText(*days) : cell.value;
        }
        bool isNumber = false;
        const double value = cell.value.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(value))
            RefuseCell(row_, column_, u"neobsahuje číslo"_s);
        return NumberText(CountsFrom1904(cell.format) ? value + kDaysUntil1904 : value);
    }

    bool CountsFrom1904(int format) const {
        return format >= 0 && static_cast<std::size_t>(format) < daysFrom1904_.size() &&
               daysFrom1904_[static_cast<std::size_t>(format)];
    }

    const QStringList strings_;
    std::vector<bool> daysFrom1904_;
    SheetGrid& grid_;
    int row_ = -1;
    int column_ = -1;
};

} // namespace

void ReadXlsx(const ZipParts& parts, SheetGrid& grid) {
    const XlsxWorkbook book = ReadWorkbook(parts);
    if (book.sheet.isEmpty())
        return;
    XmlPart xml(parts.Part(book.sheet), book.sheet);
    XlsxSheet(parts, book, grid).Read(xml);
}

} // namespace lorvo
