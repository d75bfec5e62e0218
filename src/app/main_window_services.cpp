#include "app/main_window_services.h"

#include "platform/values/errors.h"

namespace lorvo {

namespace {
MainWindowServices* theMainWindow = nullptr;
}

MainWindowServices& TheMainWindow() {
    if (!theMainWindow)
        throw Error("Hlavní okno není otevřené.");
    return *theMainWindow;
}

TreeNodes& MainWindowServices::Nodes() {
    throw Error("Hlavní okno nemá strom.");
}

void SetTheMainWindow(MainWindowServices* window) {
    theMainWindow = window;
}

} // namespace lorvo
