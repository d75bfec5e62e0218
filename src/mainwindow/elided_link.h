#pragma once
// A link whose text is a user's.

#include "forms/controls.h"
#include "forms/elided_label.h"

namespace lorvo {

/// Ends in an ellipsis where its place is too narrow, with the whole text as its tool tip.
class ElidedLink : public LinkLabel {
    Q_OBJECT
  public:
    explicit ElidedLink(QWidget* parent);

    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Ellipsis ellipsis_;
};

} // namespace lorvo
