#include "desktop/desktop_services.h"

#include "platform/failure_guard.h"

#include <QApplication>

namespace lorvo {

void DesktopUserInterface::SetWaitCursor(bool on) {
    if (on)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void DesktopUserInterface::ProcessEvents() {
    QCoreApplication::processEvents();
    RethrowFailure();
}

} // namespace lorvo
