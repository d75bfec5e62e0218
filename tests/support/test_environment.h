#pragma once
// What a test program needs around it, so that it runs when started by hand from anywhere.

#include <QByteArray>

namespace lorvo::test {

/// To be called before the application object is made. No screen is needed unless a platform is
/// named, and texts sort and print the same whatever the machine's language is.
inline void PrepareEnvironment() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
}

} // namespace lorvo::test
