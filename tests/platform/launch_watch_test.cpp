#include "platform/launch_watch.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

#ifdef Q_OS_LINUX // where the desktop's opener is a program of its own
bool FailsWith(const QString& command) {
    const LaunchWatch watch;
    EXPECT_TRUE(QProcess::startDetached(u"sh"_s, {u"-c"_s, command}));
    return watch.HasFailed();
}

TEST(LaunchWatch, SeesAnOpenerThatFindsNothing) {
    EXPECT_TRUE(FailsWith(u"sleep 0.1; exit 3"_s));
}

TEST(LaunchWatch, IsContentWithOneThatOpensOrGoesOn) {
    EXPECT_FALSE(FailsWith(u"exit 0"_s));
    EXPECT_FALSE(FailsWith(u"sleep 3; exit 1"_s));
}

TEST(LaunchWatch, AnEarlierProgramsEndIsNotThisOnes) {
    const LaunchWatch earlier;
    ASSERT_TRUE(QProcess::startDetached(u"sh"_s, {u"-c"_s, u"sleep 0.2; exit 1"_s}));
    EXPECT_FALSE(FailsWith(u"sleep 0.4; exit 0"_s));
}

#endif

TEST(LaunchWatch, NothingStartedIsNoFailure) {
    const LaunchWatch watch;
    EXPECT_FALSE(watch.HasFailed());
}

} // namespace
} // namespace lorvo
