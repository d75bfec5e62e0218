#include "desktop/desktop_services.h"
#include "platform/failure_guard.h"

#include <QApplication>
#include <QFileDialog>

namespace lorvo {

QString DesktopFileChoice::Open(const QString& title, const QString& filter) {
    const QString path =
        QFileDialog::getOpenFileName(QApplication::activeWindow(), title, QString(), filter);
    RethrowFailure();
    return path;
}

QString DesktopFileChoice::Save(const QString& title, const QString& suggestedPath,
                                const QString& filter) {
    const QString path =
        QFileDialog::getSaveFileName(QApplication::activeWindow(), title, suggestedPath, filter);
    RethrowFailure();
    return path;
}

} // namespace lorvo
