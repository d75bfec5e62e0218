#pragma once
// The text of a document without its formats, to measure what the formats cost.

#include "platform/word_processor.h"

namespace lorvo {

class PlainText final : public WordProcessor {
  public:
    /// Hands what is typed on to `target`, which is shown by its owner.
    explicit PlainText(WordProcessor& target) : target_(target) {}

    void SetOrientation(PageOrientation) override {}
    void SetPageSize(double, double) override {}
    void SetTopMargin(double) override {}
    void SetBottomMargin(double) override {}
    void SetLeftMargin(double) override {}
    void SetRightMargin(double) override {}
    void SetGutter(double) override {}
    void SetHeaderDistance(double) override {}
    void SetFooterDistance(double) override {}
    void AddTextColumn(double, double) override {}
    void SetFontName(const QString&) override {}
    void SetFontSize(double) override {}
    void SetBold(FontSwitch) override {}
    void SetItalic(bool) override {}
    void SetUnderline(bool) override {}
    void SetAlignment(ParagraphAlignment) override {}
    void SetLeftIndent(double) override {}
    void SetFirstLineIndent(double) override {}
    void AddTabStop(double) override {}
    void ClearTabStop(double) override {}
    void SetKeepWithNext(bool) override {}
    void KeepSheetsWhole() override {}
    void ExpectLines(double, const std::vector<double>&) override {}
    void SetPrintView() override {}
    void SetZoomWholePage() override {}

    void TypeText(const QString& text) override { target_.TypeText(text); }
    void TypeParagraph() override { target_.TypeParagraph(); }
    void SetSelectionText(const QString& text) override { target_.SetSelectionText(text); }
    void InsertPageBreak() override { target_.InsertPageBreak(); }
    void HomeKeyStory() override { target_.HomeKeyStory(); }
    void EndKeyStory() override { target_.EndKeyStory(); }
    void WholeStory() override { target_.WholeStory(); }
    ShownDocument Show() override { return target_.Show(); }

  private:
    WordProcessor& target_;
};

} // namespace lorvo
