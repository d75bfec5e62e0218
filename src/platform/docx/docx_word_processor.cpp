#include "platform/docx/docx_word_processor.h"

#include "platform/docx/document_body.h"
#include "platform/docx/docx_fit.h"
#include "platform/docx/docx_package.h"
#include "platform/docx/docx_page.h"
#include "platform/values/errors.h"
#include "platform/whole_file.h"

#include <optional>
#include <utility>

namespace lorvo {

namespace docx {
namespace {

[[noreturn]] void Fail(const QString& message) {
    throw PlatformError(message.toStdString());
}

/// Cuts the first line from the front of a text, and says whether a line break (CR LF, CR or LF)
/// ended it.
QStringView TakeLine(QStringView& text, bool& ended) {
    qsizetype end = 0;
    while (end < text.size() && text[end] != u'\r' && text[end] != u'\n')
        ++end;
    const QStringView line = text.first(end);
    ended = end < text.size();
    const bool pair = ended && text.sliced(end).startsWith(u"\r\n");
    text = text.sliced(ended ? end + (pair ? 2 : 1) : end);
    return line;
}

class Composer final : public WordProcessor {
  public:
    Composer(OpenService& opener, const Clock& clock, QString folder, QString title)
        : opener_(opener), clock_(clock), folder_(std::move(folder)), title_(std::move(title)) {}

    void SetOrientation(PageOrientation orientation) override { page_.SetOrientation(orientation); }
    void SetPageSize(double width, double height) override {
        page_.SetSize(TwipsFromPoints(width), TwipsFromPoints(height));
    }
    void SetTopMargin(double length) override { page_.top = TwipsFromPoints(length); }
    void SetBottomMargin(double length) override { page_.bottom = TwipsFromPoints(length); }
    void SetLeftMargin(double length) override { page_.left = TwipsFromPoints(length); }
    void SetRightMargin(double length) override { page_.right = TwipsFromPoints(length); }
    void SetGutter(double length) override { page_.gutter = TwipsFromPoints(length); }
    void SetHeaderDistance(double length) override { page_.header = TwipsFromPoints(length); }
    void SetFooterDistance(double length) override { page_.footer = TwipsFromPoints(length); }
    void AddTextColumn(double width, double spacing) override {
        page_.AddTextColumn(TwipsFromPoints(width), TwipsFromPoints(spacing));
    }

    void SetFontName(const QString& name) override {
        ChangeFont([&](RunFormat& font) { font.fontName = name; });
    }
    void SetFontSize(double points) override {
        ChangeFont([&](RunFormat& font) { font.halfPoints = qRound(points * 2); });
        if (place_ == Place::Whole)
            SetAllLineHeights();
    }
    void SetBold(FontSwitch value) override {
        Switch(&RunFormat::bold,
               value == FontSwitch::Toggle ? !font_.bold : value == FontSwitch::On);
    }
    void SetItalic(bool on) override { Switch(&RunFormat::italic, on); }
    void SetUnderline(bool on) override { Switch(&RunFormat::underline, on); }

    void SetAlignment(ParagraphAlignment alignment) override {
        ChangeParagraph([&](ParagraphFormat& format) { format.alignment = alignment; });
    }
    void SetLeftIndent(double points) override {
        ChangeParagraph(
            [&](ParagraphFormat& format) { format.leftIndent = TwipsFromPoints(points); });
    }
    void SetFirstLineIndent(double points) override {
        ChangeParagraph(
            [&](ParagraphFormat& format) { format.firstLineIndent = TwipsFromPoints(points); });
    }
    void AddTabStop(double position) override {
        ChangeParagraph(
            [&](ParagraphFormat& format) { format.tabStops.insert(TwipsFromPoints(position)); });
    }
    void ClearTabStop(double position) override {
        ChangeParagraph(
            [&](ParagraphFormat& format) { format.tabStops.erase(TwipsFromPoints(position)); });
    }

    void TypeText(const QString& text) override;
    void TypeParagraph() override;
    void SetSelectionText(const QString& text) override;
    void InsertPageBreak() override;

    void SetKeepWithNext(bool on) override {
        ChangeParagraph([&](ParagraphFormat& format) { format.keepWithNext = on; });
    }
    void KeepSheetsWhole() override { sheetsStayWhole_ = true; }
    void ExpectLines(double width, const std::vector<double>& tabStops) override;

    void HomeKeyStory() override { MoveTo(Place::Start); }
    void EndKeyStory() override { MoveTo(Place::End); }
    void WholeStory() override { MoveTo(Place::Whole); }

    void SetPrintView() override { view_.printView = true; }
    void SetZoomWholePage() override { view_.wholePage = true; }
    ShownDocument Show() override;

  private:
    /// Where the insertion point is, or that all is selected.
    enum class Place { Start, End, Whole };

    void MoveTo(Place place);
    void RequireEnd() const;
    template<typename Change> void ChangeFont(Change change);
    template<typename Change> void ChangeParagraph(Change change);
    void Switch(bool RunFormat::*property, bool on);
    void TypeSelection();
    void TypeLines(QStringView text);
    void EndParagraph(ParagraphEnd end);
    void WriteSheet();
    void SetAllLineHeights();
    LineRoom Lines() const { return lines_.value_or(LineRoom{page_.TextWidth(), {}}); }
    QString FileStem() const;

