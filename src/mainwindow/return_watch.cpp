#include "mainwindow/return_watch.h"

#include "platform/failure_guard.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace lorvo {

ReturnWatch::ReturnWatch(QWidget& window) : QObject(&window), window_(window) {
    FocusMoved(QGuiApplication::focusWindow());
    Connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &ReturnWatch::FocusMoved);
    Connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &ReturnWatch::StateChanged);
}

void ReturnWatch::FocusMoved(QWindow* focused) {
    // No window has the focus while another program has it; what counts is which had it last.
    if (focused)
        windowHasFocus_ = focused == window_.windowHandle();
}

void ReturnWatch::StateChanged(Qt::ApplicationState state) {
    if (state == Qt::ApplicationActive) {
        if (std::exchange(away_, false))
            Q_EMIT Returned();
    } else if (windowHasFocus_) {
        away_ = true;
    }
}

} // namespace lorvo
