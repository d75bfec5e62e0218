#include "app/help.h"

#include "platform/platform.h"

#include <QFile>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QString HelpPage(const QString& name, const Platform& platform) {
    return platform.programFolder + u"/Nápověda/"_s + name + u".html"_s;
}

QString FirstPage(const Platform& platform) {
    return HelpPage(u"index"_s, platform);
}

// Where the pages can't be opened either, the desktop has said so itself.
void OpenFirst(const Platform& platform) {
    const QString first = FirstPage(platform);
    if (!platform.opener->OpenFile(platform.programFolder + u"/Lorvo.chm"_s) &&
        QFile::exists(first))
        static_cast<void>(platform.opener->OpenFile(first));
}

} // namespace

void OpenHelp() {
    OpenFirst(ThePlatform());
}

void OpenHelpOn(const QString& window) {
    const Platform& platform = ThePlatform();
    for (const QString& page : {HelpPage(window, platform), FirstPage(platform)})
        if (QFile::exists(page))
            return static_cast<void>(platform.opener->OpenFile(page));
    OpenFirst(platform);
}

} // namespace lorvo
