#pragma once
// The application object with the one barrier for failures that no handler met.

#include <QApplication>
#include <functional>

namespace lorvo {

/// Catches what an event handler raises, ends every event loop and passes the failure up through
/// the modal windows that are open, so that each is unwound in order.
class Application : public QApplication {
  public:
    /// Takes argc by reference, as its base does.
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    /// Runs `start` (which opens the main window) inside the event loop. A failure of either is
    /// shown in the platform's error box. Returns the exit code: 1 after a failure.
    int Run(const std::function<void()>& start);

    /// Raises again what an event handler raised meanwhile, once. To be called after an event loop
    /// of one's own has ended.
    static void RethrowFailure();
};

} // namespace lorvo
