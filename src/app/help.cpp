#include "app/help.h"

#include "platform/platform.h"

#include <QFile>

namespace lorvo {

namespace {

QString HelpFile() {
    return ThePlatform().programFolder + QStringLiteral("/Lorvo.chm");
}

QString HelpPage(const QString& name) {
    return ThePlatform().programFolder + QStringLiteral("/Nápověda/") + name +
           QStringLiteral(".html");
}

QString FirstPage() {
    return HelpPage(QStringLiteral("index"));
}

} // namespace

// Where the pages can't be opened either, the desktop has said so itself.
void OpenHelp() {
    OpenService& opener = *ThePlatform().opener;
    if (!opener.OpenFile(HelpFile()) && QFile::exists(FirstPage()))
        static_cast<void>(opener.OpenFile(FirstPage()));
}

void OpenHelpOn(const QString& window) {
    for (const QString& page : {HelpPage(window), FirstPage()})
        if (QFile::exists(page))
            return static_cast<void>(ThePlatform().opener->OpenFile(page));
    OpenHelp();
}

} // namespace lorvo
