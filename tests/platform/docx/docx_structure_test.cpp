// What the parts of a document promise to any word processor, and what becomes of its files.

#include "platform/docx/document_parts.h"
#include "platform/values/errors.h"

#include <QDirIterator>
#include <gtest/gtest.h>
#include <map>

namespace lorvo::test {

namespace {

/// The children that these elements may have, in the order that the schema asks for.
const std::map<QString, QStringList> kChildOrder = {
    {QStringLiteral("w:pPr"), QString::fromLatin1("w:pStyle w:tabs w:ind w:jc").split(u' ')},
    {QStringLiteral("w:rPr"),
     QString::fromLatin1("w:rStyle w:rFonts w:b w:bCs w:i w:iCs w:sz w:szCs w:u w:lang")
         .split(u' ')},
    {QStringLiteral("w:sectPr"), QString::fromLatin1("w:type w:pgSz w:pgMar w:cols").split(u' ')},
    {QStringLiteral("w:style"),
     QString::fromLatin1("w:name w:uiPriority w:semiHidden w:qFormat w:pPr w:rPr").split(u' ')},
    {QStringLiteral("w:settings"),
     QString::fromLatin1("w:view w:zoom w:defaultTabStop w:compat w:themeFontLang "
                         "w:decimalSymbol w:listSeparator")
         .split(u' ')},
    {QStringLiteral("w:font"), QString::fromLatin1("w:charset w:pitch").split(u' ')},
};

const QStringList kParts = QString::fromLatin1("word/document.xml word/styles.xml "
                                               "word/settings.xml word/fontTable.xml")
                               .split(u' ');

void ExpectOrderedChildren(const QDomElement& element, const QStringList& order) {
    qsizetype last = -1;
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const qsizetype position = order.indexOf(child.tagName());
        EXPECT_GT(position, last) << child.tagName().toStdString() << " in "
                                  << element.tagName().toStdString();
        last = position;
    }
    EXPECT_GE(last, 0) << "empty " << element.tagName().toStdString();
}

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
    const QString path = desk.Document(TypeEverything);
    for (const QString& part : kParts) {
        const QDomElement root = PartOf(path, part);
        for (const auto& [name, order] : kChildOrder) {
            for (const QDomElement& element : Elements(root, name))
                ExpectOrderedChildren(element, order);
        }
    }
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

TEST_F(DocxStructure, AShownDocumentLiesAloneInItsFolderAndAnUnshownOneLeavesNothing) {
    const QString path = desk.Document(TypeEverything);
    EXPECT_EQ(QDir(QFileInfo(path).path()).entryList(QDir::Files),
              QStringList({QFileInfo(path).fileName()}));
    desk.processors.Create()->TypeText(QStringLiteral("given up"));
    EXPECT_EQ(QDir(desk.folder.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
}

TEST_F(DocxStructure, AMissingTemporaryFolderIsNamed) {
    DocxWordProcessors processors(desk.opener, desk.folder.filePath(QStringLiteral("chybí")));
    try {
        processors.Create();
        FAIL() << "nothing was raised";
    } catch (const PlatformError& error) {
        EXPECT_TRUE(QString::fromUtf8(error.what()).contains(u"chybí")) << error.what();
    }
}

TEST_F(DocxStructure, AFolderThatVanishesBeforeTheEndIsAFailureAndOpensNothing) {
    const auto word = desk.processors.Create();
    word->TypeText(QStringLiteral("a"));
    QDir(desk.folder.path()).removeRecursively();
    EXPECT_THROW(word->Show(), PlatformError);
    EXPECT_TRUE(desk.opener.files.isEmpty());
}

} // namespace lorvo::test
