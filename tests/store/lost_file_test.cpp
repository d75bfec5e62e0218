// The file goes while the program runs: deleted, moved, or replaced by another one.

#include "platform/values/errors.h"
#include "store/database_copy.h"
#include "store/rings_test.h"

#include <QDir>
#include <QFile>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class LostFileTest : public RingsTest {
  protected:
    LostFileTest() { AddRing(); }

    QString Beside(const QString& name) const { return database.Folder() + u'/' + name; }
    QString Saved() const { return Beside(u"data zachráněná.mdb"_s); }

    /// As a program does that keeps folders alike on several computers.
    void ReplaceFile() {
        TempDatabase::CopyTo(other.path());
        QFile::remove(database.Path());
        QFile::rename(other.filePath(u"data.mdb"_s), database.Path());
    }
    std::string FailureOfEdit() {
        EXPECT_THROW(AddRing(), DiskError);
        return FailureOf([this] { AddRing(); });
    }
    static int RingsIn(const QString& path) {
        SQLite::Database file(path.toStdString());
        return file.execAndGet("SELECT COUNT(*) FROM Kruhy").getInt();
    }
    QTemporaryDir other{TempDatabase::FolderTemplate()};
};

TEST_F(LostFileTest, WhatWasStoredIsSavedBesideTheFileThatCameInItsPlace) {
    ReplaceFile();
    const std::string failure = FailureOfEdit();
    EXPECT_NE(failure.find("nahrazen jiným"), std::string::npos) << failure;
    EXPECT_NE(failure.find(Saved().toStdString()), std::string::npos) << failure;
    module.Conn1.Close();
    EXPECT_EQ(RingsIn(Saved()), 1);
    EXPECT_EQ(RingsIn(database.Path()), 0) << "the journal of the lost file has met the new one";
    EXPECT_FALSE(QFile::exists(Beside(u"data zachráněná (2).mdb"_s))) << "once is enough";
}

TEST_F(LostFileTest, AnEarlierSavedFileStays) {
    QFile earlier(Saved());
    ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
    ReplaceFile();
    const std::string failure = FailureOfEdit();
    EXPECT_NE(failure.find("data zachráněná (2).mdb"), std::string::npos) << failure;
    EXPECT_EQ(earlier.size(), 0);
}

TEST_F(LostFileTest, ARunDoesntBegin) {
    ReplaceFile();
    EXPECT_THROW(EditRun{module.Conn1}, DiskError);
    EXPECT_EQ(RingsIn(Saved()), 1);
}

TEST_F(LostFileTest, ARemovedFolderIsMadeAgainForWhatWasStored) {
    QDir(database.Folder()).removeRecursively();
    EXPECT_THROW(module.rsKruhy.Open("DELETE * FROM Kruhy"), DiskError);
    EXPECT_EQ(RingsIn(Saved()), 1);
}

TEST_F(LostFileTest, AMovedFolderKeepsAllAndIsNamed) {
    const QString moved = other.filePath(u"jinam"_s);
    QFile::rename(database.Folder(), moved);
    const std::string failure = FailureOfEdit();
    EXPECT_NE(failure.find((u"přesunut do „"_s + moved).toStdString()), std::string::npos)
        << failure;
    EXPECT_FALSE(QFile::exists(database.Folder()));
    module.Conn1.Close();
    module.Conn1.Open(moved + u"/data.mdb"_s);
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Kruhy"), "1");
    module.Conn1.Close();
}

TEST_F(LostFileTest, AFileMovedWithoutItsJournalIsSavedToo) {
    QFile::rename(database.Path(), other.filePath(u"data.mdb"_s));
    EXPECT_NE(FailureOfEdit().find("odstraněn"), std::string::npos);
    EXPECT_EQ(RingsIn(Saved()), 1);
}

TEST_F(LostFileTest, TheEndOfTheProgramSavesIt) {
    ReplaceFile();
    module.Conn1.Close();
    EXPECT_EQ(RingsIn(Saved()), 1);
    EXPECT_EQ(RingsIn(database.Path()), 0);
}

TEST_F(LostFileTest, WhereItCantBeSavedNothingIsPromised) {
    QDir(database.Folder()).removeRecursively();
    QFile inTheWay(database.Folder());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_THROW(AddRing(), CorruptStoreError);
    EXPECT_NE(FailureOf([this] { AddRing(); }).find("nešlo uložit"), std::string::npos);
    inTheWay.remove();
}

} // namespace
} // namespace lorvo
