// A killed run's journal beside the file: taken up where both are whole, refused untouched where
// they aren't.

#include "platform/values/errors.h"
#include "store/connection_internals.h"
#include "store/damaged_dogs.h"
#include "store/database_copy.h"
#include "store/leftover_journal.h"
#include "store/store_test.h"

#include <QDir>
#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>
#include <fcntl.h>
#include <map>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

class LeftoverJournalTest : public ::testing::Test {
  protected:
    QString Path() const { return folder.filePath(u"data.mdb"_s); }

    std::map<QString, QByteArray> Contents() const {
        std::map<QString, QByteArray> contents;
        for (const QString& name : QDir(folder.path()).entryList(QDir::Files | QDir::Hidden)) {
            QFile file(folder.filePath(name));
            file.open(QIODevice::ReadOnly);
            contents[name] = file.readAll();
        }
        return contents;
    }

    /// Runs `body` in a process that ends as if it were killed; it leaves what it has open.
    static void KilledAfter(const std::function<void()>& body) {
        const pid_t child = fork();
        if (child == 0) {
            body();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_EQ(status, 0);
    }

    /// Whether another program sees that the file is in use.
    void ExpectInUseForOthers() const {
        KilledAfter([&] {
            const int file = open(Path().toUtf8().constData(), O_RDWR);
            struct flock lock = {};
            lock.l_type = F_WRLCK;
            lock.l_whence = SEEK_SET;
            if (fcntl(file, F_GETLK, &lock) != 0 || lock.l_type == F_UNLCK)
                _exit(1);
        });
    }

    void LeaveLog(int dogs) {
        TempDatabase::CopyTo(folder.path());
        KilledAfter([&] {
            DataModule& module = *new DataModule;
            module.Conn1.Open(Path());
            module.rsPsi.Open("SELECT * FROM Psi");
            for (int i = 0; i < dogs; ++i) {
                module.rsPsi.AddNew();
                module.rsPsi.Set("Poznamka", QString(200, u'ž'));
                module.rsPsi.Update();
            }
        });
        ASSERT_TRUE(HasLeftoverJournal(Path()));
    }

    /// A long edit that has reached the file when its process dies.
    void LeaveRollback() {
        TempDatabase::CopyTo(folder.path());
        KilledAfter([&] {
            auto& database = *new SQLite::Database(Path().toStdString(), SQLite::OPEN_READWRITE);
            database.exec("INSERT INTO Kruhy (Nazev) VALUES ('dřív')");
            database.exec("PRAGMA cache_size = 5; BEGIN");
            for (int i = 0; i < 300; ++i)
                database.exec("INSERT INTO Kruhy (Nazev) VALUES (hex(randomblob(100)))");
            database.exec("UPDATE Kruhy SET Nazev = 'teď' WHERE ID = 1");
        });
        ASSERT_TRUE(HasLeftoverJournal(Path()));
    }

    void ExpectRefusedUntouched(const std::string& reason) {
        const std::map<QString, QByteArray> before = Contents();
        Connection connection;
        const std::string failure = FailureOf([&] { connection.Open(Path()); });
        EXPECT_NE(failure.find(reason), std::string::npos) << failure;
        EXPECT_FALSE(connection.IsOpen());
        EXPECT_EQ(Contents(), before);
    }

    QTemporaryDir folder{TempDatabase::FolderTemplate()};
};

TEST_F(LeftoverJournalTest, ALogIsTakenUp) {
    LeaveLog(50);
    DataModule module;
    module.Conn1.Open(Path());
    module.rsPsi.Open("SELECT * FROM Psi");
    EXPECT_EQ(module.rsPsi.RecordCount(), 50);
    module.Conn1.Close();
    EXPECT_EQ(Contents().size(), 1U);
}

/// What a clerk does who puts a copy back by hand after a crash.
TEST_F(LeftoverJournalTest, ALogStaysAwayFromTheFileThatTookItsFilesPlace) {
    LeaveLog(50);
    QFile::remove(Path());
    TempDatabase::CopyTo(folder.path());
    const QByteArray log = Contents().at(u"data.mdb-wal"_s);
    DataModule module;
    module.Conn1.Open(Path());
    module.rsPsi.Open("SELECT * FROM Psi");
    EXPECT_EQ(module.rsPsi.RecordCount(), 0);
    module.Conn1.Close();
    RequireWholeDatabase(Path());
    EXPECT_EQ(Contents().size(), 2U);
    EXPECT_EQ(Contents().at(u"data.mdb.cizí žurnál"_s), log);
}

TEST_F(LeftoverJournalTest, ACopyOfSuchAFileHasNothingOfTheLog) {
    LeaveLog(50);
    QFile::remove(Path());
    TempDatabase::CopyTo(folder.path());
    const QString copy = folder.filePath(u"kopie.mdb"_s);
    CopyDatabase(Path(), copy);
    EXPECT_EQ(FiguresOfDatabase(copy).dogs, 0);
}

/// A program that closes a file which nobody else seems to use takes its log away.
TEST_F(LeftoverJournalTest, ACopyLeavesTheOpenFileInUse) {
    LeaveLog(50);
    DataModule module;
    module.Conn1.Open(Path());
    ExpectInUseForOthers();
    CopyDatabase(Path(), folder.filePath(u"kopie.mdb"_s));
    ExpectInUseForOthers();
}

TEST_F(LeftoverJournalTest, AFileCutBesideItsLogIsRefusedUntouched) {
    LeaveLog(50);
    const qint64 whole = QFile(Path()).size();
    for (const qint64 length : {whole - 1, whole - 4096, whole - 31552, qint64{4096}, qint64{50}}) {
        QFile::resize(Path(), length);
        ExpectRefusedUntouched("není úplný");
    }
}

/// What lay there was deleted before the kill; nothing of it is of account.
TEST_F(LeftoverJournalTest, FreePagesMayBeCutAway) {
    TempDatabase::CopyTo(folder.path());
    const qint64 empty = QFile(Path()).size();
    KilledAfter([&] {
        DataModule& module = *new DataModule;
        module.Conn1.Open(Path());
        EditRun run(module.Conn1);
        module.rsPsi.Open("SELECT * FROM Psi");
        for (int i = 0; i < 400; ++i) {
            module.rsPsi.AddNew();
            module.rsPsi.Set("Poznamka", QString(200, u'ž'));
            module.rsPsi.Update();
        }
        run.Finish();
        module.rsPsi.Open("DELETE * FROM Psi");
        sqlite3_wal_checkpoint_v2(module.Conn1.Internals().Handle(), nullptr,
                                  SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
        module.rsKruhy.Open("SELECT * FROM Kruhy");
        module.rsKruhy.AddNew();
        module.rsKruhy.Update();
    });
    ASSERT_GT(QFile(Path()).size(), empty + 40 * 4096);
    QFile::resize(Path(), QFile(Path()).size() - 8 * 4096);
    Connection connection;
    EXPECT_EQ(FailureOf([&] { connection.Open(Path()); }), "");
}

TEST_F(LeftoverJournalTest, ADamagedPageBesideALogIsRefusedUntouched) {
    LeaveLog(50);
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(10 * 4096);
    file.write(QByteArray(4096, '\x7f'));
    file.close();
    ExpectRefusedUntouched("poškozen");
}

TEST_F(LeftoverJournalTest, AForeignFileBesideALogIsRefusedUntouched) {
    KilledAfter([&] {
        auto& database = *new SQLite::Database(Path().toStdString(),
                                               SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
        database.exec("PRAGMA journal_mode = WAL; CREATE TABLE Kniha (ID INTEGER)");
    });
    ExpectRefusedUntouched("není žádná tabulka"); // as its log alone tells
}

TEST_F(LeftoverJournalTest, ARollbackJournalIsTakenUp) {
    LeaveRollback();
    DataModule module;
    module.Conn1.Open(Path());
    module.rsKruhy.Open("SELECT * FROM Kruhy");
    EXPECT_EQ(module.rsKruhy.RecordCount(), 1);
    EXPECT_EQ(module.rsKruhy.Field("Nazev").ToText(), u"dřív"_s);
}

TEST_F(LeftoverJournalTest, AFileCutBesideItsRollbackJournalIsRefusedUntouched) {
    LeaveRollback();
    QFile::resize(Path(), 5 * 4096);
    ExpectRefusedUntouched("");
}

TEST_F(LeftoverJournalTest, TheCompletedContentIsWhatTheEngineMakesOfBoth) {
    LeaveLog(80);
    const QByteArray completed = CompletedContent(Path());
    SQLite::Database(Path().toStdString(), SQLite::OPEN_READWRITE)
        .exec("PRAGMA wal_checkpoint(TRUNCATE); PRAGMA journal_mode = DELETE");
    const QByteArray made = Contents().at(u"data.mdb"_s);
    EXPECT_EQ(completed.size(), made.size());
    // Behind the first page, which counts its changes, all is the same.
    EXPECT_EQ(completed.mid(4096), made.mid(4096));
}

TEST_F(LeftoverJournalTest, WhatIsFoundDamagedLaterIsNotWrittenToAtTheEnd) {
    TempDatabase::CopyTo(folder.path());
    DamageDogs(Path());
    DataModule module;
    module.Conn1.Open(Path());
    module.rsKruhy.Open("SELECT * FROM Kruhy");
    module.rsKruhy.AddNew();
    module.rsKruhy.Update();
    const QByteArray before = Contents().at(u"data.mdb"_s);
    EXPECT_THROW(module.rsPsi.Open("SELECT * FROM Psi"), CorruptStoreError);
    module.Conn1.Close();
    EXPECT_EQ(Contents().at(u"data.mdb"_s), before);
    EXPECT_TRUE(HasLeftoverJournal(Path())); // the ring stands there
}

} // namespace
} // namespace lorvo
