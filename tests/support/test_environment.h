#pragma once
// What a test program needs around it, so that it runs when started by hand from anywhere.

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <chrono>

namespace lorvo::test {

/// To be called before the application object is made. No screen is needed unless a platform is
/// named, and texts sort and print the same whatever the machine's language is.
inline void PrepareEnvironment() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
}

/// To be called once the application object is there. The toolkit's offscreen platform for Windows
/// falls asleep before it hands out the paints that wait, and sleeps until something else happens.
inline void KeepAwake([[maybe_unused]] QObject& application) {
#ifdef Q_OS_WIN
    auto* pulse = new QTimer(&application);
    pulse->start(std::chrono::milliseconds(10));
#endif
}

} // namespace lorvo::test
