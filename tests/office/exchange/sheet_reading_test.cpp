#include "office/exchange/sheet_files.h"

#include "platform/values/errors.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <map>
#include <zip.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using Rows = std::vector<QStringList>;
using Parts = std::map<QString, QString>;

class SheetReading : public ::testing::Test {
  protected:
    /// An archive of these parts, by their names.
    static void Pack(const QString& path, const Parts& parts) {
        QFile::remove(path);
        std::vector<QByteArray> texts;
        zip_t* zip = zip_open(path.toUtf8().constData(), ZIP_CREATE, nullptr);
        ASSERT_TRUE(zip);
        for (const auto& [name, text] : parts) {
            const QByteArray& bytes = texts.emplace_back(text.toUtf8());
            const auto size = static_cast<zip_uint64_t>(bytes.size());
            zip_source_t* source = zip_source_buffer(zip, bytes.constData(), size, 0);
            EXPECT_GE(zip_file_add(zip, name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8), 0);
        }
        ASSERT_EQ(zip_close(zip), 0);
    }

    /// The rows of an OpenDocument spreadsheet with these tables.
    Rows Ods(const QString& tables) const {
        const QString path = folder.filePath(u"list.ods"_s);
        const QString content = u"<office:document-content"
                                " xmlns:office='urn:oasis:names:tc:opendocument:xmlns:office:1.0'"
                                " xmlns:table='urn:oasis:names:tc:opendocument:xmlns:table:1.0'"
                                " xmlns:text='urn:oasis:names:tc:opendocument:xmlns:text:1.0'>"
                                "<office:body><office:spreadsheet>%1</office:spreadsheet>"
                                "</office:body></office:document-content>"_s.arg(tables);
        Pack(path, {{u"content.xml"_s, content}});
        return SheetRows(path);
    }

    /// The same of one table with these cells in one row.
    Rows OdsCells(const QString& cells) const {
        return Ods(u"<table:table><table:table-row>"_s + cells +
                   u"</table:table-row></table:table>"_s);
    }

    /// The parts of a workbook whose first sheet holds these rows, beside a second one.
    static Parts Workbook(const QString& rows, const QString& settings = {}) {
        return {{u"xl/workbook.xml"_s,
                 u"<workbook xmlns:r='urn:r'>%1<sheets><sheet name='Psi' r:id='b'/>"
                 "<sheet name='Jiné' r:id='a'/></sheets></workbook>"_s.arg(settings)},
                {u"xl/_rels/workbook.xml.rels"_s,
                 u"<Relationships>"
                 "<Relationship Id='a' Type='urn/worksheet' Target='worksheets/sheet1.xml'/>"
                 "<Relationship Id='b' Type='urn/worksheet' Target='/xl/worksheets/sheet2.xml'/>"
                 "</Relationships>"_s},
                {u"xl/sharedStrings.xml"_s,
                 u"<sst><si><t>Alík</t></si><si><r><t>Be</t></r><rPh><t>cizí</t></rPh>"
                 "<r><t xml:space='preserve'>n 1\n2</t></r></si><si><t>a_x000A_b</t></si></sst>"_s},
                {u"xl/styles.xml"_s,
                 u"<styleSheet><numFmts><numFmt numFmtId='164' formatCode='d.m.yyyy'/>"
                 "<numFmt numFmtId='165' formatCode='0.00\"Kd\"'/></numFmts>"
                 "<cellXfs><xf numFmtId='0'/><xf numFmtId='14'/><xf numFmtId='164'/>"
                 "<xf numFmtId='165'/></cellXfs></styleSheet>"_s},
                {u"xl/worksheets/sheet1.xml"_s, u"<worksheet><sheetData/></worksheet>"_s},
                {u"xl/worksheets/sheet2.xml"_s,
                 u"<worksheet><sheetData>%1</sheetData></worksheet>"_s.arg(rows)}};
    }

    Rows Xlsx(const Parts& parts) const {
        const QString path = folder.filePath(u"list.xlsx"_s);
        Pack(path, parts);
        return SheetRows(path);
    }

    /// The text of the failure; empty where there is none.
    template<class Reading> static std::string FailureOf(const Reading& read) {
        try {
            static_cast<void>(read());
            return {};
        } catch (const PlatformError& failure) {
            return failure.what();
        }
    }

