#pragma once
// Values on one line that change with each node.

#include "forms/one_line.h"

namespace lorvo {

/// A label of plain text on one line, always wide enough for it.
class LineLabel : public QLabel {
  public:
    /// Found by the name of its value, as a value's label is.
    explicit LineLabel(const QString& accessibleName, QWidget* parent = nullptr) : QLabel(parent) {
        setTextFormat(Qt::PlainText);
        setAccessibleName(accessibleName);
    }

    QSize sizeHint() const override { return line_.Of(*this); }
    QSize minimumSizeHint() const override { return line_.Of(*this); }

  private:
    OneLine line_;
};

} // namespace lorvo
