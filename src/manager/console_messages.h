#pragma once
// What a command for scripts has instead of a screen.

#include "platform/message_boxes.h"
#include "platform/user_interface.h"

namespace lorvo {

/// A line on the error output; answers what refuses, since a script can't be asked.
class ConsoleMessages : public MessageBoxes {
  public:
    MessageAnswer Show(const QString& text, MessageIcon icon, MessageButtons buttons,
                       const QString& title) override;
};

/// No pointer to change and no window to keep alive.
class ConsoleInterface : public UserInterface {
  public:
    void SetWaitCursor(bool) override {}
    void ProcessEvents() override {}
};

} // namespace lorvo