    const QTemporaryDir folder;
};

TEST_F(SheetReading, TheFirstSheetIsRead) {
    const QString table = u"<table:table><table:table-row><table:table-cell><text:p>%1</text:p>"
                          "</table:table-cell></table:table-row></table:table>"_s;
    EXPECT_EQ(Ods(table.arg(u"Psi"_s) + table.arg(u"Majitelé"_s)), (Rows{{u"Psi"_s}}));
    EXPECT_EQ(Xlsx(Workbook(u"<row><c t='s'><v>0</v></c></row>"_s)), (Rows{{u"Alík"_s}}));
}

TEST_F(SheetReading, ASpreadsheetWithoutASheetHasNoRows) {
    EXPECT_TRUE(Ods({}).empty());
}

TEST_F(SheetReading, LineBreaksAndParagraphsStayInTheirCell) {
    EXPECT_EQ(OdsCells(u"<table:table-cell><office:annotation><text:p>poznámka</text:p>"
                       "</office:annotation><text:p>Alík<text:s text:c='2'/>z</text:p>"
                       "<text:p>Lesa<text:line-break/>u<text:tab/>vsi</text:p></table:table-cell>"
                       "<table:table-cell><text:p>fena</text:p></table:table-cell>"_s),
              (Rows{{u"Alík  z\nLesa\nu\tvsi"_s, u"fena"_s}}));
    EXPECT_EQ(Xlsx(Workbook(u"<row><c t='s'><v>1</v></c><c t='s'><v>2</v></c></row>"_s)),
              (Rows{{u"Ben 1\n2"_s, u"a\nb"_s}}));
}

TEST_F(SheetReading, CellsBehindMergedOnesStayInTheirColumn) {
    EXPECT_EQ(
        OdsCells(u"<table:table-cell table:number-columns-spanned='2'><text:p>a</text:p>"
                 "</table:table-cell><table:covered-table-cell/>"
                 "<table:table-cell table:number-columns-repeated='2'><text:p>b</text:p>"
                 "</table:table-cell><table:table-cell table:number-columns-repeated='16380'/>"_s),
        (Rows{{u"a"_s, u""_s, u"b"_s, u"b"_s}}));
}

TEST_F(SheetReading, FormulasGiveTheirLastResult) {
    EXPECT_EQ(
        OdsCells(u"<table:table-cell table:formula='of:=[.B1]&amp;1' office:value-type='string'"
                 " office:string-value='Alík1'><text:p>Alík1</text:p></table:table-cell>"
                 "<table:table-cell table:formula='of:=1/4' office:value-type='float'"
                 " office:value='0.25'><text:p>0,25</text:p></table:table-cell>"_s),
        (Rows{{u"Alík1"_s, u"0.25"_s}}));
    EXPECT_EQ(Xlsx(Workbook(u"<row><c t='str'><f>A2</f><v>Alík</v></c><c><f>1/4</f><v>0.25</v></c>"
                            "<c t='str'><f>B2</f><v></v></c></row>"_s)),
              (Rows{{u"Alík"_s, u"0.25"_s}}));
}

TEST_F(SheetReading, ErrorsAndFormulasWithoutAResultAreRefusedByTheirPlace) {
    const auto refuses = [](const std::string& failure, const char* cell) {
        EXPECT_NE(failure.find(cell), std::string::npos) << failure;
    };
    refuses(FailureOf([&] {
                return Xlsx(Workbook(u"<row r='7'><c r='AB7' t='e'><f>1/0</f>"
                                     "<v>#DIV/0!</v></c></row>"_s));
            }),
            "(buňka AB7 obsahuje chybu #DIV/0!)");
    refuses(FailureOf([&] { return Xlsx(Workbook(u"<row><c/><c><f>1+1</f><v></v></c></row>"_s)); }),
            "(buňka B1 obsahuje vzorec bez výsledku)");
    refuses(FailureOf([&] {
                return OdsCells(u"<table:table-cell/><table:table-cell table:formula='of:=1/0'"
                                " office:value-type='string'><text:p>#DIV/0!</text:p>"
                                "</table:table-cell>"_s);
            }),
            "(buňka B1 obsahuje chybu #DIV/0!)");
    EXPECT_EQ(OdsCells(u"<table:table-cell><text:p>#1</text:p></table:table-cell>"_s),
              (Rows{{u"#1"_s}}));
}

