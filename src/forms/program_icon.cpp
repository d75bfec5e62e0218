// The family of pictures, drawn at build time for every size that a display asks for.

#include "forms/controls.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>

/// Outside the namespace, as the resource compiler's function is.
static void LoadIconResources() {
    Q_INIT_RESOURCE(forms);
}

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QHash<QString, QIcon>& LoadedIcons() {
    static QHash<QString, QIcon> icons;
    return icons;
}

/// The folders of the pictures, named by their side in pixels.
QStringList LoadSides() {
    LoadIconResources();
    // Pictures must not outlive the application.
    qAddPostRoutine([] { LoadedIcons().clear(); });
    return QDir(u":/lorvo/icons"_s).entryList(QDir::Dirs);
}

QIcon LoadIcon(const QString& name) {
    static const QStringList sides = LoadSides();
    QIcon icon;
    for (const QString& side : sides) {
        const QString file = u":/lorvo/icons/%1/%2.png"_s.arg(side, name);
        if (QFile::exists(file)) // the icon would take a missing file for a blank picture
            icon.addFile(file, QSize(side.toInt(), side.toInt()));
    }
    return icon;
}

} // namespace

QIcon ProgramIcon(const QString& name) {
    QHash<QString, QIcon>& icons = LoadedIcons();
    const auto loaded = icons.constFind(name);
    return loaded != icons.constEnd() ? *loaded : *icons.insert(name, LoadIcon(name));
}

} // namespace lorvo
