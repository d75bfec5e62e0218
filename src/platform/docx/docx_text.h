#pragma once
// A paragraph as it is typed.

#include "platform/docx/docx_styles.h"

#include <QString>
#include <QStringView>
#include <vector>

namespace lorvo::docx {

/// What stands behind the text of a paragraph.
enum class ParagraphEnd { Mark, PageBreak };

struct Run {
    RunFormat format;
    qsizetype end; ///< position in the text behind the run's last character
};

struct Paragraph {
    QString text;
    std::vector<Run> runs;
    ParagraphFormat format;
    RunFormat mark; ///< the font at its end
    ParagraphEnd end = ParagraphEnd::Mark;

    /// Appends text without line breaks. Control characters but the tab, and halves of surrogate
    /// pairs, have no place in a document and are left out.
    void Append(QStringView appended, const RunFormat& runFormat);
    /// Takes the text away, and keeps its room for the next one.
    void Clear();
    /// Size of the largest letters in it, or of its mark where it has none.
    int LargestHalfPoints() const;
};

void WriteParagraph(XmlWriter& xml, Styles& styles, const Paragraph& paragraph);

} // namespace lorvo::docx
