#pragma once
// How wide letters are, without the fonts: a document is printed on machines that have others than
// the one it was made on.

#include "platform/docx/docx_styles.h"

#include <cstdint>

namespace lorvo::docx {

/// The fonts that stand in for the one that a document names differ in width by up to a third.
enum class FontWidths {
    Narrowest, ///< those of the named font itself
    Widest     ///< those of the widest font that stands in for it
};

/// Advance widths of letters in one format, in twentieths of a point, its width percentage counted
/// in. Letters beyond the Latin ones are taken for as wide as they are high.
class LetterWidths {
  public:
    /// `factor` widens or narrows all letters alike.
    LetterWidths(const RunFormat& format, FontWidths widths, double factor);

    double Of(QChar letter) const {
        const auto index = static_cast<unsigned>(letter.unicode()) - kFirstLetter;
        return index < kLetters ? table_[index] * unit_ : size_;
    }

    static constexpr unsigned kFirstLetter = 0x20;
    static constexpr unsigned kLetters = 0x160;

  private:
    const std::uint8_t* table_;
    double size_;
    double unit_; ///< of the table
};

} // namespace lorvo::docx
