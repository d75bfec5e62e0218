// A program that edits a database until it is killed, and writes a dot for each edit that has
// returned:  edit_until_killed Singly|InShortRuns|InLongRuns DATABASE

#include "store/data_module.h"

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <map>

using namespace Qt::StringLiterals;

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

void Report() {
    if (std::fputc('.', stdout) == EOF || std::fflush(stdout) != 0)
        std::exit(1);
}

void AddDog(RecordSet& dogs, int number) {
    dogs.Open("SELECT * FROM Psi WHERE ID = 0");
    dogs.AddNew();
    dogs.Set("Cislo", number);
    dogs.Set("Poznamka", QString(200, u'x'));
    dogs.Update();
    dogs.Close();
}

void EditSingly(const QString& path) {
    DataModule module;
    module.Conn1.Open(path);
    for (int number = 1;; ++number) {
        AddDog(module.rsPsi, number);
        Report();
    }
}

/// Starts and ends the program's run over and over, so that kills fall into both.
void EditInShortRuns(const QString& path) {
    for (int number = 1;; ++number) {
        DataModule module;
        module.Conn1.Open(path);
        AddDog(module.rsPsi, number);
        Report();
    }
}

void EditInLongRuns(const QString& path) {
    DataModule module;
    module.Conn1.Open(path);
    for (int number = 1;;) {
        EditRun run(module.Conn1);
        for (int i = 0; i < 100; ++i)
            AddDog(module.rsPsi, number++);
        run.Finish();
        Report();
    }
}

} // namespace
} // namespace lorvo

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const std::map<QString, void (*)(const QString&)> ways = {
        {u"Singly"_s, lorvo::EditSingly},
        {u"InShortRuns"_s, lorvo::EditInShortRuns},
        {u"InLongRuns"_s, lorvo::EditInLongRuns},
    };
    if (arguments.size() != 3 || !ways.contains(arguments[1]))
        return 2;
    ways.at(arguments[1])(arguments[2]);
    return 0;
}
