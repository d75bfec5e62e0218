// What is typed, and the formats it is typed in.

#include "platform/values/errors.h"
#include "support/document_parts.h"

#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class DocxTyping : public testing::Test {
  protected:
    DocumentDesk desk;

    QDomElement Body(const QString& path) const { return PartOf(path, u"word/document.xml"_s); }
    /// The styles that the runs of a paragraph name, one after the other.
    QStringList RunStyles(const QString& path, int paragraph) const {
        const QDomElement p = Elements(Body(path), u"w:p"_s).at(paragraph);
        QStringList styles;
        for (const QDomElement& run : Elements(p, u"w:r"_s))
            styles.append(StyleOf(run));
        return styles;
    }
    QDomElement ParagraphStyle(const QString& path, int paragraph) const {
        return StyleNamed(path, StyleOf(Elements(Body(path), u"w:p"_s).at(paragraph)));
    }
    QStringList TabStops(const QString& path, int paragraph) const {
        QStringList stops;
        for (const QDomElement& tab : Elements(ParagraphStyle(path, paragraph), u"w:tab"_s))
            stops.append(tab.attribute(u"w:pos"_s));
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
        word.TypeText(u"a\r\nb\nc\rd\r\n"_s);
        word.TypeText(u"e\n\nf"_s);
        word.TypeParagraph();
        word.TypeText(u"g"_s);
    });
    EXPECT_EQ(ParagraphsOf(path), QString::fromLatin1("a b c d e  f g").split(u' '));
}

TEST_F(DocxTyping, KeepsTabsBlanksAndMarkupAndDropsControlCharacters) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.TypeText(u"  o. :\tÁron \t<&> \"x\" \u017D\U0001F415"_s);
        word.TypeParagraph();
        word.TypeText(u"a\x01\x0B\x0C"_s + QChar(0xD800) + QChar(0xFFFF));
        word.TypeText(u"\x02"_s);
    });
    EXPECT_EQ(ParagraphsOf(path),
              QStringList({u"  o. :\tÁron \t<&> \"x\" \u017D\U0001F415"_s, u"a"_s}));
    EXPECT_EQ(Elements(Body(path), u"w:r"_s).size(), 2) << "an empty run was written";
}

TEST_F(DocxTyping, BlanksAtTheEdgesArePreserved) {
    const QDomElement body =
        Body(desk.Document([](WordProcessor& word) { word.TypeText(u" a\tb c\td "_s); }));
    QStringList preserved;
    for (const QDomElement& text : Elements(body, u"w:t"_s))
        preserved.append(text.attribute(u"xml:space"_s, u"-"_s));
    EXPECT_EQ(preserved, QStringList({u"preserve"_s, u"-"_s, u"preserve"_s}));
}

TEST_F(DocxTyping, FontsApplyToTheTextTypedAfterThem) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.SetFontName(u"Arial"_s);
        word.SetFontSize(10);
        word.SetBold(FontSwitch::On);
        word.TypeText(u"12 "_s);
        word.SetBold(FontSwitch::Off);
        word.SetFontSize(9);
        word.TypeText(u"Rex "_s);
        word.TypeText(u"z Dvora"_s);
        word.TypeParagraph();
        word.SetItalic(true);
        word.SetUnderline(true);
        word.TypeText(u"x"_s);
    });
    EXPECT_EQ(RunStyles(path, 0), QStringList({u"Znak1"_s, QString()}));
    const QDomElement bold = StyleNamed(path, u"Znak1"_s);
    EXPECT_TRUE(Has(bold, "w:b"));
    EXPECT_EQ(Setting(bold, u"w:sz"_s, u"val"_s), u"20");
    EXPECT_EQ(Setting(bold, u"w:rFonts"_s, u"ascii"_s), u"Arial");
    EXPECT_EQ(Setting(ParagraphStyle(path, 0), u"w:sz"_s, u"val"_s), u"18");
    EXPECT_FALSE(Has(ParagraphStyle(path, 0), "w:b"));
    const QDomElement slanted = StyleNamed(path, RunStyles(path, 1).first());
    EXPECT_TRUE(Has(slanted, "w:i"));
    EXPECT_EQ(Setting(slanted, u"w:u"_s, u"val"_s), u"single");
}

TEST_F(DocxTyping, TogglingBoldFlipsIt) {
    const QString path = desk.Document([](WordProcessor& word) {
        for (const char16_t* text : {u"a", u"b", u"c"}) {
            word.SetBold(FontSwitch::Toggle);
            word.TypeText(QString::fromUtf16(text));
        }
    });
    EXPECT_EQ(RunStyles(path, 0), QStringList({u"Znak1"_s, QString(), u"Znak1"_s}));
    EXPECT_TRUE(Has(StyleNamed(path, u"Znak1"_s), "w:b"));
}

