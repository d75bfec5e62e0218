// What the clerk waits for, up to the painted window, beside the bare limit.
//   QT_QPA_PLATFORM=offscreen bench_desk [--benchmark_filter=...]

#include "bare_window.h"
#include "bench_shows.h"
#include "desktop/desktop_services.h"
#include "forms/application.h"
#include "mainwindow/fm_main.h"
#include "pair_table.h"
#include "platform/platform.h"
#include "start_child.h"
#include "store/kruhy.h"
#include "store/plemena.h"
#include "store/psi.h"

#include <QElapsedTimer>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using namespace lorvo;
using namespace lorvo::bench;

QString DatabaseOf(const char* size) {
    return ShowFolder(size) + u"/data.mdb"_s;
}

void Start(benchmark::State& state, const char* size, const char* side) {
    const QString folder = ShowFolder(size);
    double megabytes = 0;
    for (auto _ : state) {
        const StartFigures figures = StartOnce(QString::fromLatin1(side), folder);
        state.SetIterationTime(figures.seconds);
        megabytes = std::max(megabytes, figures.megabytes);
    }
    state.counters["peak MB"] = megabytes;
}

/// The main window on a show, painted once.
class OpenWindow {
  public:
    explicit OpenWindow(const char* size) {
        UseShow(size);
        ThePlatform().messages = std::make_unique<DesktopMessageBoxes>();
        ThePlatform().menus = std::make_unique<DesktopPopupMenus>();
        ThePlatform().ui = std::make_unique<DesktopUserInterface>();
        window.resize(1200, 800);
        window.Start();
        WaitForPaint(Viewport());
        QCoreApplication::processEvents();
    }
    QWidget& Viewport() { return *window.findChild<QTreeView*>(u"tvwMain"_s)->viewport(); }

    fm_main window;
};

double SecondsOf(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

void Reload(benchmark::State& state, const char* size) {
    OpenWindow open(size);
    for (auto _ : state)
        state.SetIterationTime(SecondsOf([&open] {
            open.window.LoadData();
            WaitForPaint(open.Viewport());
        }));
}

void BareReload(benchmark::State& state, const char* size) {
    UseShow(size);
    BareDatabase database(DatabaseOf(size));
    BareWindow window;
    window.Load(database);
    window.show();
    WaitForPaint(*window.Tree().viewport());
    for (auto _ : state)
        state.SetIterationTime(SecondsOf([&] {
            window.Load(database);
            WaitForPaint(*window.Tree().viewport());
        }));
}

QStringList Keys(const char* kind) {
    QStringList keys;
    if (*kind == 'K') {
        for (const Kruhy& ring : RingsByName())
            keys << u"K%1"_s.arg(ring.ID);
    } else if (*kind == 'R') {
        for (const Plemena& breed : BreedsByRing())
            keys << u"R%1"_s.arg(breed.ID);
    } else {
        const int dogs = CountDogs();
        for (int dog = 1; dog <= dogs; ++dog)
            keys << u"P%1"_s.arg(dog);
    }
    return keys;
}

/// Marks what showing another node changes: the tree, the title, and the lists on the panel. The
/// texts of a panel lie in a scrolling area that covers its own ground, and stay unpainted: the
/// limit is lower than a window can come that shows other texts.
void MarkChanges(OpenWindow& open) {
    open.Viewport().update();
    auto& panels = *open.window.findChild<QWidget*>(u"picDetails"_s);
    panels.update();
    for (const auto* list : panels.findChildren<QTreeView*>())
        if (list->isVisible())
            list->viewport()->update();
}

/// Selects nodes all over the tree, each up to the painted window.
void Select(benchmark::State& state, const char* size, const char* kind) {
    OpenWindow open(size);
    const QStringList keys = Keys(kind);
    std::vector<double> times;
    qsizetype at = 0;
    for (auto _ : state) {
        const QString& key = keys[at = (at + 7919) % keys.size()];
        times.push_back(SecondsOf([&] {
            open.window.SelectNode(key);
            open.window.ShowNodeInfo(key);
            PaintChanges(open.window);
        }));
        state.SetIterationTime(times.back());
    }
    std::sort(times.begin(), times.end());
    state.counters["95 of 100 below"] = times[times.size() * 95 / 100] * 1000;
}

/// The same parts of the window painted again unchanged, and for a dog its statements.
void BareSelect(benchmark::State& state, const char* size, const char* kind) {
    OpenWindow open(size);
    BareDatabase database(DatabaseOf(size));
    BareCard card(database);
    const QStringList keys = Keys(kind);
    open.window.SelectNode(keys.front());
    open.window.ShowNodeInfo(keys.front());
    qsizetype at = 0;
    for (auto _ : state) {
        at = (at + 7919) % keys.size();
        state.SetIterationTime(SecondsOf([&] {
            if (*kind == 'P')
                card.Read(static_cast<int>(at) + 1);
            MarkChanges(open);
            PaintChanges(open.window);
        }));
    }
}

void JumpToLast(benchmark::State& state, const char* size) {
    OpenWindow open(size);
    const QStringList keys = Keys("P");
    const TreeDog last = TreeDogsByBreed().back();
    const QString lastKey = u"P%1"_s.arg(last.ID);
    for (auto _ : state) {
        open.window.SelectNode(u"K%1"_s.arg(RingsByName().front().ID));
        QCoreApplication::processEvents();
        state.SetIterationTime(SecondsOf([&] {
            open.window.SelectNode(lastKey);
            open.window.repaint();
        }));
    }
}

benchmark::internal::Benchmark* Add(const std::string& name, const char* size, const char* side,
                                    const std::function<void(benchmark::State&)>& run) {
    return benchmark::RegisterBenchmark((name + "/" + size + "/" + side).c_str(), run)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
}

void Register(const char* size) {
    for (const char* side : {"program", "bare"})
        Add("start to painted tree", size, side, [size, side](benchmark::State& state) {
            Start(state, size, side);
        })->Iterations(10);
    Add("LoadData to painted", size, "program",
        [size](benchmark::State& state) { Reload(state, size); });
    Add("LoadData to painted", size, "bare",
        [size](benchmark::State& state) { BareReload(state, size); });
    for (const auto& [name, kind] :
         {std::pair{"selecting a ring", "K"}, std::pair{"selecting a breed", "R"},
          std::pair{"selecting a dog", "P"}}) {
        Add(name, size, "program", [size, kind = kind](benchmark::State& state) {
            Select(state, size, kind);
        })->Iterations(200);
        Add(name, size, "bare", [size, kind = kind](benchmark::State& state) {
            BareSelect(state, size, kind);
        })->Iterations(200);
    }
    Add("jump to the last dog", size, "program", [size](benchmark::State& state) {
        JumpToLast(state, size);
    })->Iterations(50);
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 4 && qstrcmp(argv[1], "--child") == 0)
        return RunChild(argc, argv, QString::fromLocal8Bit(argv[2]),
                        QString::fromLocal8Bit(argv[3]));
    const Application application(argc, argv);
    for (const char* size : kSizes)
        Register(size);
    return RunAndPrint(argc, argv);
}
