#pragma once
// A clerk at the keyboard: keys go where the window system would send them, one after the other,
// also while a window, a menu or a message that one of them opened is waiting.

#include <QString>
#include <Qt>
#include <deque>
#include <functional>

class QWidget;

namespace lorvo::test {

class Clerk {
  public:
    // What is to be done, in this order.
    Clerk& Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// The letter that leads to the control with that name in the window in front, together with
    /// Alt; in an open menu the entry with that text.
    Clerk& Alt(const QString& control);
    Clerk& Choose(const QString& entry);
    /// Types a text. Its letters are the same in every program, so they don't count.
    Clerk& Type(const QString& text);
    /// The Tab key, until the control with that name has the keyboard.
    Clerk& TabTo(const QString& control);
    /// Waits until the control with that name has the keyboard, as what begins by itself does.
    Clerk& Await(const QString& control);
    /// Looks at something between two keys.
    Clerk& Look(std::function<void()> look);

    /// Does it all; fails the test when a control or entry can't be reached. The test's window must
    /// be there already.
    void Work();

    /// Keys pressed, a combination being one, without the letters of texts.
    int Keys() const { return keys_; }
    int Clicks() const { return 0; }

  private:
    using Step = std::function<bool()>; ///< false when it is to be tried again after the next event

    void Next();
    void Give(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    bool IsAtRest();

    std::deque<Step> steps_;
    int keys_ = 0;
    int waits_ = 0;
};

} // namespace lorvo::test
