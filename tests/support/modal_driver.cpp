#include "support/modal_driver.h"

#include <QApplication>
#include <QTimer>
#include <exception>

namespace lorvo::test {

void WhileOpen(const std::function<void()>& open, const std::function<void(QWidget&)>& inside) {
    bool came = false;
    std::exception_ptr failure;
    const QWidget* before = QApplication::activeModalWidget();
    QTimer watch;
    // What opens a window may let pending events run first.
    QObject::connect(&watch, &QTimer::timeout, qApp, [&] {
        QWidget* window = QApplication::activeModalWidget();
        if (!window || window == before)
            return;
        watch.stop();
        came = true;
        try {
            inside(*window);
        } catch (...) {
            failure = std::current_exception();
        }
        if (QWidget* still = QApplication::activeModalWidget(); still == window)
            window->close();
    });
    watch.start(0);
    open();
    EXPECT_TRUE(came) << "no window was opened";
    if (failure)
        std::rethrow_exception(failure);
}

void CloseWhatOpensAbove(QWidget& window) {
    auto* watch = new QTimer(&window);
    QObject::connect(watch, &QTimer::timeout, &window, [&window] {
        QWidget* above = QApplication::activeModalWidget();
        if (above && above->parentWidget() && above->parentWidget()->window() == &window)
            above->close();
    });
    watch->start(0);
}

} // namespace lorvo::test
