// The entry of the data's own program: a window, or one command for a script.

#include "app/version.h"
#include "desktop/real_platform.h"
#include "desktop/termination.h"
#include "forms/application.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "manager/console_messages.h"
#include "manager/frmSpravce.h"
#include "manager/script_commands.h"
#include "platform/console.h"
#include "platform/platform.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

/// Without a screen.
int RunScript(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    lorvo::InstallRealPlatform();
    lorvo::Platform& platform = lorvo::ThePlatform();
    platform.messages = std::make_unique<lorvo::ConsoleMessages>();
    platform.ui = std::make_unique<lorvo::ConsoleInterface>();
    QString text;
    QTextStream out(&text);
    const int code = lorvo::RunScriptCommand(platform, QCoreApplication::arguments().mid(1), out);
    lorvo::WriteToConsole(text.toStdString());
    return code;
}

int RunWindow(int argc, char** argv) {
    lorvo::Application application(argc, argv);
    lorvo::SpeakCzech();
    lorvo::InstallRealPlatform();
    lorvo::CloseOnTermination();
    lorvo::Application::setWindowIcon(lorvo::ProgramIcon(u"lorvo"_s));
    return application.Run([] {
        lorvo::frmSpravce window(lorvo::ThePlatform());
        lorvo::OpenModal(window);
        QCoreApplication::quit();
    });
}

} // namespace

int main(int argc, char** argv) {
    return argc > 1 ? RunScript(argc, argv) : RunWindow(argc, argv);
}
