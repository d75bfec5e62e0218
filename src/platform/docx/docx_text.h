#pragma once
// The text of the paragraph that is being typed.

#include "platform/docx/docx_styles.h"

#include <QString>
#include <QStringView>
#include <vector>

namespace lorvo::docx {

/// What stands behind the text of a paragraph.
enum class ParagraphEnd { Mark, PageBreak };

class ParagraphText {
  public:
    /// Appends text without line breaks. Control characters but the tab, and halves of surrogate
    /// pairs, have no place in a document and are left out.
    void Append(QStringView text, const RunFormat& format);

    /// Changes the fonts of what has been appended.
    template<typename Change> void ChangeFonts(Change change) {
        for (Run& run : runs_)
            change(run.format);
    }

    /// Writes the paragraph and empties the text. `mark` is the font at its end.
    void WriteParagraph(XmlWriter& xml, Styles& styles, const ParagraphFormat& format,
                        const RunFormat& mark, ParagraphEnd end);

  private:
    struct Run {
        RunFormat format;
        qsizetype end; ///< position in the text behind the run's last character
    };
    QString text_;
    std::vector<Run> runs_;
};

} // namespace lorvo::docx
