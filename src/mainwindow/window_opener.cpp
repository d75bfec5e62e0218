#include "mainwindow/window_opener.h"

#include "dogs/fm_Dog.h"
#include "dogs/fm_DogsList.h"
#include "dogs/frmEditMan.h"
#include "dogs/frmParents.h"
#include "dogs/frmVystavovatele.h"
#include "mainwindow/frmFind.h"
#include "payments/frmPlatba.h"
#include "payments/frmPrehledPlateb.h"
#include "payments/frmUhrady.h"
#include "platform/values/errors.h"
#include "reports/fmDiplom.h"
#include "reports/frmJmenoRozhodciho.h"
#include "reports/frmPrehledPlemen.h"
#include "reports/frmTiskKatalog.h"
#include "reports/frmTiskPlateb.h"
#include "reports/frmTiskPosudku.h"
#include "reports/frmTiskPozvanek.h"
#include "reports/frmTiskSeznamVystavovatelu.h"
#include "reports/frmTiskSeznamuPsu.h"
#include "setup/fm_Colors.h"
#include "setup/fm_Plemena.h"
#include "setup/fm_Settings.h"
#include "setup/fm_Souteze.h"
#include "setup/frmNazevKruhu.h"
#include "setup/frmOceneni.h"
#include "setup/frmVystavy.h"

#include <QApplication>
#include <QMainWindow>
#include <algorithm>
#include <map>
#include <utility>

namespace lorvo {

namespace {

template<typename Window> std::unique_ptr<Form> Make(QWidget* parent) {
    return std::make_unique<Window>(parent);
}

std::map<QString, WindowFactory>& Windows() {
    static std::map<QString, WindowFactory> windows{
        {QStringLiteral("fm_Colors"), Make<fm_Colors>},
        {QStringLiteral("fmDiplom"), Make<fmDiplom>},
        {QStringLiteral("fm_Dog"), Make<fm_Dog>},
        {QStringLiteral("fm_DogsList"), Make<fm_DogsList>},
        {QStringLiteral("fm_Plemena"), Make<fm_Plemena>},
        {QStringLiteral("fm_Settings"), Make<fm_Settings>},
        {QStringLiteral("fm_Souteze"), Make<fm_Souteze>},
        {QStringLiteral("frmEditMan"), Make<frmEditMan>},
        {QStringLiteral("frmFind"), Make<frmFind>},
        {QStringLiteral("frmJmenoRozhodciho"), Make<frmJmenoRozhodciho>},
        {QStringLiteral("frmNazevKruhu"), Make<frmNazevKruhu>},
        {QStringLiteral("frmOceneni"), Make<frmOceneni>},
        {QStringLiteral("frmParents"), Make<frmParents>},
        {QStringLiteral("frmPlatba"), Make<frmPlatba>},
        {QStringLiteral("frmPrehledPlateb"), Make<frmPrehledPlateb>},
        {QStringLiteral("frmPrehledPlemen"), Make<frmPrehledPlemen>},
        {QStringLiteral("frmTiskKatalog"), Make<frmTiskKatalog>},
        {QStringLiteral("frmTiskPlateb"), Make<frmTiskPlateb>},
        {QStringLiteral("frmTiskPosudku"), Make<frmTiskPosudku>},
        {QStringLiteral("frmTiskPozvanek"), Make<frmTiskPozvanek>},
        {QStringLiteral("frmTiskSeznamuPsu"), Make<frmTiskSeznamuPsu>},
        {QStringLiteral("frmTiskSeznamVystavovatelu"), Make<frmTiskSeznamVystavovatelu>},
        {QStringLiteral("frmUhrady"), Make<frmUhrady>},
        {QStringLiteral("frmVystavovatele"), Make<frmVystavovatele>},
        {QStringLiteral("frmVystavy"), Make<frmVystavy>},
    };
    return windows;
}

/// The window that the next one opens over.
QWidget* WindowInFront() {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    // Without a window manager no window may be active; the main one is then the one in front.
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto main = std::ranges::find_if(
        windows, [](QWidget* window) { return qobject_cast<QMainWindow*>(window); });
    return main == windows.end() ? nullptr : *main;
}

} // namespace

bool CanOpen(const QString& name) {
    return Windows().contains(name);
}

std::unique_ptr<Form> Open(const QString& name) {
    const auto found = Windows().find(name);
    if (found == Windows().end())
        throw Error("Okno " + name.toStdString() + " neexistuje.");
    std::unique_ptr<Form> window = found->second(WindowInFront());
    OpenModal(*window);
    return window;
}

WindowFactory SetWindow(const QString& name, WindowFactory factory) {
    const auto found = Windows().find(name);
    WindowFactory before = found == Windows().end() ? WindowFactory() : found->second;
    if (factory)
        Windows()[name] = std::move(factory);
    else
        Windows().erase(name);
    return before;
}

} // namespace lorvo
