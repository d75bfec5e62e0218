#include "desktop/real_platform.h"

#include "desktop/desktop_services.h"
#include "platform/docx/docx_word_processor.h"
#include "platform/platform.h"
#include "platform/real_services.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace lorvo {

using namespace Qt::StringLiterals;

void InstallRealPlatform() {
    Platform& platform = ThePlatform();
    platform.programFolder = QCoreApplication::applicationDirPath();
    platform.messages = std::make_unique<DesktopMessageBoxes>();
    platform.menus = std::make_unique<DesktopPopupMenus>();
    platform.files = std::make_unique<DesktopFileChoice>();
    platform.ui = std::make_unique<DesktopUserInterface>();
    platform.opener = MakeOpenService();
    platform.settings = MakeSettingsTree(platform.programFolder);
    platform.iniFiles = MakeIniFiles();
    platform.locale = MakeLocaleInfo();
    platform.clock = MakeClock();
    platform.wordProcessors = std::make_unique<DocxWordProcessors>(
        *platform.opener, *platform.clock, platform.programFolder + u"/Tisky"_s);
}

void SpeakCzech() {
    const QLocale czech(QLocale::Czech, QLocale::CzechRepublic);
    QLocale::setDefault(czech);
    auto* texts = new QTranslator(QCoreApplication::instance());
    if (texts->load(czech, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(texts);
}

} // namespace lorvo
