// The program's routines killed at random instants, over and over. LORVO_KILLS says how often
// (200), LORVO_SEED where chance begins (1). What is counted is printed as a table.

#include "reliability/edits.h"
#include "store/data_module.h"
#include "support/temp_database.h"

#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <iomanip>
#include <iostream>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

struct Count {
    int kills = 0;
    int edits = 0; ///< that were told as done
    int losses = 0;
    int halves = 0;
    int starts = 0; ///< that failed
};

/// Makes edits and tells each by a byte, until it is killed.
[[noreturn]] void EditForEver(const EditKind& kind, const QString& folder, int reports) {
    TheDataModule().Conn1.Open(folder + u"/data.mdb"_s);
    for (int number = 1; number <= kMostEdits; ++number) {
        kind.make(number, folder);
        if (write(reports, "", 1) != 1)
            _exit(1);
    }
    for (;;)
        pause();
}

/// Kills such a process a while after some of its edits; how many it has told as done.
int EditsUntilKilled(const EditKind& kind, const QString& folder, int heardBefore,
                     useconds_t pauseBefore) {
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        EditForEver(kind, folder, ends[1]);
    }
    close(ends[1]);
    int heard = 0;
    char byte = 0;
    while (heard < heardBefore && read(ends[0], &byte, 1) == 1)
        ++heard;
    usleep(pauseBefore);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    while (read(ends[0], &byte, 1) == 1)
        ++heard;
    close(ends[0]);
    return heard;
}

void KillOnce(const EditKind& kind, std::mt19937& chance, Count& count) {
    const QTemporaryDir folder(TempDatabase::FolderTemplate());
    PrepareFolder(kind, folder.path());
    const int told = EditsUntilKilled(kind, folder.path(), static_cast<int>(chance() % 8),
                                      static_cast<useconds_t>(chance() % 3000));
    ++count.kills;
    count.edits += told;
    try {
        const int found = FoundAtNextStart(kind, folder.path());
        if (found == kHalf || found > told + 1)
            ++count.halves;
        else if (found < told)
            ++count.losses;
    } catch (const std::exception& error) {
        ++count.starts;
        std::cout << kind.name << ": " << error.what() << '\n';
    }
}

void Print(const char* name, const Count& count) {
    std::cout << std::left << std::setw(16) << name << std::right << std::setw(8) << count.kills
              << std::setw(8) << count.edits << std::setw(8) << count.losses << std::setw(8)
              << count.halves << std::setw(8) << count.starts << '\n';
}

TEST(Kills, LoseNoEditAndLeaveNoneInHalf) {
    const int kills = qEnvironmentVariableIsSet("LORVO_KILLS")
                          ? qEnvironmentVariableIntValue("LORVO_KILLS")
                          : 200;
    std::mt19937 chance(static_cast<unsigned>(
        qEnvironmentVariableIsSet("LORVO_SEED") ? qEnvironmentVariableIntValue("LORVO_SEED") : 1));
    std::vector<Count> counts(EditKinds().size());
    for (int round = 0; round < kills; ++round) {
        const std::size_t kind = static_cast<std::size_t>(round) % counts.size();
        KillOnce(EditKinds()[kind], chance, counts[kind]);
    }
    std::cout << "kind               kills   edits  losses  halves  starts failed\n";
    for (std::size_t kind = 0; kind < counts.size(); ++kind) {
        Print(EditKinds()[kind].name, counts[kind]);
        EXPECT_EQ(counts[kind].losses + counts[kind].halves + counts[kind].starts, 0)
            << EditKinds()[kind].name;
    }
}

} // namespace
} // namespace lorvo::test
