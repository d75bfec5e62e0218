#pragma once
// How the data's own program reaches a show: open for one action, alone where it writes.

#include <functional>

namespace lorvo {

/// The show's database, open for the lifetime of the object; the main currency's name is read with
/// it. Raises StoreError as opening does.
class ShowSession {
  public:
    ShowSession();
    ~ShowSession();
    ShowSession(const ShowSession&) = delete;
    ShowSession& operator=(const ShowSession&) = delete;
};

/// Runs `action` with the database open, under the wait cursor. A failure is shown as a message
/// with this title. Whether the action ran to its end.
[[nodiscard]] bool OnShow(const std::function<void()>& action);
/// Runs `action` while Lorvo does not run on the folder and can't be started on it; says so where
/// it runs. Whether the action ran to its end.
[[nodiscard]] bool AloneInFolder(const std::function<void()>& action);
/// OnShow while Lorvo does not run on the folder and can't be started on it; says so where it runs.
[[nodiscard]] bool OnShowAlone(const std::function<void()>& action);

/// Runs `action`; a failure is shown as a message. Whether it ran to its end.
[[nodiscard]] bool SayingFailure(const std::function<void()>& action);

} // namespace lorvo
