#include "store/lock_wait.h"

#include "platform/platform.h"

#include <chrono>
#include <sqlite3.h>
#include <thread>
#include <utility>

namespace lorvo {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kPause(20);
constexpr int kPausesUnnoticed = 10;
constexpr int kMostPauses = 1500;

bool showsWaiting = false; ///< there is one connection that waits, on one thread

void ShowWaiting(bool on) {
    if (std::exchange(showsWaiting, on) != on && ThePlatform().ui)
        ThePlatform().ui->SetWaitCursor(on);
}

int Wait(void*, int pauses) {
    if (pauses >= kMostPauses)
        return 0;
    if (pauses >= kPausesUnnoticed)
        ShowWaiting(true);
    std::this_thread::sleep_for(kPause);
    return 1;
}

} // namespace

void WaitForLocks(sqlite3* handle) {
    sqlite3_busy_handler(handle, Wait, nullptr);
}

void EndLockWait() {
    if (showsWaiting)
        ShowWaiting(false);
}

} // namespace lorvo
