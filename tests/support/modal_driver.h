#pragma once
// Driving windows that are open modally.

#include <QWidget>
#include <functional>
#include <gtest/gtest.h>

namespace lorvo::test {

/// The control of that name in the window, which fails the test when there is none of that kind.
template<typename T> T& Control(const QWidget& window, const char* name) {
    T* control = window.findChild<T*>(QString::fromUtf8(name));
    if (!control)
        throw std::runtime_error(std::string("no control ") + name);
    return *control;
}

/// Runs `inside` with the modal window that `open` opens, as soon as it is shown. A window that is
/// still open afterwards is closed as by its close box. Fails the test when no window came.
void WhileOpen(const std::function<void()>& open, const std::function<void(QWidget&)>& inside);

/// From now on closes each modal window that opens above the window.
void CloseWhatOpensAbove(QWidget& window);

} // namespace lorvo::test
