// What reading and writing takes without any window, beside the bare limit.
//   bench_store [--benchmark_filter=...] [--benchmark_repetitions=N]

#include "bare_rows.h"
#include "bench_shows.h"
#include "office/cards/dog_card.h"
#include "office/numbers/catalogue_numbering.h"
#include "office/numbers/catalogue_numbers.h"
#include "office/papers/catalogue.h"
#include "office/papers/entry_confirmations.h"
#include "office/papers/run_progress.h"
#include "office/papers/template_engine.h"
#include "office/tree/tree_loader.h"
#include "pair_table.h"
#include "platform/platform.h"
#include "platform/values/cp1250.h"
#include "platform/whole_file.h"
#include "store/psi.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

using namespace lorvo;
using namespace lorvo::bench;

QString DatabaseOf(const char* size) {
    return ShowFolder(size) + u"/data.mdb"_s;
}

void TreeRows(benchmark::State& state, const char* size) {
    UseShow(size);
    TreeNodes nodes;
    for (auto _ : state)
        LoadTree(nodes);
}

void BareTreeRows(benchmark::State& state, const char* size) {
    UseShow(size);
    BareDatabase database(DatabaseOf(size));
    for (auto _ : state)
        benchmark::DoNotOptimize(ReadDogs(database));
}

void Card(benchmark::State& state, const char* size) {
    UseShow(size);
    DogCard card;
    const int dogs = CountDogs();
    int dog = 0;
    for (auto _ : state)
        FillDogCard(card, 1 + (dog = (dog + 7919) % dogs));
}

void BareCardRows(benchmark::State& state, const char* size) {
    UseShow(size);
    BareDatabase database(DatabaseOf(size));
    BareCard card(database);
    const int dogs = CountDogs();
    int dog = 0;
    for (auto _ : state)
        card.Read(1 + (dog = (dog + 7919) % dogs));
}

void Numbering(benchmark::State& state, const char* size) {
    UseShow(size);
    TreeNodes nodes;
    for (auto _ : state) {
        state.PauseTiming();
        LoadTree(nodes);
        state.ResumeTiming();
        GenerateCatalogueNumbers(nodes);
    }
    RemoveDogNumbers();
}

/// The same dogs in the same order: the tree's, since a run that fails leaves the first ones
/// numbered.
void BareNumbering(benchmark::State& state, const char* size) {
    UseShow(size);
    BareDatabase database(DatabaseOf(size));
    database.Execute("PRAGMA synchronous = FULL");
    sqlite3_stmt* update = database.Prepare("UPDATE Psi SET Cislo = ?1 WHERE ID = ?2");
    TreeNodes nodes;
    LoadTree(nodes);
    std::vector<int> dogs;
    WalkForNumbering<TreeNode>(nodes.First(),
                               [&](TreeNode& dog, std::int16_t) { dogs.push_back(dog.Id()); });
    for (auto _ : state) {
        database.Execute("BEGIN");
        int number = 0;
        for (const int dog : dogs) {
            sqlite3_bind_int(update, 1, ++number);
            sqlite3_bind_int(update, 2, dog);
            sqlite3_step(update);
            sqlite3_reset(update);
        }
        database.Execute("COMMIT");
    }
    RemoveDogNumbers();
}

void Catalogue(benchmark::State& state, const char* size) {
    UseShow(size);
    for (auto _ : state) {
        const auto word = ThePlatform().wordProcessors->Create(u"Katalog"_s);
        TypeCatalogue(*word, false);
        QFile::remove(word->Show().path);
    }
}

