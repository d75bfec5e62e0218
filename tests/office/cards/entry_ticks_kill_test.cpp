// Ticks on a process that is killed at any of its calls to the disk.

#include "office/cards/entry_ticks.h"

#include "store/data_module.h"
#include "store/psi_oceneni.h"
#include "store/psi_ve_vystavach.h"
#include "store/vazby_souteze.h"

#include "office/cards/card_test.h"
#include "office/cards/ticked_lines.h"
#include "support/watched_disk.h"

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

using EntryTicksKillTest = CardTest;

/// Runs `write` once and calls `look` with the store opened on the folder's files as a kill at each
/// of its calls to the disk would leave them.
void LookAfterEachKill(const TempDatabase& database, const std::function<void()>& write,
                       const std::function<void()>& look) {
    std::vector<std::map<QString, QByteArray>> kills;
    {
        test::WatchedDisk disk(database.Folder());
        disk.before = [&](int, const test::DiskCall&) {
            kills.push_back(test::FilesOf(database.Folder()));
            return 0;
        };
        write();
    }
    ASSERT_GE(kills.size(), 2U);
    for (const auto& files : kills) {
        const QTemporaryDir folder(TempDatabase::FolderTemplate());
        test::MakeFiles(folder.path(), files);
        TheDataModule().Conn1.Open(folder.filePath(u"data.mdb"_s));
        look();
        TheDataModule().Conn1.Close();
    }
}

TEST_F(EntryTicksKillTest, AKillLeavesTheEarlierTicksOrTheNewOnes) {
    Run("INSERT INTO PsiVeVystavach VALUES (5, 1)");
    Run("INSERT INTO Vazby_Souteze VALUES (5, 3)");
    LookAfterEachKill(
        database, [] { WriteEntries(5, Lines(".x.x")); },
        [] {
            const bool isNew = ShowsOfDog(5) == std::vector({20});
            EXPECT_EQ(ShowsOfDog(5), std::vector({isNew ? 20 : 1}));
            EXPECT_EQ(CompetitionsOfDog(5), std::vector({isNew ? 41 : 3}));
        });
}

TEST_F(EntryTicksKillTest, AKillLeavesTheEarlierAwardsOrTheNewOnes) {
    Run("INSERT INTO PsiOceneni VALUES (5, 1), (5, 2)");
    LookAfterEachKill(
        database, [] { WriteAwards(5, {Line(u"C7"_s, LineIcon::None, true)}); },
        [] {
            const bool isNew = AwardsOfDog(5) == std::vector({7});
            EXPECT_EQ(AwardsOfDog(5), isNew ? std::vector({7}) : std::vector({1, 2}));
        });
}

} // namespace
} // namespace lorvo
