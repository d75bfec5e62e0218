#pragma once
// How the data's own program reaches a show: open for one action, alone where it writes, with what
// of the desktop it needs.

#include "platform/message_boxes.h"
#include "platform/platform.h"

#include <functional>

namespace lorvo {

/// The show of the platform's program folder. Copies of it are one and the same.
class ShowAccess {
  public:
    /// The platform outlives it.
    explicit ShowAccess(Platform& platform) : platform_(&platform) {}

    const QString& Folder() const { return platform_->programFolder; }
    DateValue Now() const { return platform_->clock->Now(); }
    DateValue Today() const { return Now().DateOnly(); }
    /// A day and its time as the locale writes them.
    QString DateText(DateValue date) const { return platform_->locale->DateText(date); }
    FileChoice& Files() const { return *platform_->files; }
    UserInterface& Screen() const { return *platform_->ui; }

    /// With the question mark and the title of this program.
    MessageAnswer Ask(const QString& question, MessageButtons buttons) const;
    /// With the exclamation mark.
    void Warn(const QString& text) const;

    /// Runs `action` with the database open; the main currency's name is read with it. A failure is
    /// shown as a message. Whether the action ran to its end.
    [[nodiscard]] bool OnShow(const std::function<void()>& action) const;
    /// Runs `action` while Lorvo does not run on the folder and can't be started on it; says so
    /// where it runs. Whether the action ran to its end.
    [[nodiscard]] bool AloneInFolder(const std::function<void()>& action) const;
    /// OnShow while Lorvo does not run on the folder and can't be started on it; says so where it
    /// runs.
    [[nodiscard]] bool OnShowAlone(const std::function<void()>& action) const;
    /// Runs `action` under the wait cursor; a failure is shown as a message. Whether it ran to its
    /// end.
    bool SayingFailure(const std::function<void()>& action) const;

    /// Copies the database as it stands now. Returns the copy's path; raises what MakeCopy raises.
    QString CopyNow() const;

  private:
    Platform* platform_;
};

} // namespace lorvo
