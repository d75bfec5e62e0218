#include "platform/real_services.h"
#include "platform/values/qt_date.h"

namespace lorvo {

namespace {

class SystemClock final : public Clock {
  public:
    DateValue Now() const override { return FromQDateTime(QDateTime::currentDateTime()); }
};

} // namespace

std::unique_ptr<Clock> MakeClock() {
    return std::make_unique<SystemClock>();
}

} // namespace lorvo
