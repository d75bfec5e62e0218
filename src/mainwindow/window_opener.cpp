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

using namespace Qt::StringLiterals;

namespace {

template<typename Window> std::unique_ptr<Form> Make(const WindowInput&, QWidget* parent) {
    return std::make_unique<Window>(parent);
}

std::unique_ptr<Form> MakeDogEditor(const WindowInput& input, QWidget* parent) {
    return std::make_unique<fm_Dog>(std::get<DogTask>(input), parent);
}

std::unique_ptr<Form> MakeSearch(const WindowInput& input, QWidget* parent) {
    return std::make_unique<frmFind>(*std::get<TreeSearch*>(input), parent);
}

std::map<QString, WindowFactory>& Windows() {
    static std::map<QString, WindowFactory> windows{
        {u"fm_Colors"_s, Make<fm_Colors>},
        {u"fmDiplom"_s, Make<fmDiplom>},
        {u"fm_Dog"_s, MakeDogEditor},
        {u"fm_DogsList"_s, Make<fm_DogsList>},
        {u"fm_Plemena"_s, Make<fm_Plemena>},
        {u"fm_Settings"_s, Make<fm_Settings>},
        {u"fm_Souteze"_s, Make<fm_Souteze>},
        {u"frmEditMan"_s, Make<frmEditMan>},
        {u"frmFind"_s, MakeSearch},
        {u"frmJmenoRozhodciho"_s, Make<frmJmenoRozhodciho>},
        {u"frmNazevKruhu"_s, Make<frmNazevKruhu>},
        {u"frmOceneni"_s, Make<frmOceneni>},
        {u"frmParents"_s, Make<frmParents>},
        {u"frmPlatba"_s, Make<frmPlatba>},
        {u"frmPrehledPlateb"_s, Make<frmPrehledPlateb>},
        {u"frmPrehledPlemen"_s, Make<frmPrehledPlemen>},
        {u"frmTiskKatalog"_s, Make<frmTiskKatalog>},
        {u"frmTiskPlateb"_s, Make<frmTiskPlateb>},
        {u"frmTiskPosudku"_s, Make<frmTiskPosudku>},
        {u"frmTiskPozvanek"_s, Make<frmTiskPozvanek>},
        {u"frmTiskSeznamuPsu"_s, Make<frmTiskSeznamuPsu>},
        {u"frmTiskSeznamVystavovatelu"_s, Make<frmTiskSeznamVystavovatelu>},
        {u"frmUhrady"_s, Make<frmUhrady>},
        {u"frmVystavovatele"_s, Make<frmVystavovatele>},
        {u"frmVystavy"_s, Make<frmVystavy>},
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

std::unique_ptr<Form> Open(const QString& name, const WindowInput& input) {
    const auto found = Windows().find(name);
    if (found == Windows().end())
        throw Error("Okno " + name.toStdString() + " neexistuje.");
    std::unique_ptr<Form> window = found->second(input, WindowInFront());
    OpenModal(*window);
    return window;
}

WindowFactory SetWindow(const QString& name, WindowFactory factory) {
    return std::exchange(Windows()[name], std::move(factory));
}

} // namespace lorvo
