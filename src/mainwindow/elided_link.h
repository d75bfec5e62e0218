#pragma once
// A link whose text is a user's.

#include "forms/controls.h"
#include "forms/elided_label.h"

namespace lorvo {

/// Ends in an ellipsis where its place is too narrow, with the whole text as its tool tip.
class ElidedLink : public Elided<LinkLabel> {
    Q_OBJECT
  public:
    explicit ElidedLink(QWidget* parent) : Elided(QString(), parent) {}
};

} // namespace lorvo
