#include "platform/real_services.h"

#include <QDesktopServices>
#include <QUrl>

namespace lorvo {

namespace {

class DesktopOpenService final : public OpenService {
  public:
    void OpenFile(const QString& path) override {
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    }
    void OpenAddress(const QString& address) override { QDesktopServices::openUrl(QUrl(address)); }
};

} // namespace

std::unique_ptr<OpenService> MakeOpenService() {
    return std::make_unique<DesktopOpenService>();
}

} // namespace lorvo
