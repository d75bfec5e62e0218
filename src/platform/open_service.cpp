#include "platform/launch_watch.h"
#include "platform/real_services.h"

#include <QDesktopServices>
#include <QUrl>

namespace lorvo {

namespace {

class DesktopOpenService final : public OpenService {
  public:
    bool OpenFile(const QString& path) override {
        const LaunchWatch watch;
        return QDesktopServices::openUrl(QUrl::fromLocalFile(path)) && !watch.HasFailed();
    }
    void OpenAddress(const QString& address) override { QDesktopServices::openUrl(QUrl(address)); }
};

} // namespace

std::unique_ptr<OpenService> MakeOpenService() {
    return std::make_unique<DesktopOpenService>();
}

} // namespace lorvo
