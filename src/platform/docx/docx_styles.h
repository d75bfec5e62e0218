#pragma once
// The formats of a document. Each combination that occurs is a style, so that a paragraph and a run
// only name theirs: the file stays small and opens in half the time.

#include "platform/docx/twips.h"

#include <QString>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace lorvo::docx {

class XmlWriter;

struct RunFormat {
    QString fontName = QStringLiteral("Times New Roman");
    int halfPoints = 24;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    int widthPercent = 100; ///< of the letters; below 100 for a text that has to fit its room

    bool operator==(const RunFormat&) const = default;
    /// The same font in its normal weight and width.
    RunFormat Plain() const { return {fontName, halfPoints, false, false, false, 100}; }
};

struct ParagraphFormat {
    ParagraphAlignment alignment = ParagraphAlignment::Left;
    Twips leftIndent = 0;
    Twips firstLineIndent = 0; ///< below 0 for a hanging line
    std::set<Twips> tabStops;
    bool keepWithNext = false;
    Twips lineHeight = 0; ///< of every line, whatever font stands in it

    bool operator==(const ParagraphFormat&) const = default;
};

/// Height of a line for letters of that size. An exact one makes a page hold the same with any
/// font, whose own line heights differ by a third.
constexpr Twips LineHeight(int halfPoints) {
    return (halfPoints * 10 * 115 + 99) / 100;
}

/// The styles that a document has needed so far. A number once given stays the format's own.
class Styles {
  public:
    Styles();

    /// The paragraph style with this format and the plain font of `mark`, which is the font of the
    /// paragraph's mark and of all text in it that names no character style.
    int ParagraphStyle(const ParagraphFormat& format, const RunFormat& mark);
    /// The character style of a run in a paragraph of that style; nothing when the run looks as the
    /// paragraph's style makes it look anyway.
    [[nodiscard]] std::optional<int> CharacterStyle(const RunFormat& run, int paragraphStyle);

    /// Names of the styles in the document; the paragraph style 0 is the default one.
    static std::string ParagraphStyleId(int style);
    static std::string CharacterStyleId(int style);

    /// Changes the format of all paragraphs typed so far.
    template<typename Change> void ChangeAllParagraphs(Change change) {
        for (Paragraph& style : paragraphs_)
            change(style.format);
    }
    /// Changes the font name or size of all text typed so far.
    template<typename Change> void ChangeAllFonts(Change change) {
        for (Paragraph& style : paragraphs_)
            change(style.run);
        for (RunFormat& style : characters_)
            change(style);
    }
    /// Switches bold, italic or underlined for all text typed so far.
    void SwitchAll(bool RunFormat::*property, bool on);

    /// The parts of the package.
    void WriteStyles(XmlWriter& xml) const;
    void WriteFontTable(XmlWriter& xml) const;

  private:
    struct Paragraph {
        ParagraphFormat format;
        RunFormat run;
    };
    std::vector<Paragraph> paragraphs_;
    std::vector<RunFormat> characters_;
};

} // namespace lorvo::docx
