// What the parts of a document promise to any word processor, and what becomes of its files.

#include "platform/values/errors.h"
#include "support/document_parts.h"
#include "support/schema_order.h"

#include <QDir>
#include <gtest/gtest.h>

namespace lorvo::test {

namespace {

/// A document in which every operation has left its trace.
void TypeEverything(WordProcessor& word) {
    word.SetOrientation(PageOrientation::Landscape);
    word.SetFontName(QStringLiteral("Tahoma"));
    word.SetFontSize(10.5);
    word.SetBold(FontSwitch::On);
    word.SetItalic(true);
    word.SetUnderline(true);
    word.SetAlignment(ParagraphAlignment::Center);
    word.SetLeftIndent(20);
    word.SetFirstLineIndent(-10);
    word.AddTabStop(100);
    word.AddTabStop(50);
    word.TypeText(QStringLiteral("Katalog\tpsů\n"));
    word.SetBold(FontSwitch::Off);
    word.SetKeepWithNext(true);
    word.TypeText(QStringLiteral("šířka").repeated(50)); // narrowed to fit
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
    const QDomElement styles =
        PartOf(desk.Document(TypeEverything), QStringLiteral("word/styles.xml"));
    const QList<QDomElement> lists = Elements(styles, QStringLiteral("w:tabs"));
    ASSERT_FALSE(lists.isEmpty());
    for (const QDomElement& list : lists) {
        int last = -1;
        for (const QDomElement& tab : Elements(list, QStringLiteral("w:tab"))) {
            EXPECT_GT(tab.attribute(QStringLiteral("w:pos")).toInt(), last);
            last = tab.attribute(QStringLiteral("w:pos")).toInt();
        }
        EXPECT_GE(last, 0);
    }
}

TEST_F(DocxStructure, EveryStyleThatTheTextNamesIsDefinedAndEveryFontDeclared) {
    const QString path = desk.Document(TypeEverything);
    const QDomElement body = PartOf(path, QStringLiteral("word/document.xml"));
    for (const QDomElement& paragraph : Elements(body, QStringLiteral("w:p")))
        EXPECT_FALSE(StyleNamed(path, StyleOf(paragraph)).isNull());
    for (const QDomElement& style : Elements(body, QStringLiteral("w:rStyle")))
        EXPECT_FALSE(StyleNamed(path, style.attribute(QStringLiteral("w:val"))).isNull());
    QStringList fonts;
    for (const QDomElement& font :
         Elements(PartOf(path, QStringLiteral("word/fontTable.xml")), QStringLiteral("w:font")))
        fonts.append(font.attribute(QStringLiteral("w:name")));
    EXPECT_EQ(fonts, QStringList({QStringLiteral("Tahoma"), QStringLiteral("Times New Roman")}));
}

TEST_F(DocxStructure, SettingsAskForThePresentFormatInCzech) {
    const QString path = desk.Document(TypeEverything);
    const QDomElement settings = PartOf(path, QStringLiteral("word/settings.xml"));
    const QString val = QStringLiteral("val");
    EXPECT_EQ(Setting(settings, QStringLiteral("w:compatSetting"), val), u"15");
    EXPECT_EQ(Setting(settings, QStringLiteral("w:view"), val), u"print");
    EXPECT_EQ(Setting(settings, QStringLiteral("w:zoom"), val), u"fullPage");
    const QDomElement styles = PartOf(path, QStringLiteral("word/styles.xml"));
    EXPECT_EQ(Setting(styles, QStringLiteral("w:lang"), val), u"cs-CZ");
}

TEST_F(DocxStructure, TheSectionCarriesThePageAndItsColumns) {
    const QDomElement body = PartOf(desk.Document([](WordProcessor& word) {
        word.SetOrientation(PageOrientation::Landscape);
        word.AddTextColumn(CentimetersToPoints(11.72), CentimetersToPoints(1.25));
        word.SetOrientation(PageOrientation::Landscape);
        word.SetLeftMargin(CentimetersToPoints(1.5));
        word.SetRightMargin(CentimetersToPoints(1.5));
    }),
                                    QStringLiteral("word/document.xml"));
    const auto value = [&](const char* element, const char* name) {
        return Setting(body, QString::fromLatin1(element), QString::fromLatin1(name)).toStdString();
    };
    EXPECT_EQ(value("w:pgSz", "w"), "16838");
    EXPECT_EQ(value("w:pgSz", "h"), "11906");
    EXPECT_EQ(value("w:pgSz", "orient"), "landscape");
    EXPECT_EQ(value("w:pgMar", "left"), "850");
    EXPECT_EQ(value("w:pgMar", "top"), "1417");
    EXPECT_EQ(value("w:cols", "num"), "2");
    const QList<QDomElement> columns = Elements(body, QStringLiteral("w:col"));
    ASSERT_EQ(columns.size(), 2);
    EXPECT_EQ(columns[0].attribute(QStringLiteral("w:w")), u"6651");
    EXPECT_EQ(columns[0].attribute(QStringLiteral("w:space")), u"709");
    EXPECT_EQ(columns[1].attribute(QStringLiteral("w:w")), u"6644");
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
                                    QStringLiteral("word/document.xml"));
    const QDomElement page = Elements(body, QStringLiteral("w:pgSz")).first();
    EXPECT_EQ(page.attribute(QStringLiteral("w:w")), u"8391");
    EXPECT_FALSE(page.hasAttribute(QStringLiteral("w:orient")));
    const QDomElement margins = Elements(body, QStringLiteral("w:pgMar")).first();
    QStringList values;
    for (const char* name : {"top", "bottom", "gutter", "header", "footer"})
        values.append(margins.attribute(QStringLiteral("w:") + QString::fromLatin1(name)));
    EXPECT_EQ(values.join(u' '), u"720 740 144 400 420");
    EXPECT_TRUE(Elements(body, QStringLiteral("w:cols")).isEmpty());
}

TEST_F(DocxStructure, FontsAreDeclaredWithTheirKinSoThatALikeOneStandsIn) {
    const QDomElement fonts =
        PartOf(desk.Document(TypeEverything), QStringLiteral("word/fontTable.xml"));
    const QDomElement tahoma = fonts.firstChildElement();
    const QString val = QStringLiteral("val");
    EXPECT_EQ(tahoma.attribute(QStringLiteral("w:name")), u"Tahoma");
    EXPECT_EQ(Setting(tahoma, QStringLiteral("w:altName"), val), u"DejaVu Sans Condensed");
    EXPECT_EQ(Setting(tahoma, QStringLiteral("w:family"), val), u"swiss");
    EXPECT_EQ(Setting(tahoma, QStringLiteral("w:pitch"), val), u"variable");
}

TEST_F(DocxStructure, EveryLineHasAnExactHeightAboveItsLettersSize) {
    const QDomElement styles =
        PartOf(desk.Document(TypeEverything), QStringLiteral("word/styles.xml"));
    int found = 0;
    for (const QDomElement& style : Elements(styles, QStringLiteral("w:style"))) {
        if (style.attribute(QStringLiteral("w:type")) != u"paragraph")
            continue;
        ++found;
        EXPECT_EQ(Setting(style, QStringLiteral("w:spacing"), QStringLiteral("lineRule")),
                  u"exact");
        EXPECT_GE(Setting(style, QStringLiteral("w:spacing"), QStringLiteral("line")).toInt(),
                  Setting(style, QStringLiteral("w:sz"), QStringLiteral("val")).toInt() * 10 *
                      1.15);
        EXPECT_FALSE(Elements(style, QStringLiteral("w:keepLines")).isEmpty());
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
    const QDomElement properties =
        PartOf(desk.Document(TypeEverything), QStringLiteral("docProps/core.xml"));
    EXPECT_EQ(properties.firstChildElement(QStringLiteral("dc:title")).text(), u"Katalog");
}

TEST_F(DocxStructure, DocumentsAreNamedByPaperAndTimeAndNeverLieOverAnOlderOne) {
    EXPECT_FALSE(QFile::exists(desk.Papers()));
    for (int i = 0; i < 3; ++i)
        desk.Document(TypeEverything);
    desk.processors.Create(QStringLiteral("Katalog"))->TypeText(QStringLiteral("given up"));
    EXPECT_EQ(QDir(desk.Papers()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
              QStringList({QStringLiteral("Katalog 2027-05-14 08.31 (2).docx"),
                           QStringLiteral("Katalog 2027-05-14 08.31 (3).docx"),
                           QStringLiteral("Katalog 2027-05-14 08.31.docx")}));
    EXPECT_EQ(desk.opener.files.first(),
              desk.Papers() + QStringLiteral("/Katalog 2027-05-14 08.31.docx"));
}

TEST_F(DocxStructure, ADocumentThatNothingOpensTellsWhereItLies) {
    desk.opener.opens = false;
    const ShownDocument shown = desk.processors.Create(QStringLiteral("Katalog"))->Show();
    EXPECT_FALSE(shown.opened);
    EXPECT_TRUE(QFile::exists(shown.path)) << shown.path.toStdString();
}

TEST_F(DocxStructure, AFolderThatCannotBeMadeIsNamedAndNothingIsOpened) {
    QFile inTheWay(desk.Papers());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const auto word = desk.processors.Create(QStringLiteral("Katalog"));
    word->TypeText(QStringLiteral("a"));
    try {
        (void)word->Show();
        FAIL() << "nothing was raised";
    } catch (const PlatformError& error) {
        EXPECT_TRUE(QString::fromUtf8(error.what()).contains(desk.Papers())) << error.what();
    }
    EXPECT_TRUE(desk.opener.files.isEmpty());
}

} // namespace lorvo::test