    OpenService& opener_;
    const Clock& clock_;
    const QString folder_;
    const QString title_;
    DocumentBody body_;

    Place place_ = Place::End;
    QString selection_; ///< typed text that is still selected at the end
    RunFormat font_;
    ParagraphFormat format_;
    Paragraph paragraph_;
    bool sheetsStayWhole_ = false;
    std::vector<Paragraph> sheet_;
    std::optional<LineRoom> lines_; ///< those of the end, where they are not the page's
    Styles styles_;
    Page page_;
    ViewSettings view_;
};

void Composer::TypeText(const QString& text) {
    RequireEnd();
    selection_.clear();
    TypeLines(text);
}

void Composer::TypeParagraph() {
    RequireEnd();
    selection_.clear();
    EndParagraph(ParagraphEnd::Mark);
}

void Composer::SetSelectionText(const QString& text) {
    RequireEnd();
    selection_ = text;
}

void Composer::InsertPageBreak() {
    RequireEnd();
    selection_.clear();
    EndParagraph(ParagraphEnd::PageBreak);
}

void Composer::ExpectLines(double width, const std::vector<double>& tabStops) {
    lines_.emplace(LineRoom{TwipsFromPoints(width), {}});
    for (const double position : tabStops)
        lines_->tabStops.insert(TwipsFromPoints(position));
}

ShownDocument Composer::Show() {
    TypeSelection();
    EndParagraph(ParagraphEnd::Mark);
    WriteSheet();
    page_.Write(body_.Xml());
    QString path;
    body_.Finish([&](const QByteArray& body) {
        path = WriteNewFile(folder_, FileStem(), QStringLiteral("docx"),
                            PackDocument(title_, body, styles_, view_));
    });
    return {path, opener_.OpenFile(path)};
}

/// "Katalog 2027-05-14 08.31": names in a folder sort by paper and time.
QString Composer::FileStem() const {
    const QString now = QString::fromStdString(clock_.Now().ToIso());
    return title_ + u' ' + now.first(10) + u' ' + now.mid(11, 5).replace(u':', u'.');
}

void Composer::MoveTo(Place place) {
    TypeSelection();
    WriteSheet();
    place_ = place;
}

void Composer::RequireEnd() const {
    if (place_ != Place::End)
        Fail(QStringLiteral("Dokument lze psát jen na jeho konci."));
}

template<typename Change> void Composer::ChangeFont(Change change) {
    if (place_ == Place::Whole) {
        styles_.ChangeAllFonts(change);
        for (Run& run : paragraph_.runs)
            change(run.format);
    } else {
        RequireEnd();
    }
    change(font_);
}

template<typename Change> void Composer::ChangeParagraph(Change change) {
    if (place_ == Place::Whole)
        styles_.ChangeAllParagraphs(change);
    else
        RequireEnd();
    change(format_);
}

void Composer::Switch(bool RunFormat::*property, bool on) {
    if (place_ == Place::Whole) {
        styles_.SwitchAll(property, on);
        for (Run& run : paragraph_.runs)
            run.format.*property = on;
    } else {
        RequireEnd();
    }
    font_.*property = on;
}

void Composer::TypeSelection() {
    TypeLines(selection_);
    selection_.clear();
}

void Composer::TypeLines(QStringView text) {
    for (bool ended = true; ended;) {
        paragraph_.Append(TakeLine(text, ended), font_);
        if (ended)
            EndParagraph(ParagraphEnd::Mark);
    }
}

void Composer::EndParagraph(ParagraphEnd end) {
    paragraph_.format = format_;
    paragraph_.format.lineHeight = LineHeight(paragraph_.LargestHalfPoints());
    paragraph_.mark = font_;
    paragraph_.end = end;
    if (sheetsStayWhole_) {
        sheet_.push_back(std::exchange(paragraph_, {}));
        if (end == ParagraphEnd::PageBreak)
            WriteSheet();
        return;
    }
    FitParagraph(paragraph_, Lines());
    WriteParagraph(body_.Xml(), styles_, paragraph_);
    paragraph_.Clear();
}

void Composer::WriteSheet() {
    FitSheet(sheet_, Lines(), page_.TextHeight());
    for (const Paragraph& paragraph : sheet_)
        WriteParagraph(body_.Xml(), styles_, paragraph);
    sheet_.clear();
}

/// Letters of one size in the whole text stand in lines of one height.
void Composer::SetAllLineHeights() {
    styles_.ChangeAllParagraphs(
        [this](ParagraphFormat& format) { format.lineHeight = LineHeight(font_.halfPoints); });
}

} // namespace
} // namespace docx

DocxWordProcessors::DocxWordProcessors(OpenService& opener, const Clock& clock, QString folder)
    : opener_(opener), clock_(clock), folder_(std::move(folder)) {}

std::unique_ptr<WordProcessor> DocxWordProcessors::Create(const QString& title) {
    return std::make_unique<docx::Composer>(opener_, clock_, folder_, title);
}

} // namespace lorvo
