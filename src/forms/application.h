#pragma once
// The application object, which shows the failure that ended the program.

#include "platform/message_boxes.h"

#include <QApplication>
#include <functional>

namespace lorvo {

/// Guards catch a failure where it rises (platform/failure_guard.h); what an event handler without
/// one lets out is caught here, last, and kept as theirs are.
class Application : public QApplication {
  public:
    /// Takes argc by reference, as its base does.
    Application(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

    /// Runs `start` (which opens the main window) inside the event loop. A failure of either is
    /// shown in the platform's error box; after the start, together with what became of the work.
    /// Returns the exit code: 1 after a failure.
    int Run(const std::function<void()>& start);

    /// Shows a message by itself, before or after the work: inside the event loop, so that a
    /// request to end ends it as it ends the work. Returns the exit code of such a program, 1.
    int Tell(const QString& text, MessageIcon icon);
};

} // namespace lorvo
