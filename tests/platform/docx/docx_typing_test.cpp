// What is typed, and the formats it is typed in.

#include "platform/values/errors.h"
#include "support/document_parts.h"

#include <gtest/gtest.h>

namespace lorvo::test {

namespace {

class DocxTyping : public testing::Test {
  protected:
    DocumentDesk desk;

    QDomElement Body(const QString& path) const {
        return PartOf(path, QStringLiteral("word/document.xml"));
    }
    /// The styles that the runs of a paragraph name, one after the other.
    QStringList RunStyles(const QString& path, int paragraph) const {
        const QDomElement p = Elements(Body(path), QStringLiteral("w:p")).at(paragraph);
        QStringList styles;
        for (const QDomElement& run : Elements(p, QStringLiteral("w:r")))
            styles.append(StyleOf(run));
        return styles;
    }
    QDomElement ParagraphStyle(const QString& path, int paragraph) const {
        return StyleNamed(path, StyleOf(Elements(Body(path), QStringLiteral("w:p")).at(paragraph)));
    }
    QStringList TabStops(const QString& path, int paragraph) const {
        QStringList stops;
        for (const QDomElement& tab :
             Elements(ParagraphStyle(path, paragraph), QStringLiteral("w:tab")))
            stops.append(tab.attribute(QStringLiteral("w:pos")));
        return stops;
    }
};

bool Has(const QDomElement& style, const char* element) {
    return !Elements(style, QString::fromLatin1(element)).isEmpty();
}

} // namespace

TEST_F(DocxTyping, AnEmptyDocumentHasOneParagraph) {
    EXPECT_EQ(ParagraphsOf(desk.Document([](WordProcessor&) {})), QStringList({QString()}));
}

TEST_F(DocxTyping, LineBreaksInTypedTextAreParagraphMarks) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.TypeText(QStringLiteral("a\r\nb\nc\rd\r\n"));
        word.TypeText(QStringLiteral("e\n\nf"));
        word.TypeParagraph();
        word.TypeText(QStringLiteral("g"));
    });
    EXPECT_EQ(ParagraphsOf(path), QString::fromLatin1("a b c d e  f g").split(u' '));
}

TEST_F(DocxTyping, KeepsTabsBlanksAndMarkupAndDropsControlCharacters) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.TypeText(QStringLiteral("  o. :\tÁron \t<&> \"x\" \u017D\U0001F415"));
        word.TypeParagraph();
        word.TypeText(QStringLiteral("a\x01\x0B\x0C") + QChar(0xD800) + QChar(0xFFFF));
        word.TypeText(QStringLiteral("\x02"));
    });
    EXPECT_EQ(ParagraphsOf(path),
              QStringList({QStringLiteral("  o. :\tÁron \t<&> \"x\" \u017D\U0001F415"),
                           QStringLiteral("a")}));
    EXPECT_EQ(Elements(Body(path), QStringLiteral("w:r")).size(), 2) << "an empty run was written";
}

TEST_F(DocxTyping, BlanksAtTheEdgesArePreserved) {
    const QDomElement body = Body(
        desk.Document([](WordProcessor& word) { word.TypeText(QStringLiteral(" a\tb c\td ")); }));
    QStringList preserved;
    for (const QDomElement& text : Elements(body, QStringLiteral("w:t")))
        preserved.append(text.attribute(QStringLiteral("xml:space"), QStringLiteral("-")));
    EXPECT_EQ(preserved, QStringList({QStringLiteral("preserve"), QStringLiteral("-"),
                                      QStringLiteral("preserve")}));
}

