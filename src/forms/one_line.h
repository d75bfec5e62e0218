#pragma once
// What a text takes on one line.

#include <QFont>
#include <QLabel>
#include <optional>

namespace lorvo {

/// The size of a label's plain text on one line, where the label has no frame, margin or indent.
/// It is measured once for a text and a font: the toolkit's own label shapes its text three to six
/// times to say what it needs, and layouts ask at each change.
class OneLine {
  public:
    /// A label that has shown nothing yet has room for a letter, as the toolkit's own has.
    QSize Of(const QLabel& label) const;

  private:
    struct Measured {
        QString text;
        QFont font;
        QSize size;
    };
    mutable std::optional<Measured> measured_;
};

} // namespace lorvo
