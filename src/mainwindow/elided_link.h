#pragma once
// A link whose text is a user's.

#include "forms/access_keys.h"
#include "forms/controls.h"
#include "forms/elided_label.h"
#include "forms/one_line.h"

namespace lorvo {

/// Ends in an ellipsis where its place is too narrow, with the whole text as its tool tip.
class ElidedLink : public Elided<LinkLabel> {
    Q_OBJECT
  public:
    explicit ElidedLink(QWidget* parent) : Elided(QString(), parent) { GiveAccessKeyLast(*this); }

    /// As any link's; kept here too, since the link is measured here.
    void SetReach(int width) {
        reach_ = width;
        LinkLabel::SetReach(width);
    }
    QSize sizeHint() const override { return line_.Of(*this).expandedTo({reach_, 0}); }
    QSize minimumSizeHint() const override { return Ellipsis::LeastSize(*this, line_.Of(*this)); }

  private:
    OneLine line_;
    int reach_ = 0;
};

} // namespace lorvo
