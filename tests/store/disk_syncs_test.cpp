// How often an edit waits for the disk. For systems whose C library lets the calls be counted.

#include "store/rings_test.h"

#include <atomic>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::atomic<int> syncs = 0;

} // namespace

// Stand before the C library's own, so that the engine's syncs of the disk can be counted.
extern "C" int fdatasync(int file) {
    ++syncs;
    return static_cast<int>(syscall(SYS_fdatasync, file));
}
extern "C" int fsync(int file) {
    ++syncs;
    return static_cast<int>(syscall(SYS_fsync, file));
}

namespace lorvo {
namespace {

using DiskSyncsTest = RingsTest;

TEST_F(DiskSyncsTest, ASingleEditIsOnDiskWhenItReturns) {
    for (int count = 1; count <= 3; ++count) {
        const int before = syncs;
        AddRing();
        EXPECT_GE(syncs, before + 1);
        EXPECT_EQ(RingsOutside(), count);
    }
    const int before = syncs;
    module.rsKruhy.Open("DELETE * FROM Kruhy WHERE ID = 1");
    EXPECT_GE(syncs, before + 1);
    EXPECT_EQ(RingsOutside(), 2);
}

TEST_F(DiskSyncsTest, ALongRunOfEditsCostsAFewSyncs) {
    const int before = syncs;
    EditRun run(module.Conn1);
    for (int i = 0; i < 25000; ++i)
        AddRing();
    run.Finish();
    EXPECT_LE(syncs - before, 10);
    EXPECT_EQ(RingsOutside(), 25000);
}

} // namespace
} // namespace lorvo
