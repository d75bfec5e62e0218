#include "platform/launch_watch.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace lorvo {
namespace {

#ifdef Q_OS_LINUX // where the desktop's opener is a program of its own
bool FailsWith(const QString& command) {
    const LaunchWatch watch;
    EXPECT_TRUE(QProcess::startDetached(QStringLiteral("sh"), {QStringLiteral("-c"), command}));
    return watch.HasFailed();
}

TEST(LaunchWatch, SeesAnOpenerThatFindsNothing) {
    EXPECT_TRUE(FailsWith(QStringLiteral("sleep 0.1; exit 3")));
}

TEST(LaunchWatch, IsContentWithOneThatOpensOrGoesOn) {
    EXPECT_FALSE(FailsWith(QStringLiteral("exit 0")));
    EXPECT_FALSE(FailsWith(QStringLiteral("sleep 3; exit 1")));
}

TEST(LaunchWatch, AnEarlierProgramsEndIsNotThisOnes) {
    const LaunchWatch earlier;
    ASSERT_TRUE(QProcess::startDetached(
        QStringLiteral("sh"), {QStringLiteral("-c"), QStringLiteral("sleep 0.2; exit 1")}));
    EXPECT_FALSE(FailsWith(QStringLiteral("sleep 0.4; exit 0")));
}

#endif

TEST(LaunchWatch, NothingStartedIsNoFailure) {
    const LaunchWatch watch;
    EXPECT_FALSE(watch.HasFailed());
}

} // namespace
} // namespace lorvo
