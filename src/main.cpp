// The entry: the desktop's real services, the database, the main window, the event loop.

#include "app/start_up.h"
#include "app/version.h"
#include "desktop/desktop_services.h"
#include "desktop/termination.h"
#include "forms/application.h"
#include "forms/controls.h"
#include "mainwindow/fm_main.h"
#include "platform/console.h"
#include "platform/docx/docx_word_processor.h"
#include "platform/platform.h"
#include "platform/program_lock.h"
#include "platform/real_services.h"

#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>
#include <string>
#include <string_view>

namespace {

void InstallPlatform(lorvo::Platform& platform) {
    platform.programFolder = QCoreApplication::applicationDirPath();
    platform.messages = std::make_unique<lorvo::DesktopMessageBoxes>();
    platform.menus = std::make_unique<lorvo::DesktopPopupMenus>();
    platform.ui = std::make_unique<lorvo::DesktopUserInterface>();
    platform.opener = lorvo::MakeOpenService();
    platform.settings = lorvo::MakeSettingsTree(platform.programFolder);
    platform.iniFiles = lorvo::MakeIniFiles();
    platform.locale = lorvo::MakeLocaleInfo();
    platform.clock = lorvo::MakeClock();
    platform.wordProcessors = std::make_unique<lorvo::DocxWordProcessors>(
        *platform.opener, *platform.clock, platform.programFolder + QStringLiteral("/Tisky"));
}

/// Calendars and the menus of text boxes speak Czech as the rest of the program does.
void SpeakCzech(QTranslator& toolkitTexts) {
    const QLocale czech(QLocale::Czech, QLocale::CzechRepublic);
    QLocale::setDefault(czech);
    if (toolkitTexts.load(czech, QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkitTexts);
}

/// Told without a screen and without data, as packagers and scripts ask for it.
void TellVersion() {
    lorvo::WriteToConsole(std::string("Lorvo ") + lorvo::kVersion + '\n' + lorvo::kCopyright +
                          '\n');
}

int SayThatItRuns() {
    lorvo::Platform& platform = lorvo::ThePlatform();
    platform.messages->Show(
        QStringLiteral("Lorvo už nad složkou „%1“ běží. Přepněte se do jeho okna.")
            .arg(QDir::toNativeSeparators(platform.programFolder)),
        lorvo::MessageIcon::Information, lorvo::MessageButtons::Ok, QStringLiteral("Lorvo"));
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--version") {
        TellVersion();
        return 0;
    }
    lorvo::Application application(argc, argv);
    QTranslator toolkitTexts;
    SpeakCzech(toolkitTexts);
    InstallPlatform(lorvo::ThePlatform());
    lorvo::CloseOnTermination();
    lorvo::Application::setWindowIcon(lorvo::ProgramIcon(QStringLiteral("lorvo")));

    const lorvo::ProgramLock desk(lorvo::ThePlatform().programFolder);
    if (!desk.IsMine())
        return SayThatItRuns();
    std::unique_ptr<lorvo::fm_main> mainWindow;
    return application.Run([&mainWindow] {
        lorvo::OpenDatabase();
        mainWindow = std::make_unique<lorvo::fm_main>();
        mainWindow->Start();
    });
}
