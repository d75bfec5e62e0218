#include "office/tree/node_history.h"

#include <QScopedValueRollback>

namespace lorvo {

namespace {
constexpr std::size_t kDepth = 1001;
}

// kept: history-position-stays
void NodeHistory::Record(const QString& key) {
    if (moving_)
        return;
    keys_.push_front(key);
    if (keys_.size() > kDepth)
        keys_.pop_back();
    backEnabled_ = !Entry(1).isEmpty();
}

void NodeHistory::GoBack(const Show& show) {
    ++position_;
    ShowEntry(show);
    forwardEnabled_ = !Entry(position_ - 1).isEmpty();
}

void NodeHistory::GoForward(const Show& show) {
    --position_;
    ShowEntry(show);
    forwardEnabled_ = position_ >= 1 && !Entry(position_ - 1).isEmpty();
}

// kept: history-of-a-removed-node-ends
void NodeHistory::ShowEntry(const Show& show) {
    {
        const QScopedValueRollback moving(moving_, true);
        show(Entry(position_));
    }
    backEnabled_ = !Entry(position_ + 1).isEmpty();
}

QString NodeHistory::Entry(int position) const {
    const bool stored = position >= 0 && position < static_cast<int>(keys_.size());
    return stored ? keys_[static_cast<std::size_t>(position)] : QString();
}

} // namespace lorvo
