#include "platform/docx/docx_styles.h"

#include "platform/docx/docx_package.h"
#include "platform/docx/xml_writer.h"

#include <algorithm>

namespace lorvo::docx {

using namespace Qt::StringLiterals;

namespace {

constexpr std::string_view kAlignments[] = {"left", "center", "right"};

void WriteTabs(XmlWriter& xml, const std::set<Twips>& positions) {
    xml.Start("w:tabs");
    for (const Twips position : positions)
        xml.Start("w:tab").Attribute("w:val", "left").Attribute("w:pos", position).End();
    xml.End();
}

void WriteIndents(XmlWriter& xml, const ParagraphFormat& format) {
    xml.Start("w:ind").Attribute("w:left", format.leftIndent);
    if (format.firstLineIndent > 0)
        xml.Attribute("w:firstLine", format.firstLineIndent);
    if (format.firstLineIndent < 0)
        xml.Attribute("w:hanging", -format.firstLineIndent);
    xml.End();
}

void WriteSpacing(XmlWriter& xml, Twips lineHeight) {
    xml.Start("w:spacing").Attribute("w:before", 0).Attribute("w:after", 0);
    xml.Attribute("w:line", lineHeight).Attribute("w:lineRule", "exact").End();
}

/// No paragraph is torn between two columns or pages.
void WriteParagraphFormat(XmlWriter& xml, const ParagraphFormat& format) {
    xml.Start("w:pPr");
    if (format.keepWithNext)
        xml.Empty("w:keepNext");
    xml.Empty("w:keepLines");
    if (!format.tabStops.empty())
        WriteTabs(xml, format.tabStops);
    WriteSpacing(xml, format.lineHeight);
    if (format.leftIndent != 0 || format.firstLineIndent != 0)
        WriteIndents(xml, format);
    if (format.alignment != ParagraphAlignment::Left)
        xml.Empty("w:jc", "w:val", kAlignments[static_cast<int>(format.alignment)]);
    xml.End();
}

/// A property that is on, with its twin for scripts that run from right to left.
void WriteSwitch(XmlWriter& xml, bool on, std::string_view name, std::string_view complexName) {
    if (!on)
        return;
    xml.Empty(name);
    xml.Empty(complexName);
}

void WriteFont(XmlWriter& xml, const QString& name) {
    xml.Start("w:rFonts");
    for (const std::string_view script : {"w:ascii", "w:eastAsia", "w:hAnsi", "w:cs"})
        xml.Attribute(script, QStringView(name));
    xml.End();
}

/// All children of run properties but the language, which only the defaults name.
void WriteRunProperties(XmlWriter& xml, const RunFormat& run) {
    WriteFont(xml, run.fontName);
    WriteSwitch(xml, run.bold, "w:b", "w:bCs");
    WriteSwitch(xml, run.italic, "w:i", "w:iCs");
    if (run.widthPercent != 100)
        xml.Empty("w:w", "w:val", run.widthPercent);
    xml.Empty("w:sz", "w:val", run.halfPoints);
    xml.Empty("w:szCs", "w:val", run.halfPoints);
    if (run.underline)
        xml.Empty("w:u", "w:val", "single");
}

void WriteDefaults(XmlWriter& xml) {
    xml.Start("w:docDefaults").Start("w:rPrDefault").Start("w:rPr");
    WriteRunProperties(xml, RunFormat());
    xml.Start("w:lang").Attribute("w:val", "cs-CZ").Attribute("w:eastAsia", "cs-CZ");
    xml.Attribute("w:bidi", "ar-SA").End();
    xml.End().End().End();
}

void StartStyle(XmlWriter& xml, std::string_view type, int number, const std::string& id,
                const QString& name, bool isDefault) {
    xml.Start("w:style").Attribute("w:type", type);
    xml.Attribute(isDefault ? "w:default" : "w:customStyle", "1");
    xml.Attribute("w:styleId", std::string_view(id));
    xml.Empty("w:name", "w:val", isDefault ? name : u"%1 %2"_s.arg(name).arg(number));
}

/// What a word processor needs to know of a font that the machine lacks.
struct FontKin {
    const char16_t* name;
    std::string_view family;
    const char16_t* standIn; ///< of the same or like widths
};
constexpr FontKin kFonts[] = {
    {u"Arial", "swiss", u"Liberation Sans"},
    {u"Tahoma", "swiss", u"DejaVu Sans Condensed"},
    {u"Times New Roman", "roman", u"Liberation Serif"},
};

void WriteFontEntry(XmlWriter& xml, const QString& name) {
    const auto kin = std::find_if(std::begin(kFonts), std::end(kFonts),
                                  [&](const FontKin& font) { return name == font.name; });
    xml.Start("w:font").Attribute("w:name", QStringView(name));
    if (kin != std::end(kFonts))
        xml.Empty("w:altName", "w:val", QStringView(kin->standIn));
    xml.Empty("w:charset", "w:val", "EE");
    xml.Empty("w:family", "w:val", kin != std::end(kFonts) ? kin->family : "auto");
    xml.Empty("w:pitch", "w:val", "variable");
    xml.End();
}

void WriteDefaultCharacterStyle(XmlWriter& xml) {
    StartStyle(xml, "character", 0, "DefaultParagraphFont", u"Default Paragraph Font"_s, true);
    xml.Empty("w:uiPriority", "w:val", 1);
    xml.Empty("w:semiHidden");
    xml.End();
}

} // namespace

Styles::Styles() : paragraphs_(1) {
    paragraphs_.front().format.lineHeight = LineHeight(RunFormat().halfPoints);
}

int Styles::ParagraphStyle(const ParagraphFormat& format, const RunFormat& mark) {
    const auto fits = [&, run = mark.Plain()](const Paragraph& style) {
        return style.run == run && style.format == format;
    };
    const auto found = std::find_if(paragraphs_.begin(), paragraphs_.end(), fits);
    const auto number = found - paragraphs_.begin();
    if (found == paragraphs_.end())
        paragraphs_.push_back({format, mark.Plain()});
    return static_cast<int>(number);
}

std::optional<int> Styles::CharacterStyle(const RunFormat& run, int paragraphStyle) {
    if (run == paragraphs_[static_cast<std::size_t>(paragraphStyle)].run)
        return {};
    const auto found = std::find(characters_.begin(), characters_.end(), run);
    const auto number = found - characters_.begin();
    if (found == characters_.end())
        characters_.push_back(run);
    return static_cast<int>(number);
}

std::string Styles::ParagraphStyleId(int style) {
    return style == 0 ? "Normal" : "Odstavec" + std::to_string(style);
}

std::string Styles::CharacterStyleId(int style) {
    return "Znak" + std::to_string(style + 1);
}

// Bold and italic of a paragraph style and of a character style cancel each other out, so only one
// of the two may name them.
void Styles::SwitchAll(bool RunFormat::*property, bool on) {
    for (Paragraph& style : paragraphs_)
        style.run.*property = on;
    for (RunFormat& style : characters_)
        style.*property = false;
}

void Styles::WriteStyles(XmlWriter& xml) const {
    xml.Start("w:styles").Attribute("xmlns:w", kMainNamespace);
    WriteDefaults(xml);
    for (int i = 0; i < static_cast<int>(paragraphs_.size()); ++i) {
        const Paragraph& style = paragraphs_[static_cast<std::size_t>(i)];
        StartStyle(xml, "paragraph", i, ParagraphStyleId(i), i == 0 ? u"Normal"_s : u"Odstavec"_s,
                   i == 0);
        xml.Empty("w:qFormat");
        WriteParagraphFormat(xml, style.format);
        xml.Start("w:rPr");
        WriteRunProperties(xml, style.run);
        xml.End().End();
    }
    WriteDefaultCharacterStyle(xml);
    for (int i = 0; i < static_cast<int>(characters_.size()); ++i) {
        StartStyle(xml, "character", i + 1, CharacterStyleId(i), u"Znak"_s, false);
        xml.Empty("w:qFormat");
        xml.Start("w:rPr");
        WriteRunProperties(xml, characters_[static_cast<std::size_t>(i)]);
        xml.End().End();
    }
    xml.End();
}

void Styles::WriteFontTable(XmlWriter& xml) const {
    std::set<QString> names{RunFormat().fontName};
    for (const Paragraph& style : paragraphs_)
        names.insert(style.run.fontName);
    for (const RunFormat& style : characters_)
        names.insert(style.fontName);
    xml.Start("w:fonts").Attribute("xmlns:w", kMainNamespace);
    for (const QString& name : names)
        WriteFontEntry(xml, name);
    xml.End();
}

} // namespace lorvo::docx
