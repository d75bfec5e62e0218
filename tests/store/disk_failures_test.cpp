// What the store says when the disk or another program stands in the way.

#include "platform/platform.h"
#include "platform/values/errors.h"
#include "store/kruhy.h"
#include "store/store_test.h"
#include "support/watched_disk.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <cerrno>
#include <chrono>
#include <thread>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using test::DiskCall;
using test::WatchedDisk;

/// Counts how often the wait cursor is asked for.
class CountingInterface final : public UserInterface {
  public:
    CountingInterface(int& shown, int& taken) : shown_(shown), taken_(taken) {}
    void SetWaitCursor(bool on) override { ++(on ? shown_ : taken_); }
    void ProcessEvents() override {}

  private:
    int& shown_;
    int& taken_;
};

using DiskFailuresTest = StoreTest;

TEST_F(DiskFailuresTest, AFailedWriteNamesFileCauseAndWhatToDo) {
    WatchedDisk disk(database.Folder());
    const auto failureOf = [&](int code) {
        disk.before = [code](int, const DiskCall& call) {
            return call.kind == DiskCall::Kind::Write ? code : 0;
        };
        EXPECT_THROW(InsertRing(u"Kruh"_s), DiskError);
        return FailureOf([] { InsertRing(u"Kruh"_s); });
    };
    const std::string full = failureOf(ENOSPC);
    EXPECT_NE(full.find(database.Path().toStdString() + ": na disku není místo"), std::string::npos)
        << full;
    EXPECT_NE(full.find("Uvolněte"), std::string::npos) << full;
    const std::string tooLarge = failureOf(EFBIG);
    EXPECT_NE(tooLarge.find("větší, než disk nebo systém dovoluje"), std::string::npos) << tooLarge;
    const std::string broken = failureOf(EIO);
    EXPECT_NE(broken.find("disk nelze číst ani zapisovat"), std::string::npos) << broken;
    disk.before = nullptr;
    InsertRing(u"Kruh"_s); // and goes on when the disk does
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Kruhy"), "1");
}

TEST_F(DiskFailuresTest, OneThatIsSkippedIsKeptToBeSaidOnce) {
    WatchedDisk disk(database.Folder());
    disk.before = [](int, const DiskCall&) {
        return ENOSPC;
    };
    EXPECT_FALSE(SkipFailure([] { InsertRing(u"Kruh"_s); }));
    disk.before = nullptr;
    EXPECT_FALSE(SkipFailure([] { ValueOf("SELECT Nic FROM Kruhy"); })); // a statement's own fault
    EXPECT_TRUE(TakeSkippedDiskFailure().contains(u"na disku není místo"));
    EXPECT_EQ(TakeSkippedDiskFailure(), QString());
}

TEST_F(DiskFailuresTest, ARunThatNobodyFinishesEndsWithoutAWordAndTheNextGoesOn) {
    WatchedDisk disk(database.Folder());
    {
        const EditRun run(module.Conn1);
        InsertRing(u"Kruh"_s);
        disk.before = [](int, const DiskCall&) {
            return EIO;
        };
    }
    disk.before = nullptr;
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Kruhy"), "0");
    InsertRing(u"Kruh"_s);
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Kruhy"), "1");
}

TEST_F(DiskFailuresTest, ALockOfSecondsIsWaitedForUnderTheWaitCursor) {
    int shown = 0;
    int taken = 0;
    ThePlatform().ui = std::make_unique<CountingInterface>(shown, taken);
    SQLite::Database backup(database.Path().toStdString(), SQLite::OPEN_READWRITE);
    backup.exec("BEGIN IMMEDIATE");
    std::thread end([&backup] {
        std::this_thread::sleep_for(std::chrono::milliseconds(3300));
        backup.exec("COMMIT");
    });
    InsertRing(u"Kruh"_s);
    end.join();
    ThePlatform().ui.reset();
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Kruhy"), "1");
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(taken, 1);
}

TEST(FullDisk, IsSaidWhenTheFileIsOpenedAndTouchesNothing) {
    const QTemporaryDir folder(TempDatabase::FolderTemplate());
    const QString path = TempDatabase::CopyTo(folder.path());
    const auto before = test::FilesOf(folder.path());
    WatchedDisk disk(folder.path());
    disk.before = [](int, const DiskCall& call) {
        return call.kind == DiskCall::Kind::Write ? ENOSPC : 0;
    };
    Connection connection;
    EXPECT_THROW(connection.Open(path), DiskError);
    const std::string failure = FailureOf([&] { connection.Open(path); });
    EXPECT_NE(failure.find(path.toStdString()), std::string::npos) << failure;
    EXPECT_NE(failure.find("na disku není volné místo"), std::string::npos) << failure;
    EXPECT_EQ(test::FilesOf(folder.path()), before);
}

} // namespace
} // namespace lorvo
