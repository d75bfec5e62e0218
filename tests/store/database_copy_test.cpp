// A copy of the database is there whole or not at all, whatever the disk does.

#include "store/database_copy.h"

#include "platform/values/errors.h"
#include "store/damaged_dogs.h"
#include "store/rings_test.h"
#include "support/watched_disk.h"

#include <QDir>
#include <QFile>
#include <cerrno>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class DatabaseCopyTest : public RingsTest {
  protected:
    QString Target() const { return target.filePath(u"kopie.mdb"_s); }
    QStringList Left() const { return QDir(target.path()).entryList(QDir::Files); }

    QTemporaryDir target{TempDatabase::FolderTemplate()};
};

TEST_F(DatabaseCopyTest, AFileOfThatNameIsNotTouched) {
    QFile there(Target());
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    there.write("cizí");
    there.close();
    EXPECT_THROW(CopyDatabase(database.Path(), Target()), StoreError);
    EXPECT_EQ(there.size(), 5);
}

TEST_F(DatabaseCopyTest, ADamagedDatabaseGivesNoCopy) {
    module.Conn1.Close();
    DamageDogs(database.Path());
    EXPECT_THROW(CopyDatabase(database.Path(), Target()), CorruptStoreError);
    EXPECT_EQ(Left(), QStringList());
}

TEST_F(DatabaseCopyTest, AFailingDiskLeavesNothingOfACopyAndTheDatabaseAsItWas) {
    AddRing();
    bool passed = false;
    for (int failing = 1; !passed; ++failing) {
        ASSERT_LT(failing, 1000);
        for (const int error : {ENOSPC, EIO}) {
            test::WatchedDisk disk(target.path());
            disk.before = [=](int number, const test::DiskCall&) {
                return number == failing ? error : 0;
            };
            const std::string failure =
                FailureOf([this] { CopyDatabase(database.Path(), Target()); });
            passed = disk.Calls() < failing;
            disk.before = nullptr;
            EXPECT_TRUE(!passed || failure.empty()) << failing << failure;
            EXPECT_EQ(Left().isEmpty(), !failure.empty()) << failing;
            QFile::remove(Target());
        }
        EXPECT_EQ(RingsOutside(), 1);
    }
}

} // namespace
} // namespace lorvo
