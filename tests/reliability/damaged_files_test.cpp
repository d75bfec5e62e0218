// Database files damaged in every way that disks and people know: each is refused untouched, or
// read as far as it goes; none ends the program.

#include "platform/values/errors.h"
#include "store/data_module.h"
#include "support/temp_database.h"
#include "support/watched_disk.h"

#include <QFile>
#include <QTemporaryDir>
#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace lorvo::test {

using namespace Qt::StringLiterals;

namespace {

using Files = std::map<QString, QByteArray>;

const QString kDatabase = u"data.mdb"_s;
const QString kLog = u"data.mdb-wal"_s;

/// A folder's files while a run is under way: the database, and edits in the log beside it.
Files FilesWithLog() {
    const QTemporaryDir folder(TempDatabase::FolderTemplate());
    DataModule module;
    module.Conn1.Open(TempDatabase::CopyTo(folder.path(), TempDatabase::Content::Delivered));
    module.rsPsi.Open("SELECT * FROM Psi");
    for (int dog = 0; dog < 60; ++dog) {
        module.rsPsi.AddNew();
        module.rsPsi.Set("Poznamka", QString(150, u'ž'));
        module.rsPsi.Update();
    }
    Files files = FilesOf(folder.path());
    files.erase(u"data.mdb-shm"_s);
    return files;
}

/// The same after a clean end.
Files FilesAlone() {
    const QTemporaryDir folder(TempDatabase::FolderTemplate());
    MakeFiles(folder.path(), FilesWithLog());
    Connection connection;
    connection.Open(folder.filePath(kDatabase));
    connection.Close();
    return FilesOf(folder.path());
}

void Damage(QByteArray& bytes, std::mt19937& chance) {
    const auto below = [&chance](qsizetype bound) {
        return static_cast<qsizetype>(chance() %
                                      static_cast<unsigned>(std::max<qsizetype>(bound, 1)));
    };
    const qsizetype at = below(chance() % 4 == 0 ? 200 : bytes.size());
    const qsizetype length = std::min(below(chance() % 2 ? 16 : 5000), bytes.size() - at);
    switch (chance() % 5) {
    case 0:
        bytes.truncate(at);
        break;
    case 1:
        bytes.replace(at, length, QByteArray(length, '\0'));
        break;
    case 2:
        if (at < bytes.size())
            bytes[at] = static_cast<char>(bytes[at] ^ (1 << chance() % 8));
        break;
    case 3: // what stood elsewhere in the file
        bytes.replace(at, length, bytes.mid(below(bytes.size()), length));
        break;
    default:
        for (qsizetype i = at; i < at + length; ++i)
            bytes[i] = static_cast<char>(chance());
    }
}

/// Opens the files, reads every table and writes a row, as far as that goes.
void Work(const QString& folder) {
    DataModule module;
    module.Conn1.Open(folder + u'/' + kDatabase);
    for (const char* table : {"Psi", "Plemena", "Majitele", "Uhrady", "Vystavy", "Kruhy"}) {
        module.rsrsQuery1.Open("SELECT * FROM " + std::string(table) + " ORDER BY ID");
        for (; !module.rsrsQuery1.Eof(); module.rsrsQuery1.MoveNext())
            module.rsrsQuery1.Field("ID").ToInt();
    }
    module.rsKruhy.Open("SELECT * FROM Kruhy");
    module.rsKruhy.AddNew();
    module.rsKruhy.Update();
    module.Conn1.Close();
}

void ExpectToBeMet(const Files& files, unsigned seed) {
    const QTemporaryDir folder(TempDatabase::FolderTemplate());
    MakeFiles(folder.path(), files);
    Connection connection;
    bool isRefused = false;
    try {
        connection.Open(folder.filePath(kDatabase));
    } catch (const StoreError& error) {
        isRefused = true;
        EXPECT_NE(std::string(error.what()).find("data.mdb"), std::string::npos) << error.what();
    }
    if (isRefused) {
        EXPECT_EQ(FilesOf(folder.path()), files) << "seed " << seed;
        return;
    }
    try {
        connection.Close();
        Work(folder.path());
    } catch (const StoreError&) { // found later
    }
}

int Rounds() {
    return qEnvironmentVariableIsSet("LORVO_DAMAGES")
               ? qEnvironmentVariableIntValue("LORVO_DAMAGES")
               : 150;
}

TEST(DamagedFiles, AloneAreRefusedUntouchedOrReadAsFarAsTheyGo) {
    const Files whole = FilesAlone();
    for (int round = 0; round < Rounds(); ++round) {
        std::mt19937 chance(static_cast<unsigned>(round));
        Files files = whole;
        Damage(files[kDatabase], chance);
        ExpectToBeMet(files, static_cast<unsigned>(round));
    }
}

TEST(DamagedFiles, BesideALogAreRefusedUntouchedOrReadAsFarAsTheyGo) {
    const Files whole = FilesWithLog();
    ASSERT_TRUE(whole.contains(kLog));
    for (int round = 0; round < Rounds(); ++round) {
        std::mt19937 chance(static_cast<unsigned>(round));
        Files files = whole;
        Damage(files[chance() % 2 ? kDatabase : kLog], chance);
        ExpectToBeMet(files, static_cast<unsigned>(round));
    }
}

} // namespace
} // namespace lorvo::test
