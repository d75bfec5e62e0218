#pragma once
// The document route: what a report asks of a word processor, in the words of such a program's
// automation interface. Text is typed at the insertion point; fonts and paragraph formats apply
// to what is typed after them.

#include <QString>
#include <memory>
#include <vector>

namespace lorvo {

/// Points (1/72 inch) of a length in centimetres.
constexpr double CentimetersToPoints(double centimetres) {
    return centimetres * 72.0 / 2.54;
}

enum class PageOrientation { Portrait = 0, Landscape = 1 };
enum class ParagraphAlignment { Left = 0, Center = 1, Right = 2 };
enum class FontSwitch { Off, On, Toggle };

/// What has become of a document.
struct ShownDocument {
    QString path;       ///< of its file
    bool opened = true; ///< false when the desktop has nothing that opens it
};

class WordProcessor {
  public:
    virtual ~WordProcessor() = default;

    // Page geometry. All lengths in points.
    virtual void SetOrientation(PageOrientation orientation) = 0;
    virtual void SetPageSize(double width, double height) = 0;
    virtual void SetTopMargin(double length) = 0;
    virtual void SetBottomMargin(double length) = 0;
    virtual void SetLeftMargin(double length) = 0;
    virtual void SetRightMargin(double length) = 0;
    virtual void SetGutter(double length) = 0;
    virtual void SetHeaderDistance(double length) = 0;
    virtual void SetFooterDistance(double length) = 0;
    /// Adds a text column of the given width, with the gap before it.
    virtual void AddTextColumn(double width, double spacing) = 0;

    // Font of the text typed from now on.
    virtual void SetFontName(const QString& name) = 0;
    virtual void SetFontSize(double points) = 0;
    virtual void SetBold(FontSwitch value) = 0;
    virtual void SetItalic(bool on) = 0;
    virtual void SetUnderline(bool on) = 0;

    // Format of the paragraph at the insertion point and those typed after it; of all paragraphs
    // after WholeStory.
    virtual void SetAlignment(ParagraphAlignment alignment) = 0;
    virtual void SetLeftIndent(double points) = 0;
    virtual void SetFirstLineIndent(double points) = 0;
    /// Left-aligned, no leader.
    virtual void AddTabStop(double position) = 0;
    virtual void ClearTabStop(double position) = 0;

    // Typing. A tab character is a tab; a line break inside the text (CR LF or LF) is a paragraph
    // mark, as when it is typed.
    virtual void TypeText(const QString& text) = 0;
    virtual void TypeParagraph() = 0;
    /// Replaces the selection by the text, which stays selected.
    virtual void SetSelectionText(const QString& text) = 0;
    virtual void InsertPageBreak() = 0;

    // Layout. None of it is text or format of a report; it keeps together on paper what belongs
    // together, with whatever fonts the paper is printed.
    /// Paragraphs typed from now on stay in the column and on the page of the next one.
    virtual void SetKeepWithNext(bool on) = 0;
    /// Each page typed up to a page break is a sheet of its own and must come out as one page.
    virtual void KeepSheetsWhole() = 0;
    /// Lines will have this width and these tab stops in the end, where a report sets its columns
    /// after typing. Without it they have the page's between its margins.
    virtual void ExpectLines(double width, const std::vector<double>& tabStops) = 0;

    // The insertion point.
    virtual void HomeKeyStory() = 0;
    virtual void EndKeyStory() = 0;
    /// Selects the whole text: formats set from now on go to all of it, until the insertion point
    /// moves.
    virtual void WholeStory() = 0;

    // What the clerk sees at the end.
    virtual void SetPrintView() = 0;
    virtual void SetZoomWholePage() = 0;
    /// Puts the document into its file, hands that to the desktop and lets go of it. Raises
    /// PlatformError when the file can't be written.
    [[nodiscard]] virtual ShownDocument Show() = 0;
};

/// Starts word processors: each call gives a hidden instance with one new empty document.
class WordProcessors {
  public:
    virtual ~WordProcessors() = default;
    /// `title` names the document's file and stands in its properties.
    virtual std::unique_ptr<WordProcessor> Create(const QString& title) = 0;
};

} // namespace lorvo
