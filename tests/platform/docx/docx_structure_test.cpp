// What the parts of a document promise to any word processor, and what becomes of its files.

#include "platform/values/errors.h"
#include "support/document_parts.h"
#include "support/schema_order.h"

#include <QDir>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

/// A document in which every operation has left its trace.
void TypeEverything(WordProcessor& word) {
    word.SetOrientation(PageOrientation::Landscape);
    word.SetFontName(u"Tahoma"_s);
    word.SetFontSize(10.5);
    word.SetBold(FontSwitch::On);
    word.SetItalic(true);
    word.SetUnderline(true);
    word.SetAlignment(ParagraphAlignment::Center);
    word.SetLeftIndent(20);
    word.SetFirstLineIndent(-10);
    word.AddTabStop(100);
    word.AddTabStop(50);
    word.TypeText(u"Katalog\tpsů\n"_s);
    word.SetBold(FontSwitch::Off);
    word.SetKeepWithNext(true);
    word.TypeText(u"šířka"_s.repeated(50)); // narrowed to fit
    word.InsertPageBreak();
    word.HomeKeyStory();
    word.WholeStory();
    word.AddTextColumn(CentimetersToPoints(11.72), CentimetersToPoints(1.25));
    word.SetItalic(false);
    word.AddTabStop(75);
    word.SetPrintView();
    word.SetZoomWholePage();
}

class DocxStructure : public testing::Test {
  protected:
    DocumentDesk desk;
};

} // namespace

TEST_F(DocxStructure, ChildrenStandInTheOrderOfTheSchemaOnceAndNeverEmpty) {
    ExpectSchemaOrder(desk.Document(TypeEverything));
}

TEST_F(DocxStructure, TabStopsRiseAndNoneIsNamedTwice) {
    const QDomElement styles = PartOf(desk.Document(TypeEverything), u"word/styles.xml"_s);
    const QList<QDomElement> lists = Elements(styles, u"w:tabs"_s);
    ASSERT_FALSE(lists.isEmpty());
    for (const QDomElement& list : lists) {
        int last = -1;
        for (const QDomElement& tab : Elements(list, u"w:tab"_s)) {
            EXPECT_GT(tab.attribute(u"w:pos"_s).toInt(), last);
            last = tab.attribute(u"w:pos"_s).toInt();
        }
        EXPECT_GE(last, 0);
    }
}

TEST_F(DocxStructure, EveryStyleThatTheTextNamesIsDefinedAndEveryFontDeclared) {
    const QString path = desk.Document(TypeEverything);
    const QDomElement body = PartOf(path, u"word/document.xml"_s);
    for (const QDomElement& paragraph : Elements(body, u"w:p"_s))
        EXPECT_FALSE(StyleNamed(path, StyleOf(paragraph)).isNull());
    for (const QDomElement& style : Elements(body, u"w:rStyle"_s))
        EXPECT_FALSE(StyleNamed(path, style.attribute(u"w:val"_s)).isNull());
    QStringList fonts;
    for (const QDomElement& font : Elements(PartOf(path, u"word/fontTable.xml"_s), u"w:font"_s))
        fonts.append(font.attribute(u"w:name"_s));
    EXPECT_EQ(fonts, QStringList({u"Tahoma"_s, u"Times New Roman"_s}));
}

TEST_F(DocxStructure, SettingsAskForThePresentFormatInCzech) {
    const QString path = desk.Document(TypeEverything);
    const QDomElement settings = PartOf(path, u"word/settings.xml"_s);
    const QString val = u"val"_s;
    EXPECT_EQ(Setting(settings, u"w:compatSetting"_s, val), u"15");
    EXPECT_EQ(Setting(settings, u"w:view"_s, val), u"print");
    EXPECT_EQ(Setting(settings, u"w:zoom"_s, val), u"fullPage");
    const QDomElement styles = PartOf(path, u"word/styles.xml"_s);
    EXPECT_EQ(Setting(styles, u"w:lang"_s, val), u"cs-CZ");
}

TEST_F(DocxStructure, TheSectionCarriesThePageAndItsColumns) {
    const QDomElement body = PartOf(desk.Document([](WordProcessor& word) {
        word.SetOrientation(PageOrientation::Landscape);
        word.AddTextColumn(CentimetersToPoints(11.72), CentimetersToPoints(1.25));
        word.SetOrientation(PageOrientation::Landscape);
        word.SetLeftMargin(CentimetersToPoints(1.5));
        word.SetRightMargin(CentimetersToPoints(1.5));
    }),
                                    u"word/document.xml"_s);
    const auto value = [&](const char* element, const char* name) {
        return Setting(body, QString::fromLatin1(element), QString::fromLatin1(name)).toStdString();
    };
    EXPECT_EQ(value("w:pgSz", "w"), "16838");
    EXPECT_EQ(value("w:pgSz", "h"), "11906");
    EXPECT_EQ(value("w:pgSz", "orient"), "landscape");
    EXPECT_EQ(value("w:pgMar", "left"), "850");
    EXPECT_EQ(value("w:pgMar", "top"), "1417");
    EXPECT_EQ(value("w:cols", "num"), "2");
    const QList<QDomElement> columns = Elements(body, u"w:col"_s);
    ASSERT_EQ(columns.size(), 2);
    EXPECT_EQ(columns[0].attribute(u"w:w"_s), u"6651");
    EXPECT_EQ(columns[0].attribute(u"w:space"_s), u"709");
    EXPECT_EQ(columns[1].attribute(u"w:w"_s), u"6644");
}

