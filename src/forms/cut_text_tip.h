#pragma once
// The whole text of a row that shows only the beginning of it.

class QAbstractItemView;
class QHelpEvent;
class QModelIndex;
class QStyleOptionViewItem;

namespace lorvo {

/// Shows the cell's text as a tool tip when the cell is too narrow for it; otherwise false. For the
/// helpEvent of a view's delegate.
bool ShowCutText(const QHelpEvent& event, QAbstractItemView& view,
                 const QStyleOptionViewItem& option, const QModelIndex& index);

} // namespace lorvo
