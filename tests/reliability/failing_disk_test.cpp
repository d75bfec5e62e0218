// Every kind of edit on a disk whose n-th call fails, n from 1 until the edit passes, and through
// power cuts at every call.

#include "platform/values/errors.h"
#include "reliability/edits.h"
#include "store/data_module.h"
#include "support/temp_database.h"
#include "support/watched_disk.h"

#include <QTemporaryDir>
#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>
#include <random>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class FailingDisk : public ::testing::TestWithParam<EditKind> {
  protected:
    const EditKind& Kind() const { return GetParam(); }

    /// Makes edit 1, then edit 2 with call number `fails` of it failing; whether that one passed.
    bool SecondPasses(const QString& folder, int fails, int code, int& calls) {
        TheDataModule().Conn1.Open(folder + u"/data.mdb"_s);
        Kind().make(1, folder);
        WatchedDisk disk(folder);
        disk.before = [=](int number, const DiskCall&) {
            return number == fails ? code : 0;
        };
        bool passes = true;
        try {
            Kind().make(2, folder);
        } catch (const std::exception&) {
            passes = false;
        }
        calls = disk.Calls();
        disk.before = nullptr;
        TheDataModule().Conn1.Close();
        return passes;
    }

    void FailEachCall(int code) {
        for (int fails = 1, calls = 1; fails <= calls; ++fails) {
            const QTemporaryDir folder(TempDatabase::FolderTemplate());
            PrepareFolder(Kind(), folder.path());
            const bool passes = SecondPasses(folder.path(), fails, code, calls);
            const int found = FoundAtNextStart(Kind(), folder.path());
            if (passes)
                EXPECT_EQ(found, 2) << "call " << fails;
            else
                EXPECT_TRUE(found == 1 || found == 2) << "call " << fails << " found " << found;
        }
    }
};

TEST_P(FailingDisk, WithoutRoomLeavesTheEarlierEditOrTheNewOne) {
    FailEachCall(ENOSPC);
}

TEST_P(FailingDisk, ThatReportsAnErrorLeavesTheEarlierEditOrTheNewOne) {
    FailEachCall(EIO);
}

TEST_P(FailingDisk, APowerCutLosesNothingThatWasDone) {
    const QTemporaryDir folder(TempDatabase::FolderTemplate());
    PrepareFolder(Kind(), folder.path());
    const auto before = FilesOf(folder.path());
    std::vector<std::size_t> doneAt; ///< calls made when edit 1, 2, ... was done
    std::vector<DiskCall> calls;
    {
        WatchedDisk disk(folder.path());
        TheDataModule().Conn1.Open(folder.filePath(u"data.mdb"_s));
        for (int number = 1; number <= 3; ++number) {
            Kind().make(number, folder.path());
            doneAt.push_back(disk.Passed().size());
        }
        TheDataModule().Conn1.Close();
        calls = disk.Passed();
    }
    std::mt19937 chance(1);
    for (std::size_t cut = 0; cut <= calls.size(); ++cut) {
        const auto done = static_cast<int>(std::count_if(
            doneAt.begin(), doneAt.end(), [cut](std::size_t at) { return at <= cut; }));
        for (const unsigned survivors : {0U, 2U}) {
            const QTemporaryDir after(TempDatabase::FolderTemplate());
            MakeFiles(after.path(), AfterPowerCut(before, calls, cut, [&] {
                          return survivors != 0 && chance() % survivors == 0;
                      }));
            const int found = FoundAtNextStart(Kind(), after.path());
            EXPECT_TRUE(found >= done && found <= done + 1)
                << "call " << cut << " done " << done << " found " << found;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Edits, FailingDisk,
                         ::testing::ValuesIn(EditKinds().begin(), EditKinds().end()),
                         [](const auto& chosen) { return std::string(chosen.param.name); });

} // namespace
} // namespace lorvo::test
