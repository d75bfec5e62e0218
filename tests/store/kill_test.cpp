// A process that is killed at any moment loses no edit that it has finished.

#include "store/store_test.h"

#include <QCoreApplication>
#include <QProcess>
#include <SQLiteCpp/SQLiteCpp.h>
#include <thread>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

/// A child that edits a database until it is killed, and reports each edit that has returned.
class Editor {
  public:
    Editor(const QString& path, const char* way) {
        child_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        child_.start(QCoreApplication::applicationDirPath() + u"/edit_until_killed"_s,
                     {QString::fromLatin1(way), path}, QIODevice::ReadOnly);
        if (!child_.waitForStarted())
            throw std::runtime_error("edit_until_killed does not start");
    }

    /// Kills the child a while after its report number `count`; how many reports it made in all.
    qsizetype KillAfter(qsizetype count, std::chrono::microseconds pause) {
        QByteArray heard;
        while (heard.size() < count && child_.waitForReadyRead())
            heard += child_.readAll();
        std::this_thread::sleep_for(pause);
        child_.kill();
        child_.waitForFinished();
        return (heard + child_.readAll()).size();
    }

  private:
    QProcess child_;
};

/// Every finished edit is there, none is there in half, and the file is whole.
void ExpectEditsKept(const QString& path, qsizetype finished) {
    DataModule module;
    module.Conn1.Open(path);
    module.rsPsi.Open("SELECT * FROM Psi");
    EXPECT_GE(module.rsPsi.RecordCount(), finished);
    for (int number = 1; !module.rsPsi.Eof(); module.rsPsi.MoveNext(), ++number) {
        EXPECT_EQ(module.rsPsi.Field("Cislo").ToInt(), number);
        EXPECT_EQ(module.rsPsi.Field("Poznamka").ToText().size(), 200);
    }
    module.rsPsi.Close();
    module.Conn1.Close();
    SQLite::Database file(path.toStdString());
    EXPECT_EQ(file.execAndGet("PRAGMA integrity_check").getString(), "ok");
}

struct KillCase {
    const char* way;
    int editsPerReport;
    int rounds;
};

class KillTest : public ::testing::TestWithParam<KillCase> {};

TEST_P(KillTest, KeepsEveryFinishedEdit) {
    for (int round = 0; round < GetParam().rounds; ++round) {
        const QTemporaryDir folder(TempDatabase::FolderTemplate());
        const QString path = TempDatabase::CopyTo(folder.path());
        const std::chrono::microseconds pause(round * 97 % 1000);
        const qsizetype reports = Editor(path, GetParam().way).KillAfter(round % 12, pause);
        ExpectEditsKept(path, reports * GetParam().editsPerReport);
    }
}

INSTANTIATE_TEST_SUITE_P(Edits, KillTest,
                         ::testing::Values(KillCase{"Singly", 1, 40},
                                           KillCase{"InShortRuns", 1, 25},
                                           KillCase{"InLongRuns", 100, 20}),
                         [](const auto& chosen) { return std::string(chosen.param.way); });

} // namespace
} // namespace lorvo
