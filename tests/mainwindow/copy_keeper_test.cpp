// The copies that are made while the main window works, and the word about one that failed.

#include "mainwindow/copy_keeper.h"

#include "office/copies/show_copies.h"
#include "office/copies/sweep_copy.h"
#include "platform/failure_guard.h"
#include "platform/values/errors.h"
#include "store/data_module.h"
#include "support/print_qt.h"
#include "support/recording_platform.h"
#include "support/temp_database.h"

#include <QFile>
#include <QStatusBar>
#include <QTest>
#include <gtest/gtest.h>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

class CopyKeeperTest : public ::testing::Test {
  protected:
    CopyKeeperTest() {
        ThePlatform().programFolder = database.Folder();
        platform.now = DateValue::FromCalendar(2027, 5, 14).WithSecondOfDay(8 * 3600);
    }
    ~CopyKeeperTest() override { TakeFailure(); }

    bool IsTold() const { return !keeper.isHidden(); }
    QString TextOf(const CopyOutcome& outcome) {
        keeper.Tell(outcome);
        return keeper.text();
    }
    /// Nothing can be written into a folder that is a file.
    void StandInTheWay() {
        inTheWay.setFileName(CopiesFolder(database.Folder()));
        ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    }

    RecordingPlatform platform;
    TempDatabase database;
    QStatusBar bar;
    CopyKeeper keeper{bar};
    QFile inTheWay;
};

TEST_F(CopyKeeperTest, ACopyThatIsMadeIsNotSpokenOf) {
    keeper.Begin();
    const QString path = CopiesFolder(database.Folder()) + u"/data 2027-05-14 08.00.00.mdb"_s;
    QTRY_VERIFY(QFile::exists(path));
    QCoreApplication::processEvents();
    EXPECT_FALSE(IsTold());
}

TEST_F(CopyKeeperTest, OneThatFailsIsToldWithItsReason) {
    StandInTheWay();
    keeper.Begin();
    QTRY_VERIFY(IsTold());
    EXPECT_EQ(keeper.text(), u"Kopie databáze se nepovedla, žádná dobrá kopie není");
    EXPECT_TRUE(keeper.toolTip().contains(u"Nejde založit složka"))
        << keeper.toolTip().toStdString();
}

TEST_F(CopyKeeperTest, SoIsOneBeforeASweepingCommand) {
    CopyBeforeSweep();
    EXPECT_FALSE(IsTold());
    TheDataModule().Conn1.Close();
    QFile::remove(database.Path());
    TheDataModule().Conn1.Open(TempDatabase::CopyTo(database.Folder()));
    EXPECT_TRUE(QFile::rename(CopiesFolder(database.Folder()), database.Folder() + u"/jinam"_s));
    StandInTheWay();
    CopyBeforeSweep();
    EXPECT_TRUE(IsTold());
}

TEST_F(CopyKeeperTest, TheAgeOfTheNewestGoodCopyIsSaid) {
    const auto withAge = [this](int days) {
        return TextOf({u"x"_s, false, u"data 2027-05-14 08.00.00.mdb"_s, days});
    };
    EXPECT_EQ(withAge(0), u"Kopie databáze se nepovedla, poslední dobrá je dnešní");
    EXPECT_EQ(withAge(1), u"Kopie databáze se nepovedla, poslední dobrá je stará 1 den");
    EXPECT_EQ(withAge(4), u"Kopie databáze se nepovedla, poslední dobrá je stará 4 dny");
    EXPECT_EQ(withAge(5), u"Kopie databáze se nepovedla, poslední dobrá je stará 5 dnů");
}

TEST_F(CopyKeeperTest, ADamagedDatabaseEndsTheProgramAndNamesTheCopyToUse) {
    const QString good = MakeCopy(database.Folder(), platform.now).section(u'/', -1);
    TheDataModule().Conn1.Close();
    QFile file(database.Path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(4096);
    file.write(QByteArray(static_cast<qsizetype>(file.size() - 4096), 'x'));
    file.close();
    keeper.Begin();
    QTRY_VERIFY(IsFailureKept());
    try {
        std::rethrow_exception(TakeFailure());
    } catch (const CorruptStoreError& damage) {
        const QString text = QString::fromUtf8(damage.what());
        EXPECT_TRUE(text.contains(u"Nejnovější dobrá kopie je Zálohy/"_s + good))
            << text.toStdString();
    }
    EXPECT_FALSE(IsTold());
}

} // namespace
} // namespace lorvo::test