TEST_F(DocxStructure, APageSetByHandIsWrittenInTwentiethsOfAPoint) {
    const QDomElement body = PartOf(desk.Document([](WordProcessor& word) {
        word.SetPageSize(CentimetersToPoints(14.8), CentimetersToPoints(21.0));
        word.SetTopMargin(36);
        word.SetBottomMargin(37);
        word.SetGutter(7.2);
        word.SetHeaderDistance(20);
        word.SetFooterDistance(21);
    }),
                                    u"word/document.xml"_s);
    const QDomElement page = Elements(body, u"w:pgSz"_s).first();
    EXPECT_EQ(page.attribute(u"w:w"_s), u"8391");
    EXPECT_FALSE(page.hasAttribute(u"w:orient"_s));
    const QDomElement margins = Elements(body, u"w:pgMar"_s).first();
    QStringList values;
    for (const char* name : {"top", "bottom", "gutter", "header", "footer"})
        values.append(margins.attribute(u"w:"_s + QString::fromLatin1(name)));
    EXPECT_EQ(values.join(u' '), u"720 740 144 400 420");
    EXPECT_TRUE(Elements(body, u"w:cols"_s).isEmpty());
}

TEST_F(DocxStructure, FontsAreDeclaredWithTheirKinSoThatALikeOneStandsIn) {
    const QDomElement fonts = PartOf(desk.Document(TypeEverything), u"word/fontTable.xml"_s);
    const QDomElement tahoma = fonts.firstChildElement();
    const QString val = u"val"_s;
    EXPECT_EQ(tahoma.attribute(u"w:name"_s), u"Tahoma");
    EXPECT_EQ(Setting(tahoma, u"w:altName"_s, val), u"DejaVu Sans Condensed");
    EXPECT_EQ(Setting(tahoma, u"w:family"_s, val), u"swiss");
    EXPECT_EQ(Setting(tahoma, u"w:pitch"_s, val), u"variable");
}

TEST_F(DocxStructure, EveryLineHasAnExactHeightAboveItsLettersSize) {
    const QDomElement styles = PartOf(desk.Document(TypeEverything), u"word/styles.xml"_s);
    int found = 0;
    for (const QDomElement& style : Elements(styles, u"w:style"_s)) {
        if (style.attribute(u"w:type"_s) != u"paragraph")
            continue;
        ++found;
        EXPECT_EQ(Setting(style, u"w:spacing"_s, u"lineRule"_s), u"exact");
        EXPECT_GE(Setting(style, u"w:spacing"_s, u"line"_s).toInt(),
                  Setting(style, u"w:sz"_s, u"val"_s).toInt() * 10 * 1.15);
        EXPECT_FALSE(Elements(style, u"w:keepLines"_s).isEmpty());
    }
    EXPECT_GT(found, 1);
}

TEST_F(DocxStructure, TheSameDocumentIsTheSameBytes) {
    const auto bytes = [](const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QString first = desk.Document(TypeEverything);
    const QString second = desk.Document(TypeEverything);
    EXPECT_NE(first, second);
    EXPECT_EQ(bytes(first), bytes(second));
    EXPECT_EQ(EntriesOf(first).first(), u"[Content_Types].xml");
}

TEST_F(DocxStructure, TheTitleStandsInTheProperties) {
    const QDomElement properties = PartOf(desk.Document(TypeEverything), u"docProps/core.xml"_s);
    EXPECT_EQ(properties.firstChildElement(u"dc:title"_s).text(), u"Katalog");
}

TEST_F(DocxStructure, DocumentsAreNamedByPaperAndTimeAndNeverLieOverAnOlderOne) {
    EXPECT_FALSE(QFile::exists(desk.Papers()));
    for (int i = 0; i < 3; ++i)
        desk.Document(TypeEverything);
    desk.processors.Create(u"Katalog"_s)->TypeText(u"given up"_s);
    EXPECT_EQ(
        QDir(desk.Papers()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
        QStringList({u"Katalog 2027-05-14 08.31 (2).docx"_s, u"Katalog 2027-05-14 08.31 (3).docx"_s,
                     u"Katalog 2027-05-14 08.31.docx"_s}));
    EXPECT_EQ(desk.opener.files.first(), desk.Papers() + u"/Katalog 2027-05-14 08.31.docx"_s);
}

TEST_F(DocxStructure, ADocumentThatNothingOpensTellsWhereItLies) {
    desk.opener.opens = false;
    const ShownDocument shown = desk.processors.Create(u"Katalog"_s)->Show();
    EXPECT_FALSE(shown.opened);
    EXPECT_TRUE(QFile::exists(shown.path)) << shown.path.toStdString();
}

TEST_F(DocxStructure, AFolderThatCannotBeMadeIsNamedAndNothingIsOpened) {
    QFile inTheWay(desk.Papers());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const auto word = desk.processors.Create(u"Katalog"_s);
    word->TypeText(u"a"_s);
    try {
        (void)word->Show();
        FAIL() << "nothing was raised";
    } catch (const PlatformError& error) {
        const QString folder = QDir::toNativeSeparators(desk.Papers());
        EXPECT_TRUE(QString::fromUtf8(error.what()).contains(folder)) << error.what();
    }
    EXPECT_TRUE(desk.opener.files.isEmpty());
}

} // namespace lorvo::test
