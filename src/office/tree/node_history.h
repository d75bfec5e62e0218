#pragma once
// The nodes shown so far, and stepping back and forward among them.

#include <QString>
#include <deque>
#include <functional>

namespace lorvo {

class NodeHistory {
  public:
    /// Shows a node's panel; raises when the node is gone.
    using Show = std::function<void(const QString& key)>;

    /// Puts a shown node's key in front of all others; the oldest falls off. While a step back or
    /// forward shows its node, nothing is recorded. The position stays where it is, so that after
    /// some steps back it now means one entry newer.
    void Record(const QString& key);

    /// Steps to the next older or newer entry and shows it. When `show` raises, the step has been
    /// made and the buttons stay as they were.
    void GoBack(const Show& show);
    void GoForward(const Show& show);

    bool BackEnabled() const { return backEnabled_; }
    bool ForwardEnabled() const { return forwardEnabled_; }

  private:
    /// Empty for a position at which nothing has been stored.
    QString Entry(int position) const;
    void ShowEntry(const Show& show);

    std::deque<QString> keys_; ///< the newest first
    int position_ = 0;
    bool moving_ = false;
    bool backEnabled_ = false;
    bool forwardEnabled_ = false;
};

} // namespace lorvo
