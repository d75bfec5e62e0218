// A process that is killed at any moment loses no edit that it has finished.

#include "store/store_test.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace lorvo {
namespace {

/// A child that edits a database until it is killed, and reports each edit that has returned.
class Editor {
  public:
    using Body = void (*)(const QString& path, int reports);

    Editor(const QString& path, Body body) {
        int ends[2];
        if (pipe(ends) != 0)
            throw std::runtime_error("no pipe");
        child_ = fork();
        if (child_ == 0) {
            close(ends[0]);
            body(path, ends[1]);
            _exit(0);
        }
        close(ends[1]);
        reports_ = ends[0];
    }

    /// Kills the child a while after its report number `count`; how many reports it made in all.
    int KillAfter(int count, useconds_t pause) {
        int heard = 0;
        char report = 0;
        while (heard < count && read(reports_, &report, 1) == 1)
            ++heard;
        usleep(pause);
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
        while (read(reports_, &report, 1) == 1)
            ++heard;
        close(reports_);
        return heard;
    }

  private:
    pid_t child_ = 0;
    int reports_ = 0;
};

void Report(int reports) {
    const char byte = '.';
    if (write(reports, &byte, 1) != 1)
        _exit(1);
}

void AddDog(RecordSet& dogs, int number) {
    dogs.Open("SELECT * FROM Psi WHERE ID = 0");
    dogs.AddNew();
    dogs.Set("Cislo", number);
    dogs.Set("Poznamka", QString(200, u'x'));
    dogs.Update();
    dogs.Close();
}

void EditSingly(const QString& path, int reports) {
    DataModule module;
    module.Conn1.Open(path);
    for (int number = 1;; ++number) {
        AddDog(module.rsPsi, number);
        Report(reports);
    }
}

/// Starts and ends the program's run over and over, so that kills fall into both.
void EditInShortRuns(const QString& path, int reports) {
    for (int number = 1;; ++number) {
        DataModule module;
        module.Conn1.Open(path);
        AddDog(module.rsPsi, number);
        Report(reports);
    }
}

void EditInLongRuns(const QString& path, int reports) {
    DataModule module;
    module.Conn1.Open(path);
    for (int number = 1;;) {
        EditRun run(module.Conn1);
        for (int i = 0; i < 100; ++i)
            AddDog(module.rsPsi, number++);
        run.Finish();
        Report(reports);
    }
}

/// Every finished edit is there, none is there in half, and the file is whole.
void ExpectEditsKept(const QString& path, int finished) {
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
    const char* name;
    Editor::Body body;
    int editsPerReport;
    int rounds;
};

class KillTest : public ::testing::TestWithParam<KillCase> {};

TEST_P(KillTest, KeepsEveryFinishedEdit) {
    for (int round = 0; round < GetParam().rounds; ++round) {
        const QTemporaryDir folder(TempDatabase::FolderTemplate());
        const QString path = TempDatabase::CopyTo(folder.path());
        const auto pause = static_cast<useconds_t>(round * 97 % 1000);
        const int reports = Editor(path, GetParam().body).KillAfter(round % 12, pause);
        ExpectEditsKept(path, reports * GetParam().editsPerReport);
    }
}

INSTANTIATE_TEST_SUITE_P(Edits, KillTest,
                         ::testing::Values(KillCase{"Singly", EditSingly, 1, 40},
                                           KillCase{"InShortRuns", EditInShortRuns, 1, 25},
                                           KillCase{"InLongRuns", EditInLongRuns, 100, 20}),
                         [](const auto& chosen) { return std::string(chosen.param.name); });

} // namespace
} // namespace lorvo
