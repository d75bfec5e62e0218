#include "forms/application.h"

#include "platform/platform.h"

#include <QFont>
#include <QTimer>
#include <exception>
#include <utility>

namespace lorvo {

namespace {

/// The first failure that an event handler raised and nobody has passed on yet.
std::exception_ptr pendingFailure;

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
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        if (!pendingFailure)
            pendingFailure = std::current_exception();
        QCoreApplication::exit(1);
        return true;
    }
}

int Application::Run(const std::function<void()>& start) {
    // Within the loop, so that the barrier stands around the start too.
    QTimer::singleShot(0, this, start);
    const int code = exec();
    if (!pendingFailure)
        return code;
    const auto failure = std::exchange(pendingFailure, nullptr);
    ThePlatform().messages->Show(FailureText(failure), MessageIcon::Stop, MessageButtons::Ok,
                                 QStringLiteral("Lorvo"));
    return 1;
}

void Application::RethrowFailure() {
    if (pendingFailure)
        std::rethrow_exception(std::exchange(pendingFailure, nullptr));
}

} // namespace lorvo
