#pragma once
// What becomes of a program that the toolkit starts and forgets.

#include <set>

namespace lorvo {

/// The desktop's opener on Linux is a program of its own (xdg-open), and the toolkit says "opened"
/// as soon as it runs, though it may find nothing for the file. For the life of this object such a
/// program, started detached, becomes a child of this process, so that its end can be seen.
/// Elsewhere nothing is started and nothing seen.
class LaunchWatch {
  public:
    LaunchWatch();
    ~LaunchWatch();
    LaunchWatch(const LaunchWatch&) = delete;
    LaunchWatch& operator=(const LaunchWatch&) = delete;

    /// Waits a moment for the program started meanwhile. True when it has ended in failure; false
    /// when it goes on running, has ended well, or none was started.
    [[nodiscard]] bool HasFailed() const;

  private:
    std::set<int> before_; ///< children there already
};

} // namespace lorvo