/// The same texts typed without formats, headings or any reading: writing and packing alone.
void BareCatalogue(benchmark::State& state, const char* size) {
    UseShow(size);
    BareDatabase database(DatabaseOf(size));
    sqlite3_stmt* rows = database.Prepare(
        "SELECT Psi.Jmeno, ChovnaStanice, DatumNar, PK, Otec, Matka, Chovatel, Majitele.Jmeno FROM "
        "Psi LEFT JOIN Majitele ON Majitele.ID = MajitelID ORDER BY PlemenoID, PohlaviPes, Trida, "
        "czech_key(Psi.Jmeno)");
    for (auto _ : state) {
        const auto word = ThePlatform().wordProcessors->Create(u"Katalog"_s);
        while (sqlite3_step(rows) == SQLITE_ROW) {
            for (int column = 0; column < 8; ++column) {
                word->TypeText(QString::fromUtf8(
                    reinterpret_cast<const char*>(sqlite3_column_text(rows, column))));
                if (column % 2 == 1)
                    word->TypeParagraph();
            }
        }
        sqlite3_reset(rows);
        word->HomeKeyStory();
        QFile::remove(word->Show().path);
    }
}

class NeverStops : public RunProgress {
  public:
    bool Advance(int, int) override { return true; }
};

QByteArray ConfirmationPattern() {
    return ReportTemplate::Read(QString::fromUtf8(LORVO_TEMPLATES "/Pozvánky.html"),
                                TemplateKind::Rows)
        .Body();
}

QString OutputFile(const char* size) {
    return ShowFolder(size) + u"/output.html"_s;
}

void Confirmations(benchmark::State& state, const char* size) {
    UseShow(size);
    const QByteArray pattern = ConfirmationPattern();
    QStringList lines;
    for (const ConfirmationLine& line : kConfirmationLines)
        lines << QString::fromUtf16(line.text);
    NeverStops progress;
    for (auto _ : state) {
        QByteArray output;
        AppendConfirmations(output, pattern, lines, progress);
        ReplaceFile(OutputFile(size), output);
    }
}

/// As many bytes: the rows in the order of the sheets, each value once through the encoder, the
/// rest of a sheet copied, the whole written.
void BareConfirmations(benchmark::State& state, const char* size) {
    UseShow(size);
    BareDatabase database(DatabaseOf(size));
    sqlite3_stmt* rows = database.Prepare("SELECT Majitele.Jmeno, Ulice, Mesto, Psi.Jmeno, "
                                          "ChovnaStanice, Plemena.Nazev FROM Psi LEFT "
                                          "JOIN Majitele ON Majitele.ID = MajitelID LEFT JOIN "
                                          "Plemena ON Plemena.ID = PlemenoID ORDER "
                                          "BY Cislo, Psi.ID");
    QByteArray rest = ConfirmationPattern();
    for (const ConfirmationLine& line : kConfirmationLines)
        rest += ToCp1250(QString::fromUtf16(line.text));
    for (auto _ : state) {
        QByteArray output;
        while (sqlite3_step(rows) == SQLITE_ROW) {
            output += rest;
            for (int column = 0; column < 6; ++column)
                output += ToCp1250(QString::fromUtf8(
                    reinterpret_cast<const char*>(sqlite3_column_text(rows, column))));
        }
        sqlite3_reset(rows);
        ReplaceFile(OutputFile(size), output);
    }
}

struct Measure {
    const char* name;
    void (*program)(benchmark::State&, const char* size);
    void (*bare)(benchmark::State&, const char* size);
};

constexpr Measure kMeasures[] = {
    {"rows of the tree", TreeRows, BareTreeRows},
    {"figures of a dog's card", Card, BareCardRows},
    {"catalogue numbers", Numbering, BareNumbering},
    {"catalogue file", Catalogue, BareCatalogue},
    {"confirmations by template", Confirmations, BareConfirmations},
};

void Register() {
    for (const Measure& measure : kMeasures) {
        for (const char* size : kSizes) {
            const std::string name = std::string(measure.name) + "/" + size;
            for (const auto& [side, run] :
                 {std::pair{"/program", measure.program}, std::pair{"/bare", measure.bare}})
                benchmark::RegisterBenchmark((name + side).c_str(), run, size)
                    ->Unit(benchmark::kMillisecond)
                    ->MeasureProcessCPUTime()
                    ->UseRealTime();
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    Register();
    return RunAndPrint(argc, argv);
}
