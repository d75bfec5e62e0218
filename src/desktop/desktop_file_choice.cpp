#include "desktop/desktop_services.h"
#include "platform/failure_guard.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

namespace lorvo {

using namespace Qt::StringLiterals;

QString WithEnding(const QString& path, const QString& filter) {
    static const QRegularExpression endings(u"\\*(\\.\\w+)"_s);
    QString first;
    for (const QRegularExpressionMatch& match : endings.globalMatch(filter)) {
        if (path.endsWith(match.captured(1), Qt::CaseInsensitive))
            return path;
        if (first.isEmpty())
            first = match.captured(1);
    }
    return path + first;
}

QString DesktopFileChoice::Open(const QString& title, const QString& filter) {
    const QString path =
        QFileDialog::getOpenFileName(QApplication::activeWindow(), title, QString(), filter);
    RethrowFailure();
    return path;
}

QString DesktopFileChoice::Save(const QString& title, const QString& suggestedPath,
                                const QString& filter) {
    QString suggested = suggestedPath;
    while (true) {
        const QString typed =
            QFileDialog::getSaveFileName(QApplication::activeWindow(), title, suggested, filter);
        RethrowFailure();
        const QString path = typed.isEmpty() ? typed : WithEnding(typed, filter);
        if (path == typed || !QFileInfo::exists(path))
            return path;
        suggested = path; // chosen again, so that it is asked about
    }
}

} // namespace lorvo
