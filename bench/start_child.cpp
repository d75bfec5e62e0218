#include "start_child.h"

#include "app/start_up.h"
#include "bare_window.h"
#include "bench_shows.h"
#include "desktop/desktop_services.h"
#include "forms/application.h"
#include "mainwindow/fm_main.h"
#include "platform/platform.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <cstdio>
#include <stdexcept>

#ifdef Q_OS_WIN
#include <windows.h>
// After what it builds on.
#include <psapi.h>
#endif

namespace lorvo::bench {

using namespace Qt::StringLiterals;

namespace {

/// Peak of the resident memory in kB.
int PeakMemory() {
#ifdef Q_OS_WIN
    PROCESS_MEMORY_COUNTERS counters{};
    K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<int>(counters.PeakWorkingSetSize / 1024);
#else
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).replace("kB", "").trimmed().toInt();
    }
    return 0;
#endif
}

[[noreturn]] void Report() {
    std::printf("painted %d\n", PeakMemory());
    std::fflush(stdout);
    std::_Exit(0);
}

void StartProgram(const QString& folder) {
    InstallPlatform(folder);
    Platform& platform = ThePlatform();
    platform.messages = std::make_unique<DesktopMessageBoxes>();
    platform.menus = std::make_unique<DesktopPopupMenus>();
    platform.ui = std::make_unique<DesktopUserInterface>();
    OpenDatabase();
    fm_main window;
    window.Start();
    WaitForPaint(*window.findChild<QTreeView*>(u"tvwMain"_s)->viewport());
    Report();
}

void StartBare(const QString& folder) {
    BareDatabase database(folder + u"/data.mdb"_s);
    BareWindow window;
    window.Load(database);
    window.show();
    WaitForPaint(*window.Tree().viewport());
    Report();
}

} // namespace

StartFigures StartOnce(const QString& side, const QString& folder) {
    QProcess child;
    QElapsedTimer timer;
    timer.start();
    child.start(QCoreApplication::applicationFilePath(), {u"--child"_s, side, folder});
    QByteArray said;
    while (!said.contains('\n') && child.waitForReadyRead(60000))
        said += child.readAllStandardOutput();
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    child.waitForFinished();
    if (!said.startsWith("painted "))
        throw std::runtime_error("the child never painted");
    return {seconds, said.mid(8).trimmed().toDouble() / 1024};
}

int RunChild(int argc, char** argv, const QString& side, const QString& folder) {
    const Application application(argc, argv);
    if (side == u"bare")
        StartBare(folder);
    else
        StartProgram(folder);
    return 1;
}

} // namespace lorvo::bench