TEST_F(DocxTyping, ParagraphFormatsApplyToTheParagraphAtTheInsertionPointAndThoseAfterIt) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.TypeText(u"a"_s);
        word.TypeParagraph();
        word.TypeText(u"b"_s);
        word.SetAlignment(ParagraphAlignment::Center);
        word.SetLeftIndent(CentimetersToPoints(7.0));
        word.SetFirstLineIndent(CentimetersToPoints(1.25));
        word.TypeParagraph();
        word.TypeText(u"c"_s);
        word.SetAlignment(ParagraphAlignment::Right);
        word.SetFirstLineIndent(CentimetersToPoints(-1.0));
    });
    const QDomElement first = ParagraphStyle(path, 0);
    EXPECT_FALSE(Has(first, "w:tabs") || Has(first, "w:ind") || Has(first, "w:jc"));
    const QDomElement second = ParagraphStyle(path, 1);
    EXPECT_EQ(Setting(second, u"w:jc"_s, u"val"_s), u"center");
    EXPECT_EQ(Setting(second, u"w:ind"_s, u"left"_s), u"3969");
    EXPECT_EQ(Setting(second, u"w:ind"_s, u"firstLine"_s), u"709");
    const QDomElement third = ParagraphStyle(path, 2);
    EXPECT_EQ(Setting(third, u"w:jc"_s, u"val"_s), u"right");
    EXPECT_EQ(Setting(third, u"w:ind"_s, u"hanging"_s), u"567");
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
    EXPECT_EQ(TabStops(path, 0), QStringList({u"567"_s, u"3402"_s}));
    EXPECT_EQ(TabStops(path, 1), QStringList({u"567"_s}));
    EXPECT_EQ(TabStops(path, 2), QStringList());
}

TEST_F(DocxTyping, FormatsOfTheWholeTextReachEveryParagraph) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.SetBold(FontSwitch::On);
        word.TypeText(u"a"_s);
        word.SetBold(FontSwitch::Off);
        word.SetAlignment(ParagraphAlignment::Center);
        word.TypeText(u"b"_s);
        word.TypeParagraph();
        word.SetAlignment(ParagraphAlignment::Left);
        word.TypeText(u"c"_s);
        word.HomeKeyStory();
        word.WholeStory();
        word.AddTabStop(CentimetersToPoints(1.0));
        word.SetFontName(u"Arial"_s);
        word.SetItalic(true);
        word.HomeKeyStory();
    });
    for (int paragraph : {0, 1}) {
        EXPECT_EQ(TabStops(path, paragraph), QStringList({u"567"_s}));
        EXPECT_EQ(Setting(ParagraphStyle(path, paragraph), u"w:rFonts"_s, u"ascii"_s), u"Arial");
    }
    // Italic stands once on the way to each text: in the paragraph's style or in the character's.
    EXPECT_TRUE(Has(ParagraphStyle(path, 0), "w:i"));
    EXPECT_FALSE(Has(StyleNamed(path, u"Znak1"_s), "w:i"));
    EXPECT_TRUE(Has(StyleNamed(path, u"Znak1"_s), "w:b"));
    EXPECT_TRUE(Has(StyleNamed(path, RunStyles(path, 1).first()), "w:i"));
}

TEST_F(DocxTyping, HeadingsStayWithWhatFollowsThem) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.SetKeepWithNext(true);
        word.TypeText(u"heading\n"_s);
        word.SetKeepWithNext(false);
        word.TypeText(u"text"_s);
    });
    EXPECT_TRUE(Has(ParagraphStyle(path, 0), "w:keepNext"));
    EXPECT_FALSE(Has(ParagraphStyle(path, 1), "w:keepNext"));
}

TEST_F(DocxTyping, SelectedTextIsReplacedUntilTheInsertionPointMoves) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.TypeText(u"a"_s);
        word.SetSelectionText(u"\r\n"_s);
        word.SetSelectionText(u"\r\n"_s);
        word.EndKeyStory();
        word.TypeText(u"b"_s);
        word.SetSelectionText(u"lost"_s);
        word.TypeText(u"c"_s);
        word.SetSelectionText(u"d"_s);
        word.HomeKeyStory();
    });
    EXPECT_EQ(ParagraphsOf(path), QStringList({u"a"_s, u"bcd"_s}));
}

TEST_F(DocxTyping, APageBreakEndsItsParagraph) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.TypeText(u"a"_s);
        word.InsertPageBreak();
        word.TypeText(u"b"_s);
    });
    EXPECT_EQ(ParagraphsOf(path), QStringList({u"a{page}"_s, u"b"_s}));
}

TEST_F(DocxTyping, OneSizeForTheWholeTextMakesItsLinesAlike) {
    const QString path = desk.Document([](WordProcessor& word) {
        word.SetFontSize(14);
        word.TypeText(u"a"_s);
        word.TypeParagraph();
        word.SetFontSize(8);
        word.TypeText(u"b"_s);
        word.HomeKeyStory();
        word.WholeStory();
        word.SetFontSize(10);
        word.HomeKeyStory();
    });
    const auto height = [&](int paragraph) {
        return Setting(ParagraphStyle(path, paragraph), u"w:spacing"_s, u"line"_s);
    };
    EXPECT_FALSE(height(0).isEmpty());
    EXPECT_EQ(height(0), height(1));
}

TEST_F(DocxTyping, RefusesToTypeAwayFromTheEnd) {
    const auto word = desk.processors.Create(u"Katalog"_s);
    word->TypeText(u"a"_s);
    word->HomeKeyStory();
    EXPECT_THROW(word->TypeText(u"b"_s), PlatformError);
    EXPECT_THROW(word->SetFontSize(8), PlatformError);
    EXPECT_THROW(word->AddTabStop(8), PlatformError);
    word->WholeStory();
    EXPECT_THROW(word->TypeParagraph(), PlatformError);
    word->EndKeyStory();
    word->TypeText(u"c"_s);
    EXPECT_EQ(ParagraphsOf(word->Show().path), QStringList({u"ac"_s}));
}

} // namespace lorvo::test
