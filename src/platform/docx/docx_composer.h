#pragma once
// A document that is composed while it is typed.

#include "platform/clock.h"
#include "platform/docx/document_body.h"
#include "platform/docx/docx_package.h"
#include "platform/docx/docx_page.h"
#include "platform/docx/docx_text.h"
#include "platform/docx/line_count.h"
#include "platform/open_service.h"
#include "platform/word_processor.h"

#include <optional>
#include <utility>
#include <vector>

namespace lorvo::docx {

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
    const LineRoom& Lines();
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
    LineRoom pageLines_;
    std::optional<LineRoom> lines_; ///< those of the end, where they are not the page's
    Styles styles_;
    Page page_;
    ViewSettings view_;
};

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

} // namespace lorvo::docx
