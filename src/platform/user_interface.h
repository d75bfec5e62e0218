#pragma once
// The pointer's shape while work goes on, and letting the window stay alive meanwhile.

namespace lorvo {

class UserInterface {
  public:
    virtual ~UserInterface() = default;
    virtual void SetWaitCursor(bool on) = 0;
    /// Lets pending window events run, input among them.
    virtual void ProcessEvents() = 0;
};

/// The wait cursor for the lifetime of the object.
class WaitCursor {
  public:
    explicit WaitCursor(UserInterface& ui) : ui_(ui) { ui_.SetWaitCursor(true); }
    ~WaitCursor() { ui_.SetWaitCursor(false); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

  private:
    UserInterface& ui_;
};

} // namespace lorvo
