#include "platform/docx/docx_text.h"

#include "platform/docx/xml_writer.h"

#include <algorithm>

namespace lorvo::docx {

namespace {

/// Most of any text: what stands alone and has a place in a document.
bool IsPlainCharacter(QChar character) {
    return (character >= u' ' || character == u'\t') && !character.isSurrogate() &&
           character < QChar(0xFFFE);
}

void AppendAllowed(QString& target, QStringView text) {
    if (std::all_of(text.begin(), text.end(), IsPlainCharacter)) {
        target.append(text);
        return;
    }
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (IsPlainCharacter(character)) {
            target.append(character);
        } else if (character.isHighSurrogate() && i + 1 < text.size() &&
                   text[i + 1].isLowSurrogate()) {
            target.append(character).append(text[++i]);
        }
    }
}

void WriteText(XmlWriter& xml, QStringView text) {
    if (text.isEmpty())
        return;
    xml.Start("w:t");
    if (text.front() == u' ' || text.back() == u' ')
        xml.Attribute("xml:space", "preserve");
    xml.Text(text).End();
}

void WriteTextAndTabs(XmlWriter& xml, QStringView text) {
    for (;;) {
        const qsizetype tab = text.indexOf(u'\t');
        WriteText(xml, tab < 0 ? text : text.first(tab));
        if (tab < 0)
            return;
        xml.Empty("w:tab");
        text = text.sliced(tab + 1);
    }
}

void WriteRun(XmlWriter& xml, QStringView text, std::optional<int> style) {
    xml.Start("w:r");
    if (style) {
        xml.Start("w:rPr");
        xml.Empty("w:rStyle", "w:val", std::string_view(Styles::CharacterStyleId(*style)));
        xml.End();
    }
    WriteTextAndTabs(xml, text);
    xml.End();
}

void WritePageBreak(XmlWriter& xml) {
    xml.Start("w:r");
    xml.Empty("w:br", "w:type", "page");
    xml.End();
}

} // namespace

void Paragraph::Append(QStringView appended, const RunFormat& runFormat) {
    const qsizetype before = text.size();
    AppendAllowed(text, appended);
    if (text.size() == before)
        return;
    if (runs.empty() || runs.back().format != runFormat)
        runs.push_back({runFormat, 0});
    runs.back().end = text.size();
}

void Paragraph::Clear() {
    text.resize(0);
    runs.clear();
}

int Paragraph::LargestHalfPoints() const {
    int largest = runs.empty() ? mark.halfPoints : 0;
    for (const Run& run : runs)
        largest = std::max(largest, run.format.halfPoints);
    return largest;
}

void WriteParagraph(XmlWriter& xml, Styles& styles, const Paragraph& paragraph) {
    const int style = styles.ParagraphStyle(paragraph.format, paragraph.mark);
    xml.Start("w:p");
    if (style != 0) {
        xml.Start("w:pPr");
        xml.Empty("w:pStyle", "w:val", std::string_view(Styles::ParagraphStyleId(style)));
        xml.End();
    }
    qsizetype begin = 0;
    for (const Run& run : paragraph.runs) {
        WriteRun(xml, QStringView(paragraph.text).sliced(begin, run.end - begin),
                 styles.CharacterStyle(run.format, style));
        begin = run.end;
    }
    if (paragraph.end == ParagraphEnd::PageBreak)
        WritePageBreak(xml);
    xml.End();
}

} // namespace lorvo::docx
