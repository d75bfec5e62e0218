#include "app/help.h"

#include "platform/platform.h"

#include <QFile>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QString HelpFile() {
    return ThePlatform().programFolder + u"/Lorvo.chm"_s;
}

QString HelpPage(const QString& name) {
    return ThePlatform().programFolder + u"/Nápověda/"_s + name + u".html"_s;
}

QString FirstPage() {
    return HelpPage(u"index"_s);
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
