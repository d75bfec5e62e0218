// The entry: the desktop's real services, the database, the main window, the event loop.

#include "app/start_up.h"
#include "app/version.h"
#include "desktop/real_platform.h"
#include "desktop/termination.h"
#include "forms/application.h"
#include "forms/controls.h"
#include "mainwindow/copy_keeper.h"
#include "mainwindow/fm_main.h"
#include "office/copies/background_copy.h"
#include "platform/console.h"
#include "platform/platform.h"
#include "platform/program_lock.h"
#include "platform/values/errors.h"

#include <QDir>
#include <QStatusBar>
#include <memory>
#include <string>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

/// A database that can't be trusted is never written to; the message says what to put in its place.
void OpenDatabaseOrNameACopy() {
    using namespace lorvo;
    try {
        OpenDatabase();
    } catch (const CorruptStoreError& damage) {
        const CopyOutcome outcome =
            CopyAfterDamage(damage, ThePlatform().programFolder, ThePlatform().clock->Now());
        throw CorruptStoreError(DamageText(outcome).toStdString());
    }
}

/// Told without a screen and without data, as packagers and scripts ask for it.
void TellVersion() {
    lorvo::WriteToConsole(std::string("Lorvo ") + lorvo::kVersion + '\n' + lorvo::kCopyright +
                          '\n');
}

QString ItRuns() {
    return u"Lorvo už nad složkou „%1“ běží. Přepněte se do jeho okna."_s.arg(
        QDir::toNativeSeparators(lorvo::ThePlatform().programFolder));
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--version") {
        TellVersion();
        return 0;
    }
    lorvo::Application application(argc, argv);
    lorvo::SpeakCzech();
    lorvo::InstallRealPlatform();
    lorvo::CloseOnTermination();
    lorvo::Application::setWindowIcon(lorvo::ProgramIcon(u"lorvo"_s));

    const lorvo::ProgramLock desk(lorvo::ThePlatform().programFolder);
    if (!desk.IsMine())
        return application.Tell(ItRuns(), lorvo::MessageIcon::Information);
    std::unique_ptr<lorvo::fm_main> mainWindow;
    return application.Run([&mainWindow] {
        OpenDatabaseOrNameACopy();
        mainWindow = std::make_unique<lorvo::fm_main>();
        mainWindow->Start();
        (new lorvo::CopyKeeper(*mainWindow->statusBar()))->Begin();
    });
}
