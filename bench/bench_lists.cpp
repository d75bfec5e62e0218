// The long lists of dogs, exhibitors, payments and parents, from the command to the painted list
// and sorted, beside their statements and a plain model in a plain window; and a payment stored
// with its edit on disk.
//   QT_QPA_PLATFORM=offscreen bench_lists [--benchmark_filter=...]

#include "bare_list.h"
#include "bare_rows.h"
#include "bare_window.h"
#include "bench_shows.h"
#include "desktop/desktop_services.h"
#include "dogs/fm_DogsList.h"
#include "dogs/frmParents.h"
#include "dogs/frmVystavovatele.h"
#include "forms/application.h"
#include "forms/report_list.h"
#include "mainwindow/fm_main.h"
#include "pair_table.h"
#include "payments/frmPrehledPlateb.h"
#include "platform/platform.h"
#include "platform/popup_menus.h"
#include "store/uhrady.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

using namespace lorvo;
using namespace lorvo::bench;

constexpr const char* kExhibitorStatements[] = {
    "SELECT * FROM Majitele ORDER BY czech_key(Jmeno), ID",
    "SELECT * FROM Vystavy",
    "SELECT PesID, VystavaID FROM PsiVeVystavach",
    "SELECT ID_Psa, ID_Souteze FROM Vazby_Souteze",
    "SELECT ID_Psa, Kc FROM Uhrady",
    "SELECT ID, MajitelID, Trida, PrvniUzaverka, PrvniPes FROM Psi",
    "SELECT * FROM Souteze",
};

constexpr const char* kDogStatements[] = {
    "SELECT Psi.ID, Psi.Jmeno, ChovnaStanice, Trida, PohlaviPes, PrvniPes, PrvniUzaverka, "
    "Poznamka, "
    "Plemena.Nazev, Plemena.NazevOrig, Majitele.Jmeno FROM Psi, Plemena, Majitele WHERE PlemenoID "
    "= "
    "Plemena.ID AND MajitelID = Majitele.ID ORDER BY czech_key(Psi.Jmeno), Psi.ID",
    "SELECT * FROM Vystavy",
    "SELECT PesID, VystavaID FROM PsiVeVystavach",
    "SELECT ID_Psa, ID_Souteze FROM Vazby_Souteze",
    "SELECT IDPsa, Nazev FROM PsiOceneni, Oceneni WHERE IDOceneni = Oceneni.ID",
    "SELECT ID_Psa, Kc FROM Uhrady",
    "SELECT * FROM Souteze",
};

constexpr const char* kPaymentStatements[] = {
    "SELECT Uhrady.ID, Uhrady.ID_Psa, Uhrady.Printed, Uhrady.Castka, Uhrady.Ucet, Uhrady.Mena, "
    "Uhrady.Datum, Uhrady.Kc, Uhrady.Uhrada, Psi.Jmeno, Psi.MajitelID, Majitele.Prijmeni || ' ' || "
    "Majitele.Jmeno || ', ' || Majitele.Mesto FROM Uhrady, Psi, Majitele WHERE "
    "Uhrady.ID_Psa = Psi.ID AND Psi.MajitelID = Majitele.ID ORDER BY MajitelID, Uhrady.ID",
    "SELECT * FROM Meny",
};

constexpr const char* kParentStatements[] = {
    "SELECT DISTINCT Otec FROM Psi ORDER BY czech_key(Otec)",
    "SELECT DISTINCT Matka FROM Psi ORDER BY czech_key(Matka)",
};

/// Answers a menu by its first entry.
class FirstDogChosen : public PopupMenus {
  public:
    int TrackPopup(const std::vector<MenuEntry>& entries) override {
        return entries.front().number;
    }
};

/// Opens a window, which is filled by that, and runs `filled` in place of its event loop.
template<class Window> class Filled : public Window {
  public:
    explicit Filled(std::function<void(Filled&)> filled)
        : Window(nullptr), filled_(std::move(filled)) {}
    void Activated() override {
        filled_(*this);
        this->reject();
    }

  private:
    std::function<void(Filled&)> filled_;
};

void UseShowOnDesk(const char* size) {
    UseShow(size);
    ThePlatform().messages = std::make_unique<DesktopMessageBoxes>();
    ThePlatform().menus = std::make_unique<DesktopPopupMenus>();
    ThePlatform().ui = std::make_unique<DesktopUserInterface>();
}

/// From the command to the painted list. What the window before left to be done is done first, as
/// it is while a clerk looks for the next command.
template<class Window> void Show(benchmark::State& state, const char* size) {
    UseShowOnDesk(size);
    for (auto _ : state) {
        QCoreApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        Filled<Window> window([&](auto& filled) {
            filled.show();
            WaitForPaint(*filled.template findChild<ReportList*>()->viewport());
            state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
        });
        OpenModal(window);
    }
}

