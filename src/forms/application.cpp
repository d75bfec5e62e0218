#include "forms/application.h"

#include "forms/wheel_guard.h"
#include "platform/failure_guard.h"
#include "platform/platform.h"

#include <QFont>
#include <exception>

namespace lorvo {

namespace {

QString FailureText(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    } catch (...) {
        return QStringLiteral("Neznámá chyba.");
    }
}

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    // Machines without Tahoma show its nearest relatives, which have all Czech letters.
    QFont::insertSubstitutions(QStringLiteral("Tahoma"),
                               {QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans"),
                                QStringLiteral("Liberation Sans")});
    installEventFilter(new WheelGuard(this));
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        KeepFailure();
        return true;
    }
}

int Application::Run(const std::function<void()>& start) {
    // Within the loop, so that the start ends it as any handler does.
    Later(this, start);
    const int code = exec();
    const std::exception_ptr failure = TakeFailure();
    if (!failure)
        return code;
    ThePlatform().messages->Show(FailureText(failure), MessageIcon::Stop, MessageButtons::Ok,
                                 QStringLiteral("Lorvo"));
    return 1;
}

} // namespace lorvo