TEST_F(SheetReading, TextsAndDaysInTheCellItselfAreRead) {
    EXPECT_EQ(Xlsx(Workbook(u"<row><c t='inlineStr'><is><t>Alík</t></is></c>"
                            "<c t='d'><v>2020-02-03</v></c><c t='d'><v>2020-02-03T12:00:00</v></c>"
                            "<c t='b'><v>1</v></c><c><v>1.5E1</v></c></row>"_s)),
              (Rows{{u"Alík"_s, u"43864"_s, u"43864.5"_s, u"true"_s, u"15"_s}}));
    EXPECT_EQ(
        OdsCells(u"<table:table-cell office:value-type='date' office:date-value="
                 "'2020-02-03T12:00:00'><text:p>3.2.</text:p></table:table-cell>"
                 "<table:table-cell office:value-type='boolean' office:boolean-value='false'>"
                 "<text:p>NEPRAVDA</text:p></table:table-cell>"
                 "<table:table-cell office:value-type='time' office:time-value='PT06H00M00S'/>"
                 "<table:table-cell office:value-type='float' office:value='203098100123456'/>"_s),
        (Rows{{u"43864.5"_s, u"false"_s, u"0.25"_s, u"203098100123456"_s}}));
}

TEST_F(SheetReading, DaysCountedFrom1904AreMovedAndNumbersAreNot) {
    const QString row = u"<row><c s='1'><v>42402</v></c><c s='2'><v>42402</v></c>"
                        "<c s='3'><v>500</v></c><c><v>500</v></c></row>"_s;
    EXPECT_EQ(Xlsx(Workbook(row, u"<workbookPr date1904='true'/>"_s)),
              (Rows{{u"43864"_s, u"43864"_s, u"500"_s, u"500"_s}}));
    EXPECT_EQ(Xlsx(Workbook(row)), (Rows{{u"42402"_s, u"42402"_s, u"500"_s, u"500"_s}}));
}

TEST_F(SheetReading, RowsAndCellsStandWhereTheySay) {
    EXPECT_EQ(Xlsx(Workbook(u"<row r='5'><c r='B5'><v>2</v></c><c><v>3</v></c></row>"
                            "<row r='2'><c r='A2'><v>1</v></c></row>"_s)),
              (Rows{{u"1"_s, u""_s, u""_s}, {u""_s, u"2"_s, u"3"_s}}));
}

TEST_F(SheetReading, RepeatedRowsAreKeptAndEmptyOnesCostNothing) {
    const QString row = u"<table:table-row table:number-rows-repeated='%1'><table:table-cell>%2"
                        "</table:table-cell></table:table-row>"_s;
    const QString text = u"<text:p>a</text:p>"_s;
    EXPECT_EQ(Ods(u"<table:table><table:table-header-rows>"_s + row.arg(1).arg(text) +
                  u"</table:table-header-rows>"_s + row.arg(1000).arg(QString()) +
                  row.arg(2).arg(text) + row.arg(2000000000).arg(QString()) + u"</table:table>"_s),
              (Rows{{u"a"_s}, {u"a"_s}, {u"a"_s}}));
    const QString wide =
        u"<table:table><table:table-row table:number-rows-repeated='1048576'>"
        "<table:table-cell table:number-columns-repeated='16384'><text:p>a</text:p>"
        "</table:table-cell></table:table-row></table:table>"_s;
    EXPECT_NE(FailureOf([&] { return Ods(wide); }), "");
}

TEST_F(SheetReading, WhatIsDamagedIsRefused) {
    EXPECT_NE(FailureOf([&] { return Ods(u"<table:table><table:table-row>"_s); }), "");
    EXPECT_NE(FailureOf([&] { return Xlsx({{u"a"_s, u"b"_s}}); }), "");
    Parts parts = Workbook(u"<row><c t='s'><v>9</v></c></row>"_s);
    EXPECT_NE(FailureOf([&] { return Xlsx(parts); }).find("buňka A1"), std::string::npos);
    parts.erase(u"xl/worksheets/sheet2.xml"_s);
    EXPECT_NE(FailureOf([&] { return Xlsx(parts); }).find("(část xl/worksheets/sheet2.xml chybí)"),
              std::string::npos);
}

} // namespace
} // namespace lorvo