TEST_F(DocxTyping, FontsApplyToTheTextTypedAfterThem) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.SetFontName(QStringLiteral("Arial"));
        word.SetFontSize(10);
        word.SetBold(FontSwitch::On);
        word.TypeText(QStringLiteral("12 "));
        word.SetBold(FontSwitch::Off);
        word.SetFontSize(9);
        word.TypeText(QStringLiteral("Rex "));
        word.TypeText(QStringLiteral("z Dvora"));
        word.TypeParagraph();
        word.SetItalic(true);
        word.SetUnderline(true);
        word.TypeText(QStringLiteral("x"));
    });
    EXPECT_EQ(RunStyles(path, 0), QStringList({QStringLiteral("Znak1"), QString()}));
    const QDomElement bold = StyleNamed(path, QStringLiteral("Znak1"));
    EXPECT_TRUE(Has(bold, "w:b"));
    EXPECT_EQ(Setting(bold, QStringLiteral("w:sz"), QStringLiteral("val")), u"20");
    EXPECT_EQ(Setting(bold, QStringLiteral("w:rFonts"), QStringLiteral("ascii")), u"Arial");
    EXPECT_EQ(Setting(ParagraphStyle(path, 0), QStringLiteral("w:sz"), QStringLiteral("val")),
              u"18");
    EXPECT_FALSE(Has(ParagraphStyle(path, 0), "w:b"));
    const QDomElement slanted = StyleNamed(path, RunStyles(path, 1).first());
    EXPECT_TRUE(Has(slanted, "w:i"));
    EXPECT_EQ(Setting(slanted, QStringLiteral("w:u"), QStringLiteral("val")), u"single");
}

TEST_F(DocxTyping, TogglingBoldFlipsIt) {
    const QString path = desk.Document([](WordProcessor& word) {
        for (const char16_t* text : {u"a", u"b", u"c"}) {
            word.SetBold(FontSwitch::Toggle);
            word.TypeText(QString::fromUtf16(text));
        }
    });
    EXPECT_EQ(RunStyles(path, 0),
              QStringList({QStringLiteral("Znak1"), QString(), QStringLiteral("Znak1")}));
    EXPECT_TRUE(Has(StyleNamed(path, QStringLiteral("Znak1")), "w:b"));
}

TEST_F(DocxTyping, ParagraphFormatsApplyToTheParagraphAtTheInsertionPointAndThoseAfterIt) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.TypeText(QStringLiteral("a"));
        word.TypeParagraph();
        word.TypeText(QStringLiteral("b"));
        word.SetAlignment(ParagraphAlignment::Center);
        word.SetLeftIndent(CentimetersToPoints(7.0));
        word.SetFirstLineIndent(CentimetersToPoints(1.25));
        word.TypeParagraph();
        word.TypeText(QStringLiteral("c"));
        word.SetAlignment(ParagraphAlignment::Right);
        word.SetFirstLineIndent(CentimetersToPoints(-1.0));
    });
    const QDomElement first = ParagraphStyle(path, 0);
    EXPECT_FALSE(Has(first, "w:tabs") || Has(first, "w:ind") || Has(first, "w:jc"));
    const QDomElement second = ParagraphStyle(path, 1);
    EXPECT_EQ(Setting(second, QStringLiteral("w:jc"), QStringLiteral("val")), u"center");
    EXPECT_EQ(Setting(second, QStringLiteral("w:ind"), QStringLiteral("left")), u"3969");
    EXPECT_EQ(Setting(second, QStringLiteral("w:ind"), QStringLiteral("firstLine")), u"709");
    const QDomElement third = ParagraphStyle(path, 2);
    EXPECT_EQ(Setting(third, QStringLiteral("w:jc"), QStringLiteral("val")), u"right");
    EXPECT_EQ(Setting(third, QStringLiteral("w:ind"), QStringLiteral("hanging")), u"567");
}

TEST_F(DocxTyping, TabStopsAreSetOnceInOrderAndCleared) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.AddTabStop(CentimetersToPoints(6.0));
        word.AddTabStop(CentimetersToPoints(1.0));
        word.AddTabStop(CentimetersToPoints(6.0));
        word.TypeParagraph();
        word.ClearTabStop(CentimetersToPoints(6.0));
        word.TypeParagraph();
        word.ClearTabStop(CentimetersToPoints(1.0));
        word.ClearTabStop(CentimetersToPoints(9.0));
    });
    EXPECT_EQ(TabStops(path, 0), QStringList({QStringLiteral("567"), QStringLiteral("3402")}));
    EXPECT_EQ(TabStops(path, 1), QStringList({QStringLiteral("567")}));
    EXPECT_EQ(TabStops(path, 2), QStringList());
}

