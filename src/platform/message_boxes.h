#pragma once
// Message boxes, as the logic asks for them.

#include <QString>

namespace lorvo {

enum class MessageIcon { None, Information, Exclamation, Stop, Question };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No };

class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    /// Shows the box over the active window and returns the answer; closing it by Esc or its frame
    /// answers Cancel, or No where there is no Cancel, or Ok where there is neither.
    virtual MessageAnswer Show(const QString& text, MessageIcon icon, MessageButtons buttons,
                               const QString& title) = 0;
};

} // namespace lorvo
