// Text that is fitted into its room.

#include "platform/docx/docx_fit.h"

#include <gtest/gtest.h>
#include <numeric>

namespace lorvo::docx {

using namespace Qt::StringLiterals;

namespace {

constexpr Twips kWidth = 9000;
constexpr Twips kHeight = 10000;

Paragraph Typed(const QString& text, int halfPoints = 22) {
    RunFormat format;
    format.fontName = u"Arial"_s;
    format.halfPoints = halfPoints;
    Paragraph paragraph;
    paragraph.Append(text, format);
    paragraph.mark = format;
    paragraph.format.lineHeight = LineHeight(halfPoints);
    return paragraph;
}

int Lines(const Paragraph& paragraph, FontWidths widths, Twips width = kWidth) {
    return CountLines(paragraph, {width, {}}, widths, 100);
}

/// Height of the sheet in the widest font.
Twips HeightOf(const std::vector<Paragraph>& sheet) {
    return std::accumulate(
        sheet.begin(), sheet.end(), 0, [](Twips sum, const Paragraph& paragraph) {
            return sum + Lines(paragraph, FontWidths::Widest) * paragraph.format.lineHeight;
        });
}

std::vector<Paragraph> SheetWith(const QString& value, int emptyLines) {
    std::vector<Paragraph> sheet{Typed({}), Typed(u"Nadpis"_s), Typed(value)};
    for (int i = 0; i < emptyLines; ++i)
        sheet.push_back(Typed({}));
    sheet.push_back(Typed(u"podpis"_s));
    return sheet;
}

} // namespace

TEST(LineCount, BreaksAtBlanksAndInsideWordsThatAreTooLong) {
    EXPECT_EQ(Lines(Typed({}), FontWidths::Widest), 1);
    // Ten letters of half the size, 11 points: 1100 twentieths.
    const QString word(10, u'n');
    EXPECT_EQ(Lines(Typed(word), FontWidths::Narrowest, 1300), 1);
    EXPECT_EQ(Lines(Typed(word + u' ' + word), FontWidths::Narrowest, 1300), 2);
    EXPECT_EQ(Lines(Typed(word + u' ' + word), FontWidths::Narrowest, 2600), 1);
    EXPECT_EQ(Lines(Typed(word.repeated(4)), FontWidths::Narrowest, 1300), 4);
    EXPECT_EQ(Lines(Typed(word + QString(30, u' ')), FontWidths::Narrowest, 1300), 1)
        << "blanks at the end of a line stand beyond it";
}

TEST(LineCount, TabsGoToTheNextStop) {
    Paragraph paragraph = Typed(u"a\tnnnnnnnnnn"_s);
    EXPECT_EQ(Lines(paragraph, FontWidths::Narrowest, 2100), 1) << "default stop at 709";
    paragraph.format.tabStops = {1500};
    EXPECT_EQ(Lines(paragraph, FontWidths::Narrowest, 2100), 2);
    EXPECT_EQ(CountLines(paragraph, {2100, {400}}, FontWidths::Narrowest, 100), 1);
}

TEST(LineCount, IndentsTakeRoom) {
    Paragraph paragraph = Typed(u"nnnnnnnnnn nnnnnnnnnn"_s);
    EXPECT_EQ(Lines(paragraph, FontWidths::Narrowest, 2600), 1);
    paragraph.format.firstLineIndent = 600;
    EXPECT_EQ(Lines(paragraph, FontWidths::Narrowest, 2600), 2);
    paragraph.format.firstLineIndent = 0;
    paragraph.format.leftIndent = 1300;
    EXPECT_EQ(Lines(paragraph, FontWidths::Narrowest, 2600), 2);
}

TEST(FitParagraph, NarrowsWhatWouldBreakInAWideFontAlone) {
    Paragraph rule = Typed(QString(120, u'-'));
    ASSERT_EQ(Lines(rule, FontWidths::Narrowest), 1);
    ASSERT_EQ(Lines(rule, FontWidths::Widest), 2);
    FitParagraph(rule, {kWidth, {}});
    EXPECT_EQ(Lines(rule, FontWidths::Widest), 1);
    EXPECT_LT(rule.runs.front().format.widthPercent, 100);
    EXPECT_EQ(rule.runs.front().format.halfPoints, 22);
}

TEST(FitParagraph, LeavesAShortTextAlone) {
    Paragraph paragraph = Typed(u"short"_s);
    FitParagraph(paragraph, {kWidth, {}});
    EXPECT_EQ(paragraph.runs.front().format.widthPercent, 100);
}

TEST(FitSheet, ChangesNothingThatFits) {
    auto sheet = SheetWith(u"Rex z Dvora"_s, 20);
    FitSheet(sheet, {kWidth, {}}, kHeight);
    EXPECT_EQ(HeightOf(sheet), 24 * LineHeight(22));
}

TEST(FitSheet, ALongValueTakesItsRoomFromTheEmptyLinesBelowTheFirstText) {
    auto sheet = SheetWith(u"Alexandrova "_s.repeated(50), 32);
    ASSERT_GT(HeightOf(sheet), kHeight);
    FitSheet(sheet, {kWidth, {}}, kHeight);
    EXPECT_LE(HeightOf(sheet) + LineHeight(22), kHeight) << "no line to spare";
    EXPECT_EQ(sheet.front().format.lineHeight, LineHeight(22)) << "above the first text";
    EXPECT_LT(sheet[3].format.lineHeight, LineHeight(22));
    EXPECT_EQ(sheet[2].runs.front().format.halfPoints, 22) << "letters keep their size";
}

TEST(FitSheet, WhereEmptyLinesDontGiveEnoughTheLongTextsGetSmallerLetters) {
    auto sheet = SheetWith(u"Alexandrova "_s.repeated(250), 4);
    FitSheet(sheet, {kWidth, {}}, kHeight);
    EXPECT_LE(HeightOf(sheet) + LineHeight(22), kHeight);
    EXPECT_LT(sheet[2].runs.front().format.halfPoints, 22);
    EXPECT_EQ(sheet[1].runs.front().format.halfPoints, 22) << "a heading of one line";
}

TEST(FitSheet, ATextBeyondAllMeasureStaysReadable) {
    auto sheet = SheetWith(u"Alexandrova "_s.repeated(3000), 4);
    FitSheet(sheet, {kWidth, {}}, kHeight);
    EXPECT_EQ(sheet[2].runs.front().format.halfPoints, 11);
    std::vector<Paragraph> none;
    FitSheet(none, {kWidth, {}}, kHeight);
    EXPECT_TRUE(none.empty());
}

} // namespace lorvo::docx
