#pragma once
// The present moment, so that a test can choose it.

#include "platform/values/date_value.h"

namespace lorvo {

class Clock {
  public:
    virtual ~Clock() = default;
    /// Local date and time of day, whole seconds.
    virtual DateValue Now() const = 0;
};

} // namespace lorvo
