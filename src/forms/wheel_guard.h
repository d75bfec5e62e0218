#pragma once
// Keeps the wheel from changing values that nobody has chosen to change.

#include <QObject>

namespace lorvo {

/// As a filter on the application: the wheel over a combo box, date or number without the focus
/// passes it by, scrolls what it lies in, and leaves the keyboard where it is.
class WheelGuard : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace lorvo
