#include "platform/program_lock.h"

#include <QDir>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

TEST(ProgramLock, GivesAFolderToOneProgramAtATime) {
    const QTemporaryDir folder;
    const QTemporaryDir other;
    std::optional<ProgramLock> first(std::in_place, folder.path());
    EXPECT_TRUE(first->IsMine());
    EXPECT_FALSE(ProgramLock(folder.path()).IsMine());
    EXPECT_TRUE(ProgramLock(other.path()).IsMine());
    first.reset();
    EXPECT_TRUE(ProgramLock(folder.path()).IsMine());
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(ProgramLock, DiesWithItsProcess) {
    const QTemporaryDir folder;
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        const ProgramLock lock(folder.path());
        const char isMine = lock.IsMine() ? 'y' : 'n';
        if (write(ends[1], &isMine, 1) != 1)
            _exit(1);
        pause();
    }
    char answer = 0;
    ASSERT_EQ(read(ends[0], &answer, 1), 1);
    EXPECT_EQ(answer, 'y');
    EXPECT_FALSE(ProgramLock(folder.path()).IsMine());
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(ProgramLock(folder.path()).IsMine());
}

TEST(ProgramLock, AFolderThatIsNotThereStandsInNobodysWay) {
    EXPECT_TRUE(ProgramLock(u"/nikde"_s).IsMine());
}

} // namespace
} // namespace lorvo