TEST_F(DocxTyping, FormatsOfTheWholeTextReachEveryParagraph) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.SetBold(FontSwitch::On);
        word.TypeText(QStringLiteral("a"));
        word.SetBold(FontSwitch::Off);
        word.SetAlignment(ParagraphAlignment::Center);
        word.TypeText(QStringLiteral("b"));
        word.TypeParagraph();
        word.SetAlignment(ParagraphAlignment::Left);
        word.TypeText(QStringLiteral("c"));
        word.HomeKeyStory();
        word.WholeStory();
        word.AddTabStop(CentimetersToPoints(1.0));
        word.SetFontName(QStringLiteral("Arial"));
        word.SetItalic(true);
        word.HomeKeyStory();
    });
    for (int paragraph : {0, 1}) {
        EXPECT_EQ(TabStops(path, paragraph), QStringList({QStringLiteral("567")}));
        EXPECT_EQ(Setting(ParagraphStyle(path, paragraph), QStringLiteral("w:rFonts"),
                          QStringLiteral("ascii")),
                  u"Arial");
    }
    // Italic stands once on the way to each text: in the paragraph's style or in the character's.
    EXPECT_TRUE(Has(ParagraphStyle(path, 0), "w:i"));
    EXPECT_FALSE(Has(StyleNamed(path, QStringLiteral("Znak1")), "w:i"));
    EXPECT_TRUE(Has(StyleNamed(path, QStringLiteral("Znak1")), "w:b"));
    EXPECT_TRUE(Has(StyleNamed(path, RunStyles(path, 1).first()), "w:i"));
}

TEST_F(DocxTyping, HeadingsStayWithWhatFollowsThem) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.SetKeepWithNext(true);
        word.TypeText(QStringLiteral("heading\n"));
        word.SetKeepWithNext(false);
        word.TypeText(QStringLiteral("text"));
    });
    EXPECT_TRUE(Has(ParagraphStyle(path, 0), "w:keepNext"));
    EXPECT_FALSE(Has(ParagraphStyle(path, 1), "w:keepNext"));
}

TEST_F(DocxTyping, SelectedTextIsReplacedUntilTheInsertionPointMoves) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.TypeText(QStringLiteral("a"));
        word.SetSelectionText(QStringLiteral("\r\n"));
        word.SetSelectionText(QStringLiteral("\r\n"));
        word.EndKeyStory();
        word.TypeText(QStringLiteral("b"));
        word.SetSelectionText(QStringLiteral("lost"));
        word.TypeText(QStringLiteral("c"));
        word.SetSelectionText(QStringLiteral("d"));
        word.HomeKeyStory();
    });
    EXPECT_EQ(ParagraphsOf(path), QStringList({QStringLiteral("a"), QStringLiteral("bcd")}));
}

TEST_F(DocxTyping, APageBreakEndsItsParagraph) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.TypeText(QStringLiteral("a"));
        word.InsertPageBreak();
        word.TypeText(QStringLiteral("b"));
    });
    EXPECT_EQ(ParagraphsOf(path), QStringList({QStringLiteral("a{page}"), QStringLiteral("b")}));
}

TEST_F(DocxTyping, RefusesToTypeAwayFromTheEnd) {
    const auto word = desk.processors.Create(QStringLiteral("Katalog"));
    word->TypeText(QStringLiteral("a"));
    word->HomeKeyStory();
    EXPECT_THROW(word->TypeText(QStringLiteral("b")), PlatformError);
    EXPECT_THROW(word->SetFontSize(8), PlatformError);
    EXPECT_THROW(word->AddTabStop(8), PlatformError);
    word->WholeStory();
    EXPECT_THROW(word->TypeParagraph(), PlatformError);
    word->EndKeyStory();
    word->TypeText(QStringLiteral("c"));
    EXPECT_EQ(ParagraphsOf(word->Show().path), QStringList({QStringLiteral("ac")}));
}

} // namespace lorvo::test
