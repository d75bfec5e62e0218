#include "desktop/termination.h"

#include "platform/failure_guard.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <csignal>
#include <unistd.h>
#endif

namespace lorvo {

#ifdef Q_OS_UNIX

namespace {

int pipeEnds[2] = {-1, -1};

// In a signal's handler little is allowed: a byte through the pipe wakes the event loop.
void Wake(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &byte, 1);
}

} // namespace

void CloseOnTermination() {
    if (pipe(pipeEnds) != 0)
        return;
    auto* notifier =
        new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, QCoreApplication::instance());
    Connect(notifier, &QSocketNotifier::activated, notifier, [notifier] {
        notifier->setEnabled(false);
        QCoreApplication::quit();
    });
    struct sigaction action = {};
    action.sa_handler = Wake;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
    std::signal(SIGXFSZ, SIG_IGN); // a file that may not grow is an ordinary failure of its write
}

#else

void CloseOnTermination() {}

#endif

} // namespace lorvo