/// The statements and a plain model over their rows in a plain window of the same size.
template<class Window, class Statements>
void BareShow(benchmark::State& state, const char* size, const Statements& texts) {
    UseShowOnDesk(size);
    BareDatabase database(ShowFolder(size) + u"/data.mdb"_s);
    std::vector<sqlite3_stmt*> statements;
    for (const char* text : texts)
        statements.push_back(database.Prepare(text));
    const QSize windowSize = Window(nullptr).size();
    for (auto _ : state) {
        QCoreApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        BareList list(windowSize);
        list.Load(statements);
        list.show();
        WaitForPaint(*list.List().viewport());
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
    }
}

/// Sorts by one column after the other.
template<class Window> void Sort(benchmark::State& state, const char* size) {
    UseShowOnDesk(size);
    Filled<Window> window([&](Window& filled) {
        auto& list = *filled.template findChild<ReportList*>();
        int column = 0;
        for (auto _ : state) {
            QElapsedTimer timer;
            timer.start();
            SortListColumn(list, column++ % list.ColumnCount());
            state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
        }
    });
    OpenModal(window);
}

void StorePayment(benchmark::State& state, const char* size) {
    UseShow(size);
    Uhrady payment;
    payment.ID_Psa = 1;
    payment.Datum = ThePlatform().clock->Now();
    payment.Castka = payment.Kc = Currency::FromUnits(500);
    payment.Mena = 1;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        const int ID = InsertPayment(payment);
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
        DeletePayment(ID);
    }
}

/// A dog chosen from the menu of an exhibitor, up to the painted tree behind the list.
void JumpFromExhibitor(benchmark::State& state, const char* size) {
    UseShowOnDesk(size);
    fm_main main;
    main.Start();
    WaitForPaint(main);
    Filled<frmVystavovatele> window([&](auto& filled) {
        auto& list = *filled.template findChild<ReportList*>();
        ThePlatform().menus = std::make_unique<FirstDogChosen>();
        int position = 0;
        for (auto _ : state) {
            position = (position + 7919) % list.RowCount();
            QElapsedTimer timer;
            timer.start();
            Q_EMIT list.RightClick(position);
            PaintChanges(main);
            state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
        }
    });
    OpenModal(window);
}

void Add(const std::string& name, const std::string& size, const char* side,
         const std::function<void(benchmark::State&)>& run) {
    benchmark::RegisterBenchmark((name + "/" + size + "/" + side).c_str(), run)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(20);
}

void Register(const char* size) {
    Add("dog list shown", size, "program",
        [size](benchmark::State& state) { Show<fm_DogsList>(state, size); });
    Add("dog list shown", size, "bare",
        [size](benchmark::State& state) { BareShow<fm_DogsList>(state, size, kDogStatements); });
    Add("dog list sorted", size, "program",
        [size](benchmark::State& state) { Sort<fm_DogsList>(state, size); });
    Add("exhibitor list shown", size, "program",
        [size](benchmark::State& state) { Show<frmVystavovatele>(state, size); });
    Add("exhibitor list shown", size, "bare", [size](benchmark::State& state) {
        BareShow<frmVystavovatele>(state, size, kExhibitorStatements);
    });
    Add("dog chosen at an exhibitor", size, "program",
        [size](benchmark::State& state) { JumpFromExhibitor(state, size); });
    Add("payments shown", size, "program",
        [size](benchmark::State& state) { Show<frmPrehledPlateb>(state, size); });
    Add("payments shown", size, "bare", [size](benchmark::State& state) {
        BareShow<frmPrehledPlateb>(state, size, kPaymentStatements);
    });
    Add("parents shown", size, "program",
        [size](benchmark::State& state) { Show<frmParents>(state, size); });
    Add("parents shown", size, "bare",
        [size](benchmark::State& state) { BareShow<frmParents>(state, size, kParentStatements); });
    Add("exhibitor list sorted", size, "program",
        [size](benchmark::State& state) { Sort<frmVystavovatele>(state, size); });
    Add("payments sorted", size, "program",
        [size](benchmark::State& state) { Sort<frmPrehledPlateb>(state, size); });
    Add("a payment stored", size, "program",
        [size](benchmark::State& state) { StorePayment(state, size); });
}

} // namespace

int main(int argc, char** argv) {
    const Application application(argc, argv);
    for (const char* size : kSizes)
        Register(size);
    return RunAndPrint(argc, argv);
}
