#include "platform/docx/line_count.h"

namespace lorvo::docx {

namespace {

/// What programs differ by in spacing letters: kerning draws them together.
constexpr double kTightest = 0.97;
constexpr double kLoosest = 1.01;

class LineCounter {
  public:
    LineCounter(const ParagraphFormat& format, const LineRoom& room)
        : format_(format), room_(room), left_(format.leftIndent), right_(room.width),
          position_(format.leftIndent + format.firstLineIndent) {}

    void Letter(double width, bool breaksBehind) {
        word_ += width;
        if (breaksBehind)
            EndWord();
    }
    /// Blanks at the end of a line stand beyond it.
    void Blank(double width) {
        EndWord();
        position_ += width;
    }
    void Tab() {
        EndWord();
        const double stop = NextStop();
        if (stop > right_)
            NewLine();
        else
            position_ = stop;
    }
    int Lines() {
        EndWord();
        return lines_;
    }

  private:
    void NewLine() {
        ++lines_;
        position_ = left_;
        lineIsEmpty_ = true;
    }
    void EndWord() {
        if (word_ <= 0)
            return;
        if (position_ + word_ > right_ && !lineIsEmpty_)
            NewLine();
        for (; position_ + word_ > right_ && right_ > left_; NewLine())
            word_ -= right_ - position_;
        position_ += word_;
        word_ = 0;
        lineIsEmpty_ = false;
    }
    double NextStop() const {
        double next = 0;
        for (const auto* stops : {&format_.tabStops, &room_.tabStops}) {
            const auto found = stops->upper_bound(static_cast<Twips>(position_));
            if (found != stops->end() && (next == 0 || *found < next))
                next = *found;
        }
        if (next > 0)
            return next;
        return (static_cast<int>(position_ / kDefaultTabStop) + 1.0) * kDefaultTabStop;
    }

    const ParagraphFormat& format_;
    const LineRoom& room_;
    const double left_;
    const double right_;
    double position_;
    double word_ = 0; ///< width of the word that has begun
    int lines_ = 1;
    bool lineIsEmpty_ = true;
};

} // namespace

int CountLines(const Paragraph& paragraph, const LineRoom& room, FontWidths widths, int percent) {
    const double spacing = widths == FontWidths::Widest ? kLoosest : kTightest;
    const double factor = percent / 100.0 * spacing;
    LineCounter counter(paragraph.format, room);
    qsizetype at = 0;
    for (const Run& run : paragraph.runs) {
        const LetterWidths letters(run.format, widths, factor);
        for (; at < run.end; ++at) {
            const QChar letter = paragraph.text[at];
            const double width = letters.Of(letter);
            if (letter == u'\t')
                counter.Tab();
            else if (letter == u' ')
                counter.Blank(width);
            else
                counter.Letter(width, letter == u'-');
        }
    }
    return counter.Lines();
}

} // namespace lorvo::docx
