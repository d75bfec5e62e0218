#include "platform/launch_watch.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX

#include <QDir>
#include <QFile>
#include <QThread>
#include <sys/prctl.h>
#include <sys/wait.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// An opener that finds nothing says so sooner; one that runs as long as what it opened is all
/// right.
constexpr int kPatience = 1500;
constexpr int kStep = 20;

std::set<int> Children() {
    std::set<int> children;
    QDir tasks(u"/proc/self/task"_s);
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile list(tasks.filePath(task + u"/children"_s));
        if (!list.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray& child : list.readAll().simplified().split(' ')) {
            if (!child.isEmpty())
                children.insert(child.toInt());
        }
    }
    return children;
}

/// Whether the child has ended, and badly.
bool EndsBadly(int child) {
    int status = 0;
    for (int waited = 0; waited < kPatience; waited += kStep) {
        const int ended = waitpid(child, &status, WNOHANG);
        if (ended != 0)
            return ended == child && !(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        QThread::msleep(kStep);
    }
    return false;
}

} // namespace

LaunchWatch::LaunchWatch() : before_(Children()) {
    prctl(PR_SET_CHILD_SUBREAPER, 1);
}

LaunchWatch::~LaunchWatch() {
    prctl(PR_SET_CHILD_SUBREAPER, 0);
}

bool LaunchWatch::HasFailed() const {
    for (const int child : Children()) {
        if (!before_.contains(child) && EndsBadly(child))
            return true;
    }
    return false;
}

} // namespace lorvo

#else

namespace lorvo {

LaunchWatch::LaunchWatch() = default;
LaunchWatch::~LaunchWatch() = default;

bool LaunchWatch::HasFailed() const {
    return false;
}

} // namespace lorvo

#endif
