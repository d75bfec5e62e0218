#include "platform/docx/docx_fit.h"

#include <algorithm>

namespace lorvo::docx {

namespace {

constexpr int kNarrowestPercent = 70;
/// Empty lines keep at least this part of their height, texts of their letters.
constexpr int kThinnestPercent = 35;
constexpr int kSmallestPercent = 50;
constexpr int kStep = 5;

void NarrowLetters(Paragraph& paragraph, int percent) {
    for (Run& run : paragraph.runs)
        run.format.widthPercent = percent;
}

class SheetFitter {
  public:
    SheetFitter(std::vector<Paragraph>& sheet, const LineRoom& room, Twips height)
        : sheet_(sheet), room_(room), height_(height - sheet.back().format.lineHeight) {
        for (Paragraph& paragraph : sheet_) {
            FitParagraph(paragraph, room_);
            lines_.push_back(LinesOf(paragraph));
        }
    }

    void Fit() {
        ThinEmptyLines();
        for (const int fromLines : {2, 1}) {
            for (int percent = 100 - kStep; Overflow() > 0 && percent >= kSmallestPercent;
                 percent -= kStep)
                ShrinkTexts(percent, fromLines);
        }
    }

  private:
    int LinesOf(const Paragraph& paragraph) const {
        return CountLines(paragraph, room_, FontWidths::Widest, 100);
    }
    Twips Overflow() const;
    void ThinEmptyLines();
    /// Those that take so many lines as typed.
    void ShrinkTexts(int percent, int fromLines);

    std::vector<Paragraph>& sheet_;
    const LineRoom& room_;
    const Twips height_; ///< of the page without the line to spare
    std::vector<int> lines_;
    const std::vector<Paragraph> typed_ = sheet_;
};

Twips SheetFitter::Overflow() const {
    Twips needed = 0;
    for (std::size_t i = 0; i < sheet_.size(); ++i)
        needed += lines_[i] * sheet_[i].format.lineHeight;
    return needed - height_;
}

// What stands above the first text keeps its place: the head of a printed form, the window of an
// envelope.
void SheetFitter::ThinEmptyLines() {
    const Twips overflow = Overflow();
    if (overflow <= 0)
        return;
    const auto isText = [](const Paragraph& paragraph) {
        return !paragraph.text.isEmpty();
    };
    std::vector<Paragraph*> empty;
    Twips room = 0;
    for (auto at = std::find_if(sheet_.begin(), sheet_.end(), isText); at != sheet_.end(); ++at) {
        if (isText(*at))
            continue;
        empty.push_back(&*at);
        room += at->format.lineHeight;
    }
    const Twips left = std::max(room - overflow, room * kThinnestPercent / 100);
    for (Paragraph* paragraph : empty)
        paragraph->format.lineHeight = paragraph->format.lineHeight * left / room;
}

void SheetFitter::ShrinkTexts(int percent, int fromLines) {
    const auto shrunk = [percent](int halfPoints) {
        return halfPoints * percent / 100;
    };
    for (std::size_t i = 0; i < sheet_.size(); ++i) {
        Paragraph& paragraph = sheet_[i];
        if (paragraph.text.isEmpty() || LinesOf(typed_[i]) < fromLines)
            continue;
        paragraph.runs = typed_[i].runs;
        for (Run& run : paragraph.runs)
            run.format.halfPoints = shrunk(run.format.halfPoints);
        paragraph.mark.halfPoints = shrunk(typed_[i].mark.halfPoints);
        paragraph.format.lineHeight = LineHeight(paragraph.LargestHalfPoints());
        FitParagraph(paragraph, room_);
        lines_[i] = LinesOf(paragraph);
    }
}

} // namespace

void FitParagraph(Paragraph& paragraph, const LineRoom& room) {
    if (CountLines(paragraph, room, FontWidths::Widest, 100) == 1)
        return;
    for (int percent = 100; percent >= kNarrowestPercent; --percent) {
        if (CountLines(paragraph, room, FontWidths::Narrowest, percent) ==
            CountLines(paragraph, room, FontWidths::Widest, percent)) {
            NarrowLetters(paragraph, percent);
            return;
        }
    }
}

void FitSheet(std::vector<Paragraph>& sheet, const LineRoom& room, Twips height) {
    if (!sheet.empty())
        SheetFitter(sheet, room, height).Fit();
}

} // namespace lorvo::docx
