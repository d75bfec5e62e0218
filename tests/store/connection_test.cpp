// Opening and closing the file, and files that must not be opened.

#include "platform/values/errors.h"
#include "store/damaged_dogs.h"
#include "store/store_test.h"

#include <QDir>
#include <QFile>
#include <SQLiteCpp/SQLiteCpp.h>
#include <map>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

QByteArray ReadAll(const QString& path) {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

void WriteAll(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

class BadFileTest : public ::testing::Test {
  protected:
    QString Path() const { return folder.filePath(u"data.mdb"_s); }

    /// Every file of the folder with its bytes.
    std::map<QString, QByteArray> Contents() const {
        std::map<QString, QByteArray> contents;
        for (const QString& name : QDir(folder.path()).entryList(QDir::Files | QDir::Hidden))
            contents[name] = ReadAll(folder.filePath(name));
        return contents;
    }

    /// The file as messages name it.
    std::string ShownPath() const { return QDir::toNativeSeparators(Path()).toStdString(); }

    /// Opening must fail with a message that names the file and `reason`, and touch nothing.
    void ExpectRefused(const std::string& reason) {
        const std::map<QString, QByteArray> before = Contents();
        Connection connection;
        const std::string failure = FailureOf([&] { connection.Open(Path()); });
        EXPECT_NE(failure.find(ShownPath()), std::string::npos) << failure;
        EXPECT_NE(failure.find(reason), std::string::npos) << failure;
        EXPECT_FALSE(connection.IsOpen());
        EXPECT_EQ(Contents(), before) << reason;
    }

    QTemporaryDir folder;
};

TEST_F(BadFileTest, RefusesAMissingFile) {
    ExpectRefused("neexistuje");
}

TEST_F(BadFileTest, RefusesAFolderOfThatName) {
    QDir(folder.path()).mkdir(u"data.mdb"_s);
    ExpectRefused("na místě souboru je složka");
}

TEST_F(BadFileTest, RefusesAnEmptyFile) {
    WriteAll(Path(), {});
    ExpectRefused("prázdný");
}

TEST_F(BadFileTest, RefusesFilesOfOtherKinds) {
    const QByteArray foreign[] = {
        QByteArray("\0\1\0\0Standard DB\0", 16) + QByteArray(4096, '\x5a'), "ID;Jmeno\n1;Asta\n",
        QByteArray("x"), QByteArray("PK\3\4", 4) + QByteArray(200, '\0')};
    for (const QByteArray& bytes : foreign) {
        WriteAll(Path(), bytes);
        ExpectRefused("není databáze programu Lorvo");
    }
}

TEST_F(BadFileTest, RefusesADatabaseWithoutTheTablesOfAShow) {
    SQLite::Database(Path().toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("CREATE TABLE Kniha (ID INTEGER)");
    ExpectRefused("není žádná tabulka");
}

TEST_F(BadFileTest, RefusesAFileThatWasCutShort) {
    const QByteArray whole = ReadAll(TempDatabase::CopyTo(folder.path()));
    for (const qsizetype length : {qsizetype{10}, qsizetype{50}, qsizetype{100}, qsizetype{4096},
                                   whole.size() / 2, whole.size() - 4096, whole.size() - 1}) {
        WriteAll(Path(), whole.left(length));
        ExpectRefused("není úplný");
    }
}

TEST_F(BadFileTest, RefusesADamagedHeaderOrSchema) {
    const QByteArray whole = ReadAll(TempDatabase::CopyTo(folder.path()));
    struct Damage {
        qsizetype from;
        qsizetype length;
    };
    for (const Damage& damage : {Damage{16, 2}, Damage{20, 4}, Damage{44, 16}, Damage{100, 12},
                                 Damage{100, 3996}, Damage{1000, 3096}}) {
        WriteAll(Path(), QByteArray(whole).replace(damage.from, damage.length,
                                                   QByteArray(damage.length, '\x7f')));
        ExpectRefused("");
    }
}

TEST_F(BadFileTest, DamageInsideTheFileSurfacesWhenItIsRead) {
    TempDatabase::CopyTo(folder.path());
    DamageDogs(Path());
    Connection connection;
    connection.Open(Path());
    RecordSet dogs(connection, "Psi", RecordSet::Lock::Updatable);
    const auto read = [&] {
        dogs.Open("SELECT * FROM Psi");
    };
    EXPECT_THROW(read(), CorruptStoreError);
    EXPECT_NE(FailureOf(read).find(ShownPath()), std::string::npos);
    EXPECT_THROW(SkipFailure(read), CorruptStoreError); // never skipped
    RecordSet rings(connection, "Kruhy", RecordSet::Lock::Updatable);
    EXPECT_TRUE(SkipFailure([&] { rings.Open("SELECT * FROM Kruhy"); }));
}

TEST_F(BadFileTest, ACellThatIsNotOfItsTypeNamesTheField) {
    TempDatabase::CopyTo(folder.path());
    SQLite::Database(Path().toStdString(), SQLite::OPEN_READWRITE)
        .exec("INSERT INTO Uhrady (ID, Kc, Datum) VALUES (1, 'mnoho', NULL), (2, 0, 'zítra'), "
              "(3, 1.5, NULL);"
              "INSERT INTO Uhrady (ID, ID_Psa) VALUES (4, 5000000000)");
    Connection connection;
    connection.Open(Path());
    RecordSet set(connection, "Uhrady", RecordSet::Lock::Updatable);
    const auto expectNamed = [&](const char* statement, const char* field) {
        const std::string failure = FailureOf([&] {
            set.Open(statement);
            set.Field(field);
        });
        EXPECT_NE(failure.find(ShownPath()), std::string::npos) << failure;
        EXPECT_NE(failure.find(std::string("tabulka Uhrady, pole ") + field), std::string::npos)
            << failure;
    };
    expectNamed("SELECT * FROM Uhrady WHERE ID = 1", "Kc");
    expectNamed("SELECT * FROM Uhrady WHERE ID = 2", "Datum");
    expectNamed("SELECT * FROM Uhrady WHERE ID = 3", "Kc");
    expectNamed("SELECT ID_Psa FROM Uhrady WHERE ID = 4", "ID_Psa");
}

class ConnectionTest : public StoreTest {
  protected:
    QStringList Files() const {
        return QDir(database.Folder()).entryList(QDir::Files | QDir::Hidden);
    }
};

TEST_F(ConnectionTest, TheFolderHoldsTheFileAloneAfterTheEnd) {
    module.rsKruhy.Open("SELECT * FROM Kruhy");
    module.rsKruhy.AddNew();
    module.rsKruhy.Set("Nazev", u"Kruh 1"_s);
    module.rsKruhy.Update();
    EXPECT_GT(Files().size(), 1); // the journal of the run
    module.Conn1.Close();
    EXPECT_EQ(Files(), QStringList{u"data.mdb"_s});
    const QByteArray header = ReadAll(database.Path()).left(20);
    EXPECT_EQ(header[18], '\1'); // no write-ahead log is asked for by the file itself
    EXPECT_EQ(header[19], '\1');
    SQLite::Database outside(database.Path().toStdString());
    EXPECT_EQ(outside.execAndGet("SELECT Nazev FROM Kruhy").getString(), "Kruh 1");
}

TEST_F(ConnectionTest, OpensAgainAndAgain) {
    for (int i = 0; i < 3; ++i)
        database.Reopen();
    EXPECT_TRUE(module.Conn1.IsOpen());
    EXPECT_EQ(module.Conn1.Path(), database.Path());
    module.Conn1.Open(database.Path()); // an open one is shut first
    EXPECT_TRUE(module.Conn1.IsOpen());
}

TEST_F(ConnectionTest, ClosesWhileAnotherProgramReads) {
    module.rsKruhy.Open("SELECT * FROM Kruhy");
    module.rsKruhy.AddNew();
    module.rsKruhy.Update();
    {
        SQLite::Database reader(database.Path().toStdString());
        SQLite::Statement rows(reader, "SELECT * FROM Kruhy");
        ASSERT_TRUE(rows.executeStep());
        module.Conn1.Close();
    }
    module.Conn1.Open(database.Path());
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Kruhy"), "1");
    module.Conn1.Close();
    EXPECT_EQ(Files(), QStringList{u"data.mdb"_s});
}

TEST_F(ConnectionTest, OpensInAFolderWithBlanksAccentsAndPercentSigns) {
    // A question mark is in no name on Windows.
    const QString name = QDir::separator() == u'/' ? u"Výstava 100 % #1?"_s : u"Výstava 100 % #1"_s;
    const QString folder = database.Folder() + u'/' + name;
    ASSERT_TRUE(QDir().mkpath(folder));
    Connection connection;
    connection.Open(TempDatabase::CopyTo(folder));
    EXPECT_TRUE(connection.IsOpen());
}

/// A folder below `folder` whose path has that length, made.
QString FolderOfLength(QString folder, qsizetype length) {
    while (folder.size() < length) {
        const qsizetype left = length - folder.size();
        folder += u'/' + QString(left > 101 ? 99 : left - 1, u'd');
    }
    QDir().mkpath(folder);
    return folder;
}

TEST_F(ConnectionTest, OpensAtTheEndOfTheLongestPathAndNamesALongerOne) {
    const qsizetype longest = QDir::separator() == u'/' ? 504 : 251;
    const qsizetype name = QStringView(u"/data.mdb").size();
    Connection connection;
    connection.Open(TempDatabase::CopyTo(FolderOfLength(database.Folder(), longest - name)));
    EXPECT_TRUE(connection.IsOpen());
    connection.Close();
    const QString path =
        TempDatabase::CopyTo(FolderOfLength(database.Folder(), longest - name + 1));
    const std::string failure = FailureOf([&] { connection.Open(path); });
    EXPECT_NE(failure.find("cesta k souboru je příliš dlouhá"), std::string::npos) << failure;
    EXPECT_NE(failure.find(QDir::toNativeSeparators(path).toStdString()), std::string::npos);
}

TEST_F(ConnectionTest, ADatabaseThatLacksATableOpensAndFailsWhereItIsAskedFor) {
    module.Conn1.Close();
    database.Execute("DROP TABLE Meny");
    module.Conn1.Open(database.Path());
    EXPECT_EQ(ValueOf("SELECT COUNT(*) FROM Vystavy"), "0");
    EXPECT_FALSE(SkipFailure([&] { module.rsMeny.Open("SELECT * FROM Meny"); }));
}

TEST(QuotedTest, DoublesInnerQuotes) {
    EXPECT_EQ(Quoted(u"O'Hara"_s), "'O''Hara'");
    EXPECT_EQ(Quoted(QString()), "''");
    EXPECT_EQ(Number(-12), "-12");
}

} // namespace
} // namespace lorvo
