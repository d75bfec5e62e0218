#include "platform/docx/docx_word_processor.h"

#include "platform/docx/docx_package.h"
#include "platform/docx/docx_page.h"
#include "platform/docx/docx_text.h"
#include "platform/docx/xml_writer.h"
#include "platform/values/errors.h"

#include <QFile>
#include <QTemporaryDir>
#include <optional>

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
    Composer(OpenService& opener, const QString& temporaryFolder);

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

    void HomeKeyStory() override { MoveTo(Place::Start); }
    void EndKeyStory() override { MoveTo(Place::End); }
    void WholeStory() override { MoveTo(Place::Whole); }

    void SetPrintView() override { view_.printView = true; }
    void SetZoomWholePage() override { view_.wholePage = true; }
    void Show() override;

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

    OpenService& opener_;
    QTemporaryDir folder_;
    QFile bodyFile_;
    std::optional<XmlWriter> body_;

    Place place_ = Place::End;
    QString selection_; ///< typed text that is still selected at the end
    RunFormat font_;
    ParagraphFormat format_;
    ParagraphText paragraph_;
    Styles styles_;
    Page page_;
    ViewSettings view_;
};

Composer::Composer(OpenService& opener, const QString& temporaryFolder)
    : opener_(opener), folder_(QDir(temporaryFolder).filePath(QStringLiteral("Lorvo-XXXXXX"))),
      bodyFile_(folder_.filePath(QStringLiteral("document.xml"))) {
    if (!folder_.isValid() || !bodyFile_.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        Fail(QStringLiteral("Ve složce „%1“ nelze založit dokument. Zkontrolujte volné místo na "
                            "disku a práva ke složce.")
                 .arg(QDir::toNativeSeparators(temporaryFolder)));
    body_.emplace(bodyFile_);
    body_->Start("w:document").Attribute("xmlns:w", kMainNamespace).Start("w:body");
}

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

void Composer::Show() {
    TypeSelection();
    EndParagraph(ParagraphEnd::Mark);
    page_.Write(*body_);
    body_->End().End().Finish();
    bodyFile_.close();
    const QString path = folder_.filePath(QStringLiteral("Dokument.docx"));
    PackDocument(path, bodyFile_.fileName(), styles_, view_);
    bodyFile_.remove();
    folder_.setAutoRemove(false);
    opener_.OpenFile(path);
}

void Composer::MoveTo(Place place) {
    TypeSelection();
    place_ = place;
}

void Composer::RequireEnd() const {
    if (place_ != Place::End)
        Fail(QStringLiteral("Dokument lze psát jen na jeho konci."));
}

template<typename Change> void Composer::ChangeFont(Change change) {
    if (place_ == Place::Whole) {
        styles_.ChangeAllFonts(change);
        paragraph_.ChangeFonts(change);
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
        paragraph_.ChangeFonts([&](RunFormat& font) { font.*property = on; });
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
    paragraph_.WriteParagraph(*body_, styles_, format_, font_, end);
}

} // namespace
} // namespace docx

DocxWordProcessors::DocxWordProcessors(OpenService& opener, QString temporaryFolder)
    : opener_(opener), temporaryFolder_(std::move(temporaryFolder)) {}

std::unique_ptr<WordProcessor> DocxWordProcessors::Create() {
    return std::make_unique<docx::Composer>(opener_, temporaryFolder_);
}

} // namespace lorvo
